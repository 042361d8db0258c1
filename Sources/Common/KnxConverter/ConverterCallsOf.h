#pragma once

#include "ConverterCalls.h"

namespace Nelmo {

namespace ConverterCallsDetail {

// Guarded's work written out: in its lambda the compiler no longer takes
// the converter's function in. The result turns false before the failure is
// logged, so an exception raised while logging still reports the failure.
template <typename Converter>
bool Send(KnxConverter& converter, const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  bool result = true;
  try {
    // A converter may keep the value it is handed; it never gets the caller's.
    const ULOVALUE working(value);  // NOLINT(performance-unnecessary-copy-initialization)
    // Qualified, so that the call binds to Converter's own function.
    if (!static_cast<Converter&>(converter).Converter::ToKnxValue(dpt, working, groupValue)) {
      result = false;
      ConversionReport::SendFailed(dpt, working);
    }
  } catch (const KnxStack::GroupValueException& exception) {
    ConversionReport::SendThrew(exception);
  }
  return result;
}

template <typename Converter>
bool Receive(KnxConverter& converter, const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  bool result = true;
  try {
    if (!static_cast<Converter&>(converter).Converter::FromKnxValue(dpt, groupValue, value)) {
      result = false;
      ConversionReport::ReceiveFailed(dpt, groupValue);
    }
  } catch (const KnxStack::GroupValueException& exception) {
    ConversionReport::ReceiveThrew(exception);
  }
  return result;
}

}  // namespace ConverterCallsDetail

template <typename Converter>
const ConverterCalls& CallsOf() {
  static constexpr ConverterCalls calls{&ConverterCallsDetail::Send<Converter>,
                                        &ConverterCallsDetail::Receive<Converter>};
  return calls;
}

}  // namespace Nelmo

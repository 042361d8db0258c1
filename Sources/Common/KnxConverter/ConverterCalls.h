#pragma once

#include "KnxConverter.h"
#include "KnxStack.h"
#include "UloPlatform.h"

namespace Nelmo {

// A conversion through one row of the standard table, from the facade's
// checks on: the converter's class is known, so its functions are called
// directly. Each reports its failure as the facade does and catches the
// group value's exceptions. send hands the converter a copy of value.
struct ConverterCalls {
  bool (*send)(KnxConverter& converter, const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue);
  bool (*receive)(KnxConverter& converter, const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value);
};

// For a converter of exactly the class Converter. Each standard converter's
// source instantiates it beside the converter's functions, which the calls
// then take in.
template <typename Converter>
const ConverterCalls& CallsOf();

// What the facade logs when a conversion fails or throws; the result of the
// conversion is the caller's.
namespace ConversionReport {
[[gnu::cold]] void SendFailed(const KNXDPT& dpt, const ULOVALUE& value);
[[gnu::cold]] void SendThrew(const KnxStack::GroupValueException& exception);
[[gnu::cold]] void ReceiveFailed(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue);
[[gnu::cold]] void ReceiveThrew(const KnxStack::GroupValueException& exception);
}  // namespace ConversionReport

// Runs step(result) with result true, and returns result; a group value
// exception is caught and reported through threw. The result turns false
// before a failure is logged, so an exception raised while logging still
// reports the failure.
template <typename Step>
bool Guarded(Step&& step, void (*threw)(const KnxStack::GroupValueException&)) {
  bool result = true;
  try {
    step(result);
  } catch (const KnxStack::GroupValueException& exception) {
    threw(exception);
  }
  return result;
}

}  // namespace Nelmo

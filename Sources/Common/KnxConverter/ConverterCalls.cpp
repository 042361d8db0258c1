#include "ConverterCalls.h"

#include <ostream>
#include <string_view>

#include "ConverterLog.h"

namespace Nelmo::ConversionReport {

void SendFailed(const KNXDPT& dpt, const ULOVALUE& value) {
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, Log::ToKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Convert to KNX value failed for DPT = " << Log::Dpt{dpt} << " val = " << value.ToString();
  });
}

void SendThrew(const KnxStack::GroupValueException& exception) {
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, Log::ToKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Exception caught during conversion of ULOVALUE to GroupValue: " << exception.what();
  });
}

void ReceiveFailed(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue) {
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, Log::FromKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Convert from KNX value failed for DPT = " << Log::Dpt{dpt}
        << " GroupValue = " << groupValue.GetRawData().ToString();
  });
}

void ReceiveThrew(const KnxStack::GroupValueException& exception) {
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, Log::FromKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Exception caught during conversion of GroupValue: " << exception.what();
  });
}

}  // namespace Nelmo::ConversionReport

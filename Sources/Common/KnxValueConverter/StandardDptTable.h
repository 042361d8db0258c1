#pragma once

#include <ostream>
#include <string_view>

#include "ConverterLog.h"

namespace Nelmo::StandardDptTable {

// A row that the map did not take is reported with its label and skipped;
// the filling goes on with the next row.
inline void ReportRow(bool added, std::string_view label, int line) {
  if (added) {
    return;
  }
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, "FillDptValueMap", line,
             [&](std::ostream& out) { out << "Add DPT value map entry failed. DPT=" << label; });
}

}  // namespace Nelmo::StandardDptTable

#pragma once

// Message helpers shared by the converters, the ranges and the facade. A
// message is composed only when its level is active, so the conversion path
// builds no text (and allocates nothing) while logging is off.

#include <cstdint>
#include <ostream>
#include <sstream>
#include <string_view>

#include "KnxStack.h"
#include "UloPlatform.h"

namespace Nelmo::Log {

inline constexpr std::string_view ConverterFile = "KnxConverter";
inline constexpr std::string_view FacadeFile = "KnxValueConverter";

// Composing a message needs a string stream, whose set-up would otherwise
// be inlined into every caller and paid for on each call; kept out of line
// and out of the hot code.
template <typename Compose>
[[gnu::cold, gnu::noinline]] void WriteActive(UloLogLevel level, std::string_view file, std::string_view function,
                                              int line, Compose& compose) {
  if (!UloLoggingStateIsActive(level)) {
    return;
  }
  std::ostringstream text;
  compose(text);
  UloLog(level, file, function, text.str(), line);
}

// compose(std::ostream&) writes the text; called only when level is active.
template <typename Compose>
inline void Write(UloLogLevel level, std::string_view file, std::string_view function, int line, Compose&& compose) {
  if (UloLogDetail::MayBeActive(level)) {
    WriteActive(level, file, function, line, compose);
  }
}

// The DPT's short form: main "." sub, plain decimals (9.001 is 9.1).
struct Dpt {
  const KNXDPT& dpt;
};
inline std::ostream& operator<<(std::ostream& out, Dpt value) {
  return out << static_cast<unsigned>(value.dpt.mainNumber) << '.' << static_cast<unsigned>(value.dpt.subNumber);
}

// "DPT is used. DPT = 9.1 ivt=3 val=21.5"
inline void TraceToKnx(const KNXDPT& dpt, const ULOVALUE& value, int line) {
  Write(ULO_LOG_TRACE, ConverterFile, "ToKnxValue", line, [&](std::ostream& out) {
    out << "DPT is used. DPT = " << Dpt{dpt} << " ivt=" << static_cast<std::int32_t>(value.GetType())
        << " val=" << value.ToString();
  });
}

// "DPT is used. DPT = 9.1 grp.size=16 grp.val=0C 33"
inline void TraceFromKnx(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, int line) {
  Write(ULO_LOG_TRACE, ConverterFile, "FromKnxValue", line, [&](std::ostream& out) {
    out << "DPT is used. DPT = " << Dpt{dpt} << " grp.size=" << groupValue.GetDefinedSize()
        << " grp.val=" << groupValue.GetRawData().ToString();
  });
}

// The trace before a conversion, out of line: the hot path then holds no
// closure of the conversion for it.
[[gnu::cold, gnu::noinline]] inline void TraceToKnxCold(const KNXDPT& dpt, const ULOVALUE& value, int line) {
  TraceToKnx(dpt, value, line);
}

[[gnu::cold, gnu::noinline]] inline void TraceFromKnxCold(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                          int line) {
  TraceFromKnx(dpt, groupValue, line);
}

template <typename Convert>
inline bool TracedToKnx(const KNXDPT& dpt, const ULOVALUE& value, int line, Convert convert) {
  if (UloLogDetail::MayBeActive(ULO_LOG_TRACE)) {
    TraceToKnxCold(dpt, value, line);
  }
  return convert();
}

template <typename Convert>
inline bool TracedFromKnx(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, int line, Convert convert) {
  if (UloLogDetail::MayBeActive(ULO_LOG_TRACE)) {
    TraceFromKnxCold(dpt, groupValue, line);
  }
  return convert();
}

// Level-1 notice that a value was clamped into its range before sending.
// Before and After are streamed as given, so the caller picks the number form.
template <typename Before, typename After>
inline void Adjusted(const KNXDPT& dpt, UloValueType type, const Before& before, const After& after, int line) {
  Write(ULO_LOG_INFO, ConverterFile, "ToKnxValue", line, [&](std::ostream& out) {
    out << "The internal value of DPT=" << Dpt{dpt} << ", ivt=" << static_cast<std::int32_t>(type)
        << " has been adjusted from " << before << " to " << after << " before conversion.";
  });
}

}  // namespace Nelmo::Log

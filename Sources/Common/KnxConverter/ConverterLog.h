#pragma once

// Message helpers shared by the converters, the ranges and the facade. A
// message is composed only when its level is active, so the conversion path
// builds no text (and allocates nothing) while logging is off.

#include <cstdint>
#include <ios>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "KnxStack.h"
#include "UloPlatform.h"

namespace Nelmo::Log {

inline constexpr std::string_view ConverterFile = "KnxConverter";
inline constexpr std::string_view FacadeFile = "KnxValueConverter";
// The facade's functions, as its messages name them.
inline constexpr std::string_view ToKnxFunction = "ToKnxValue";
inline constexpr std::string_view FromKnxFunction = "FromKnxValue";

// The string stream a message is composed in: the thread's own, kept from
// message to message, since setting one up costs more than composing most
// messages; a stream of its own where the thread's is in use (a log sink
// that converts and logs again). The stream starts empty, with the default
// format.
class MessageText {
 public:
  MessageText() {
    KeptStream& kept = ThisThreadsStream();
    if (kept.busy) {
      m_stream = &m_own.emplace();
      return;
    }
    kept.busy = true;
    m_busy = &kept.busy;
    m_stream = &kept.stream;
    // What the last message left: its text, a failed state, a changed format.
    m_stream->str(std::string());
    m_stream->clear();
    m_stream->flags(std::ios_base::skipws | std::ios_base::dec);
    m_stream->precision(DefaultPrecision);
    m_stream->width(0);
    m_stream->fill(' ');
  }
  ~MessageText() {
    if (m_busy != nullptr) {
      *m_busy = false;
    }
  }
  MessageText(const MessageText&) = delete;
  MessageText& operator=(const MessageText&) = delete;

  std::ostream& Stream() { return *m_stream; }
  std::string Text() const { return m_stream->str(); }

 private:
  struct KeptStream {
    std::ostringstream stream;
    bool busy = false;
  };
  static constexpr std::streamsize DefaultPrecision = 6;

  static KeptStream& ThisThreadsStream() {
    thread_local KeptStream kept;
    return kept;
  }

  std::ostringstream* m_stream = nullptr;
  bool* m_busy = nullptr;
  std::optional<std::ostringstream> m_own;
};

// Kept out of line and out of the hot code: the conversion path only tests
// the level.
template <typename Compose>
[[gnu::cold, gnu::noinline]] void WriteActive(UloLogLevel level, std::string_view file, std::string_view function,
                                              int line, Compose& compose) {
  if (!UloLoggingStateIsActive(level)) {
    return;
  }
  MessageText text;
  compose(text.Stream());
  UloLog(level, file, function, text.Text(), line);
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

#include "NumberDisplay.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "LogForwarder.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

// A double is told apart from every other by 17 significant digits.
constexpr int MaxDigits = 17;
constexpr int LargestPlainExponent = 20;
constexpr int SmallestPlainExponent = -7;

// The range of the first of the converter classes that converter is, or
// null.
template <typename First, typename... Rest>
auto RangeOf(const Nelmo::KnxConverter* converter) -> decltype(&std::declval<const First&>().GetRange()) {
  if (const auto* typed = dynamic_cast<const First*>(converter)) {
    return &typed->GetRange();
  }
  if constexpr (sizeof...(Rest) > 0) {
    return RangeOf<Rest...>(converter);
  } else {
    return nullptr;
  }
}

// The range of a row whose converter scales numbers to and from bus
// integers or floats. A text beyond it would be clamped to the same bytes,
// so it must not stand for the value. The 4-bit step codes are no scale:
// 1.5625 is a step of its own, not 2 rounded.
class RowRange {
 public:
  explicit RowRange(const Nelmo::KnxConverter* converter)
      : m_floats(RangeOf<Nelmo::KnxConverterFloat16BitFloat, Nelmo::KnxConverterFloat32BitFloat>(converter)),
        m_scaled(RangeOf<Nelmo::KnxConverterFloat8BitUnsigned, Nelmo::KnxConverterFloat8BitSigned,
                         Nelmo::KnxConverterFloat16BitSigned>(converter)) {}

  bool Scales() const { return m_floats != nullptr || m_scaled != nullptr; }
  bool Holds(double number) const {
    return m_floats != nullptr ? m_floats->IsInRange(number) : m_scaled != nullptr && m_scaled->IsInRange(number);
  }

 private:
  const Nelmo::FloatRange* m_floats;
  const Nelmo::FloatIntegerRange* m_scaled;
};

}  // namespace

std::string PlainDecimal(const std::string& scientific) {
  const std::size_t mark = scientific.find('e');
  if (mark == std::string::npos) {
    return scientific;
  }
  const bool negative = !scientific.empty() && scientific.front() == '-';
  std::string digits;
  for (std::size_t i = negative ? 1 : 0; i < mark; ++i) {
    if (scientific[i] != '.') {
      digits += scientific[i];
    }
  }
  const long exponent = std::strtol(scientific.c_str() + mark + 1, nullptr, 10);
  if (digits.empty() || exponent < SmallestPlainExponent || exponent > LargestPlainExponent) {
    return scientific;
  }
  const auto count = static_cast<long>(digits.size());
  std::string plain;
  if (exponent < 0) {
    plain = "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  } else if (exponent >= count - 1) {
    plain = digits + std::string(static_cast<std::size_t>(exponent - (count - 1)), '0');
  } else {
    const auto point = static_cast<std::size_t>(exponent + 1);
    plain = digits.substr(0, point) + "." + digits.substr(point);
  }
  return negative ? "-" + plain : plain;
}

std::string DisplayText(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt, const ULOVALUE& value,
                        const KnxStack::GroupValue& received) {
  const double number = KindOf(value.GetType()) == ValueKind::Number ? value.GetDouble() : NAN;
  if (!std::isfinite(number)) {
    return value.ToString();
  }
  // The lookup and the tries are the tool's own business, not the user's log.
  const QuietLog quiet;
  const RowRange range(converter.GetEntry(dpt).GetConverter());
  if (!range.Scales()) {
    return value.ToString();
  }
  ULOVALUE trial(value.GetType());
  KnxStack::GroupValue encoded;
  char text[32];
  for (int digits = 1; digits <= MaxDigits; ++digits) {
    std::snprintf(text, sizeof text, "%.*e", digits - 1, number);
    const double candidate = std::strtod(text, nullptr);
    trial.SetDouble(candidate);
    if (range.Holds(candidate) && converter.ToKnxValue(dpt, trial, encoded) &&
        encoded.GetRawData() == received.GetRawData() && encoded.GetDefinedSize() == received.GetDefinedSize()) {
      return PlainDecimal(text);
    }
  }
  return value.ToString();
}

}  // namespace Knxconv

#include "NumberDisplay.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

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

// Encodes candidates with a row's converter, where the row scales numbers
// to and from bus integers or floats, and tells which give the received
// bytes back. A candidate beyond the row's range would be clamped to the same
// bytes, so it must not stand for the value. The 4-bit step codes are no
// scale: 1.5625 is a step of its own, not 2 rounded.
class RoundTrip {
 public:
  RoundTrip(Nelmo::KnxConverter* converter, const NumberScale& scale, const KNXDPT& dpt, const ULOVALUE& value,
            const KnxStack::GroupValue& received)
      : m_converter(converter),
        m_dpt(dpt),
        m_received(received),
        m_trial(value.GetType()),
        m_floats(scale.floats),
        m_scaled(scale.scaled) {}

  bool Scales() const { return m_floats != nullptr || m_scaled != nullptr; }
  bool Holds(double number) const {
    return m_floats != nullptr ? m_floats->IsInRange(number) : m_scaled != nullptr && m_scaled->IsInRange(number);
  }
  bool GivesBack(double candidate) {
    m_trial.SetDouble(candidate);
    return Holds(candidate) && m_converter->ToKnxValue(m_dpt, m_trial, m_encoded) &&
           m_encoded.GetRawData() == m_received.GetRawData() &&
           m_encoded.GetDefinedSize() == m_received.GetDefinedSize();
  }

 private:
  Nelmo::KnxConverter* m_converter;
  const KNXDPT& m_dpt;
  const KnxStack::GroupValue& m_received;
  ULOVALUE m_trial;
  KnxStack::GroupValue m_encoded;
  const Nelmo::FloatRange* m_floats;
  const Nelmo::FloatIntegerRange* m_scaled;
};

// Powers of ten that a double holds exactly.
constexpr double ExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                  1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
// Whole numbers of up to 15 digits are exact in a double too, so that
// digits / 10^places is the double nearest to the decimal, as reading its
// text gives; without printing and reading text per try.
constexpr int ExactDigits = 15;
constexpr int SmallestFastExponent = SmallestPlainExponent;
constexpr int LargestFastExponent = ExactDigits;

// digits × 10^-places
struct ShortDecimal {
  std::int64_t digits;
  int places;
  double Value() const {
    return places >= 0 ? static_cast<double>(digits) / ExactPowers[places]
                       : static_cast<double>(digits) * ExactPowers[-places];
  }
};

ShortDecimal Rounded(double number, int significant, int exponent) {
  const int places = significant - 1 - exponent;
  const double scaled = places >= 0 ? number * ExactPowers[places] : number / ExactPowers[-places];
  return {std::llround(scaled), places};
}

std::string FixedText(const ShortDecimal& decimal) {
  std::string text = std::to_string(decimal.digits < 0 ? -decimal.digits : decimal.digits);
  if (decimal.places <= 0) {
    text.append(static_cast<std::size_t>(-decimal.places), '0');
  } else {
    const auto places = static_cast<std::size_t>(decimal.places);
    if (text.size() <= places) {
      text.insert(0, places + 1 - text.size(), '0');
    }
    text.insert(text.size() - places, ".");
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
      text.pop_back();
    }
  }
  return decimal.digits < 0 ? "-" + text : text;
}

// The slow way, for numbers too large or too small for ShortDecimal.
std::optional<std::string> ScientificTry(double number, RoundTrip& roundTrip) {
  char text[32];
  for (int digits = 1; digits <= MaxDigits; ++digits) {
    std::snprintf(text, sizeof text, "%.*e", digits - 1, number);
    if (roundTrip.GivesBack(std::strtod(text, nullptr))) {
      return PlainDecimal(text);
    }
  }
  return std::nullopt;
}

// The scientific form where one gives the bytes back, else the value's own
// text, made only then: it formats the number once more.
std::string ScientificOrPlain(double number, RoundTrip& roundTrip, const ULOVALUE& value) {
  std::optional<std::string> scientific = ScientificTry(number, roundTrip);
  return scientific ? *std::move(scientific) : value.ToString();
}

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

NumberScale ScaleOf(const Nelmo::KnxConverter* rowConverter) {
  NumberScale scale;
  scale.floats = RangeOf<Nelmo::KnxConverterFloat16BitFloat, Nelmo::KnxConverterFloat32BitFloat>(rowConverter);
  // Casts cost; a float row is no scaled one.
  if (scale.floats == nullptr) {
    scale.scaled = RangeOf<Nelmo::KnxConverterFloat8BitUnsigned, Nelmo::KnxConverterFloat8BitSigned,
                           Nelmo::KnxConverterFloat16BitSigned>(rowConverter);
  }
  return scale;
}

std::string DisplayText(Nelmo::KnxConverter* rowConverter, const KNXDPT& dpt, const ULOVALUE& value,
                        const KnxStack::GroupValue& received) {
  // Numbers only: the scale is looked for where it is used.
  if (KindOf(value.GetType()) != ValueKind::Number) {
    return value.ToString();
  }
  return DisplayText(rowConverter, ScaleOf(rowConverter), dpt, value, received);
}

std::string DisplayText(Nelmo::KnxConverter* rowConverter, const NumberScale& scale, const KNXDPT& dpt,
                        const ULOVALUE& value, const KnxStack::GroupValue& received) {
  const double number = KindOf(value.GetType()) == ValueKind::Number ? value.GetDouble() : NAN;
  if (!std::isfinite(number)) {
    return value.ToString();
  }
  RoundTrip roundTrip(rowConverter, scale, dpt, value, received);
  // Outside the row's range only the value itself stands for its bytes.
  if (!roundTrip.Scales() || !roundTrip.Holds(number)) {
    return value.ToString();
  }
  const int exponent = number == 0.0 ? 0 : static_cast<int>(std::floor(std::log10(std::fabs(number))));
  if (exponent < SmallestFastExponent || exponent > LargestFastExponent) {
    return ScientificOrPlain(number, roundTrip, value);
  }
  for (int significant = 1; significant <= ExactDigits; ++significant) {
    const ShortDecimal decimal = Rounded(number, significant, exponent);
    if (roundTrip.GivesBack(decimal.Value())) {
      return FixedText(decimal);
    }
  }
  return ScientificOrPlain(number, roundTrip, value);
}

}  // namespace Knxconv

#include "ConverterInfo.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <typeinfo>

namespace Knxconv {

namespace {

template <typename Converter>
bool TakeRange(const Nelmo::KnxConverter& converter, std::optional<std::string>& text) {
  const auto* typed = dynamic_cast<const Converter*>(&converter);
  if (typed == nullptr) {
    return false;
  }
  text = typed->GetRange().ToString();
  return true;
}

template <typename... Converters>
std::optional<std::string> RangeOfAny(const Nelmo::KnxConverter& converter) {
  std::optional<std::string> text;
  (TakeRange<Converters>(converter, text) || ...);
  return text;
}

}  // namespace

std::string ConverterClassName(const Nelmo::KnxConverter& converter) {
  const char* mangled = typeid(converter).name();
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> demangled(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                              &std::free);
  std::string_view name = (status == 0 && demangled) ? std::string_view(demangled.get()) : std::string_view(mangled);
  const std::size_t separator = name.rfind("::");
  if (separator != std::string_view::npos) {
    name.remove_prefix(separator + 2);
  }
  return std::string(name);
}

std::optional<std::string> ConverterRangeText(const Nelmo::KnxConverter& converter) {
  using namespace Nelmo;
  return RangeOfAny<KnxConverter4Bit, KnxConverterInteger8BitSigned, KnxConverterInteger16BitUnsigned,
                    KnxConverterInteger16BitSigned, KnxConverterInteger24BitUnsigned, KnxConverterInteger32BitUnsigned,
                    KnxConverterInteger32BitSigned, KnxConverterInteger48BitUnsigned, KnxConverterFloat8BitUnsigned,
                    KnxConverterFloat8BitSigned, KnxConverterFloat16BitSigned, KnxConverterFloat16BitFloat,
                    KnxConverterFloat32BitFloat, KnxConverter8BitString, KnxConverter14ByteString,
                    KnxConverterSceneNumber, KnxConverterSceneControl>(converter);
}

}  // namespace Knxconv

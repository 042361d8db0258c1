#include "RowCache.h"

#include "Conversion.h"

namespace Knxconv {

const Nelmo::DptValueEntry& RowCache::Row(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt) {
  constexpr unsigned SubBits = 16;
  const std::uint32_t key = (static_cast<std::uint32_t>(dpt.mainNumber) << SubBits) | dpt.subNumber;
  auto found = m_rows.find(key);
  if (found == m_rows.end()) {
    found = m_rows.emplace(key, &QuietEntry(converter, dpt)).first;
  }
  return *found->second;
}

}  // namespace Knxconv

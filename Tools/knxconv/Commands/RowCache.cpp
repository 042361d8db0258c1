#include "RowCache.h"

#include "CatalogueInput.h"
#include "Conversion.h"

namespace Knxconv {

CachedRow LookUpRow(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt) {
  const Nelmo::DptValueEntry& entry = QuietEntry(converter, dpt);
  return {&entry, ScaleOf(entry.GetConverter()), SubtypeOf(dpt)};
}

const CachedRow& RowCache::Find(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt) {
  constexpr unsigned SubBits = 16;
  const std::uint32_t key = (static_cast<std::uint32_t>(dpt.mainNumber) << SubBits) | dpt.subNumber;
  auto found = m_rows.find(key);
  if (found == m_rows.end()) {
    if (m_rows.size() >= Capacity) {
      m_rows.clear();
    }
    found = m_rows.emplace(key, LookUpRow(converter, dpt)).first;
  }
  return found->second;
}

}  // namespace Knxconv

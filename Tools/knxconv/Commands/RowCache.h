#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "DptCatalogue.h"
#include "KnxValueConverterApi.h"
#include "NumberDisplay.h"

namespace Knxconv {

// The library's row of a DPT (QuietEntry), its number converter's scale
// (ScaleOf) and the DPT's sub-type in the catalogue (SubtypeOf).
struct CachedRow {
  const Nelmo::DptValueEntry* entry = nullptr;
  NumberScale scale;
  const Nelmo::DptSubtype* subtype = nullptr;
};

// dpt's row, looked up now.
CachedRow LookUpRow(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt);

// Rows looked up once per DPT: a trace shows the row's sub-type, number
// display and catalogue entry for each telegram, and its telegrams name few
// DPTs. Holds at most Capacity rows, so that a trace of ever new sub numbers
// keeps its memory constant. One cache serves one converter, whose table
// does not change while it is used.
class RowCache {
 public:
  static constexpr std::size_t Capacity = 256;

  const CachedRow& Find(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt);
  // How many rows it holds now.
  std::size_t Size() const { return m_rows.size(); }

 private:
  // Main and sub number: the bit size plays no part in the lookup.
  std::unordered_map<std::uint32_t, CachedRow> m_rows;
};

}  // namespace Knxconv

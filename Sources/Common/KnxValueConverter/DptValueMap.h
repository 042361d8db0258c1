#pragma once

#include <cstdint>
#include <map>

#include "DptRowIndex.h"
#include "DptValueEntry.h"
#include "NelmoExport.h"
#include "UloPlatform.h"

namespace Nelmo {

class KnxValueConverter;
struct ConverterCalls;

// The DPT table: main number to sub number to row. A row with sub number 0
// stands for its whole main type and answers sub numbers without a row.
class NELMO_EXPORT DptValueMap {
 public:
  using SubNumberMap = std::map<std::uint16_t, DptValueEntry>;
  using MainNumberMap = std::map<std::uint16_t, SubNumberMap>;

  DptValueMap() = default;
  DptValueMap(DptValueMap&&) = default;
  DptValueMap& operator=(DptValueMap&&) = default;
  DptValueMap(const DptValueMap&) = delete;
  DptValueMap& operator=(const DptValueMap&) = delete;

  // First registration wins: a DPT that is already there keeps its row, the
  // new entry (and its converter) is dropped, and the result is true.
  bool AddEntry(const KNXDPT& dpt, DptValueEntry&& entry);
  // The row of dpt's main and sub number, else the main.x row, else the
  // empty entry. The bit size plays no part.
  const DptValueEntry& GetEntry(const KNXDPT& dpt) const;
  // The process-wide entry that stands for "no row" (value type IVT_ANY).
  static DptValueEntry& GetEmptyEntry();
  // GetEntry's answer with the bit size the DPT's format demands, straight
  // from the index where it can answer; the conversions start here.
  DptRowIndex::Row FindRow(const KNXDPT& dpt) const {
    const DptRowIndex::Row row = m_index.Find(dpt);
    return row.entry != nullptr ? row : FindRowInTree(dpt);
  }
  // The place that decides whether dpt converts directly (DptRowIndex::Direct).
  const DptRowIndex::Row& FindDirectRow(const KNXDPT& dpt) const { return m_index.Direct(dpt); }
  bool Clear();
  // Every row, ordered by main and sub number, for listing the table.
  const MainNumberMap& GetEntries() const { return m_map; }

 private:
  friend class KnxValueConverter;

  // As AddEntry; calls, if not null, is how to reach the entry's converter.
  bool AddEntry(const KNXDPT& dpt, DptValueEntry&& entry, const ConverterCalls* calls);
  DptRowIndex::Row FindRowInTree(const KNXDPT& dpt) const;

  MainNumberMap m_map;
  DptRowIndex m_index;
};

}  // namespace Nelmo

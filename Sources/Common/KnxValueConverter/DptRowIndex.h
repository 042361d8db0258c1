#pragma once

#include <cstdint>
#include <vector>

#include "DptValueEntry.h"
#include "UloPlatform.h"

namespace Nelmo {

// A flat index over the rows of the DPT table: main number, then sub number,
// to the row and the bit size its format demands, so that a conversion finds
// its row with two array reads instead of two tree walks. It answers only the
// common cases and says so; everything else (no row, the empty entry, a sub
// number too large to index densely) is left to the table itself.
class DptRowIndex {
 public:
  struct Row {
    const DptValueEntry* entry = nullptr;
    std::uint32_t expectedBitSize = 0;
  };

  // Sub numbers from this one on are not indexed; their rows are found in
  // the table.
  static constexpr std::uint16_t DenseSubNumbers = 1024;

  // Records a row the table has just taken; the entry must stay where it is.
  void Add(const KNXDPT& dpt, const DptValueEntry& entry);
  void Clear() { m_mains.clear(); }

  // The row of dpt, or its main.x row where dpt's sub number has none; an
  // empty Row where the index cannot tell.
  Row Find(const KNXDPT& dpt) const {
    if (dpt.mainNumber >= m_mains.size()) {
      return Row();
    }
    const std::vector<Row>& rows = m_mains[dpt.mainNumber];
    if (dpt.subNumber < rows.size() && rows[dpt.subNumber].entry != nullptr) {
      return rows[dpt.subNumber];
    }
    if (dpt.subNumber != 0 && dpt.subNumber < DenseSubNumbers && !rows.empty()) {
      return rows.front();
    }
    return Row();
  }

 private:
  std::vector<std::vector<Row>> m_mains;
};

}  // namespace Nelmo

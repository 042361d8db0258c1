#pragma once

#include <cstdint>
#include <vector>

#include "DptValueEntry.h"
#include "UloPlatform.h"

namespace Nelmo {

// A flat index over the rows of the DPT table: main number, then sub number,
// to the row and the bit size its format demands, so that a conversion finds
// its row with a few array reads instead of two tree walks. It answers only
// the common cases and says so; everything else (no row, the empty entry, a
// sub number too large to index densely) is left to the table itself.
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
  void Clear() {
    m_mains.clear();
    m_rows.clear();
  }

  // The row of dpt, or its main.x row where dpt's sub number has none; an
  // empty Row where the index cannot tell.
  Row Find(const KNXDPT& dpt) const {
    if (dpt.mainNumber >= m_mains.size()) {
      return Row();
    }
    const Span span = m_mains[dpt.mainNumber];
    if (dpt.subNumber < span.count && m_rows[span.first + dpt.subNumber].entry != nullptr) {
      return m_rows[span.first + dpt.subNumber];
    }
    if (dpt.subNumber != 0 && dpt.subNumber < DenseSubNumbers && span.count != 0) {
      return m_rows[span.first];
    }
    return Row();
  }

 private:
  // Where a main number's rows lie in m_rows: sub number s at first + s.
  // Room for capacity rows is kept, so that most additions stay in place.
  struct Span {
    std::uint32_t first = 0;
    std::uint16_t count = 0;
    std::uint16_t capacity = 0;
  };

  void Widen(Span& span, std::uint16_t count);

  // All rows in one array (no vector per main number): a lookup reads no
  // more than the main number's span and the row.
  std::vector<Span> m_mains;
  std::vector<Row> m_rows;
};

}  // namespace Nelmo

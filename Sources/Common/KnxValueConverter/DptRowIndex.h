#pragma once

#include <cstdint>
#include <vector>

#include "DptValueEntry.h"
#include "UloPlatform.h"

namespace Nelmo {

struct ConverterCalls;

// A flat index over the rows of the DPT table: main number, then sub number,
// to the row, the bit size its format demands and how to call its converter,
// so that a conversion finds its row with a few array reads instead of two
// tree walks. It answers only the common cases and says so; everything else
// (no row, the empty entry, a sub number too large to index densely) is left
// to the table itself.
class DptRowIndex {
 public:
  struct Row {
    const DptValueEntry* entry = nullptr;
    std::uint32_t expectedBitSize = 0;
    // Copied from the entry, so that a conversion reads one place.
    UloValueType valueType = IVT_ANY;
    KnxConverter* converter = nullptr;
    // Set for a row of the standard table, whose converter's class is known.
    const ConverterCalls* calls = nullptr;
  };

  // Sub numbers from this one on are not indexed; their rows are found in
  // the table.
  static constexpr std::uint16_t DenseSubNumbers = 1024;

  // Records a row the table has just taken; the entry must stay where it
  // is, and so must calls, which may be null.
  void Add(const KNXDPT& dpt, const DptValueEntry& entry, const ConverterCalls* calls);
  void Clear() {
    m_mains.clear();
    m_rows.clear();
  }

  // The row of dpt, or its main.x row where dpt's sub number has none; an
  // empty Row where the index cannot tell.
  Row Find(const KNXDPT& dpt) const {
    const Row* row = Slot(dpt);
    if (row == nullptr || row->entry == nullptr) {
      row = MainRow(dpt);
    }
    return row != nullptr ? *row : Row();
  }

  // As Find, where the answer is a standard row; else null. Every
  // conversion asks this first, so the common case reads two places.
  const Row* FindStandard(const KNXDPT& dpt) const {
    const Row* row = Slot(dpt);
    if (row != nullptr && row->calls != nullptr) {
      return row;
    }
    if (row != nullptr && row->entry != nullptr) {
      return nullptr;
    }
    row = MainRow(dpt);
    return row != nullptr && row->calls != nullptr ? row : nullptr;
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

  // The place of dpt's own row, possibly empty; null where there is none.
  const Row* Slot(const KNXDPT& dpt) const {
    if (dpt.mainNumber >= m_mains.size()) {
      return nullptr;
    }
    const Span& span = m_mains[dpt.mainNumber];
    return dpt.subNumber < span.count ? &m_rows[span.first + dpt.subNumber] : nullptr;
  }

  // The main.x row that answers for dpt's sub number, possibly empty.
  const Row* MainRow(const KNXDPT& dpt) const {
    if (dpt.subNumber == 0 || dpt.subNumber >= DenseSubNumbers || dpt.mainNumber >= m_mains.size()) {
      return nullptr;
    }
    const Span& span = m_mains[dpt.mainNumber];
    return span.count != 0 && m_rows[span.first].entry != nullptr ? &m_rows[span.first] : nullptr;
  }

  // All rows in one array (no vector per main number): a lookup reads no
  // more than the main number's span and the row.
  std::vector<Span> m_mains;
  std::vector<Row> m_rows;
};

}  // namespace Nelmo

#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "DptValueEntry.h"
#include "KnxStack.h"
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
  // Wider than any value type and any bit size, so never equal to one.
  static constexpr std::int64_t NoDirectType = std::numeric_limits<std::int64_t>::min();
  static constexpr std::uint64_t NoDirectBitSize = std::numeric_limits<std::uint64_t>::max();

  // A standard converter's own calls (their failures reported as the facade
  // reports them), compiled beside its class.
  using SendCall = bool (*)(KnxConverter& converter, const KNXDPT& dpt, const ULOVALUE& value,
                            KnxStack::GroupValue& groupValue);
  using ReceiveCall = bool (*)(KnxConverter& converter, const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                               ULOVALUE& value);

  // 64 bytes, so that a row is found with a shift.
  struct alignas(64) Row {
    // Read first by every conversion: a value of directType goes straight to
    // send, a group value of directBitSize bits straight to receive. Set for
    // a row of the standard table, whose converter's class is known, and
    // copied into the empty places of its main type when it is the main.x
    // row; elsewhere they match nothing.
    std::int64_t directType = NoDirectType;
    std::uint64_t directBitSize = NoDirectBitSize;
    SendCall send = nullptr;
    ReceiveCall receive = nullptr;
    KnxConverter* converter = nullptr;
    // Copied from the entry, so that a conversion reads one place.
    UloValueType valueType = IVT_ANY;
    std::uint32_t expectedBitSize = 0;
    // Null for a place without a row of its own.
    const DptValueEntry* entry = nullptr;
  };

  // entry's row as the general path reads it: no direct calls.
  static Row GeneralRow(const KNXDPT& dpt, const DptValueEntry& entry);

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
    const Row& row = Place(dpt);
    if (row.entry != nullptr) {
      return row;
    }
    const Row& main = MainPlace(dpt);
    return main.entry != nullptr ? main : Row();
  }

  // The place that decides whether dpt converts directly: its row, its
  // main.x row's direct calls, or nothing that matches. Every conversion
  // asks this first, so the common case reads two places.
  const Row& Direct(const KNXDPT& dpt) const {
    if (dpt.mainNumber < m_mains.size()) {
      const Span span = m_mains[dpt.mainNumber];
      if (dpt.subNumber < span.count) {
        return m_rows[span.first + dpt.subNumber];
      }
      if (span.count != 0 && dpt.subNumber < DenseSubNumbers) {
        return m_rows[span.first];
      }
    }
    return NothingRow;
  }

 private:
  // Where a main number's rows lie in m_rows: sub number s at first + s.
  // Room for capacity rows is kept, so that most additions stay in place.
  struct Span {
    std::uint32_t first = 0;
    std::uint16_t count = 0;
    std::uint16_t capacity = 0;
  };

  // What a place without a row answers.
  static const Row NothingRow;

  void Widen(Span& span, std::uint16_t count);
  void InheritMainRow(const Span& span, std::uint16_t from);

  // dpt's own place, possibly empty.
  const Row& Place(const KNXDPT& dpt) const {
    if (dpt.mainNumber < m_mains.size()) {
      const Span span = m_mains[dpt.mainNumber];
      if (dpt.subNumber < span.count) {
        return m_rows[span.first + dpt.subNumber];
      }
    }
    return NothingRow;
  }

  // The main.x place that answers for dpt's sub number, possibly empty.
  const Row& MainPlace(const KNXDPT& dpt) const {
    if (dpt.subNumber < DenseSubNumbers && dpt.mainNumber < m_mains.size()) {
      const Span span = m_mains[dpt.mainNumber];
      if (span.count != 0) {
        return m_rows[span.first];
      }
    }
    return NothingRow;
  }

  // All rows in one array (no vector per main number): a lookup reads no
  // more than the main number's span and the row.
  std::vector<Span> m_mains;
  std::vector<Row> m_rows;
};

inline constexpr DptRowIndex::Row DptRowIndex::NothingRow{};

}  // namespace Nelmo

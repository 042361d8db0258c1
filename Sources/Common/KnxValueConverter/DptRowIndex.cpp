#include "DptRowIndex.h"

#include <algorithm>
#include <cstddef>

#include "ConverterCalls.h"
#include "KnxDptFormat.h"

namespace Nelmo {

namespace {

// Values of up to 6 bits travel inside the telegram's control field; the
// general path re-sizes them first.
constexpr std::uint32_t ControlFieldBits = 6;

}  // namespace

DptRowIndex::Row DptRowIndex::GeneralRow(const KNXDPT& dpt, const DptValueEntry& entry) {
  Row row;
  row.converter = entry.GetConverter();
  row.valueType = entry.valueType;
  row.expectedBitSize = static_cast<std::uint32_t>(KnxDptFormat::GetBitSize(dpt));
  row.entry = &entry;
  return row;
}

void DptRowIndex::Widen(Span& span, std::uint16_t count) {
  if (count > span.capacity) {
    // Moved to the end with room to double, so that rows added in order of
    // their sub numbers move only a few times.
    const std::size_t first = m_rows.size();
    const auto capacity = static_cast<std::uint16_t>(
        std::min<std::size_t>(std::max<std::size_t>(count, std::size_t{2} * span.capacity), DenseSubNumbers));
    m_rows.resize(first + capacity);
    std::copy_n(m_rows.begin() + span.first, span.count, m_rows.begin() + static_cast<std::ptrdiff_t>(first));
    std::fill_n(m_rows.begin() + span.first, span.count, Row());
    span.first = static_cast<std::uint32_t>(first);
    span.capacity = capacity;
  }
  span.count = count;
}

// The empty places of a main type, from sub number from on, convert directly
// as its main.x row does.
void DptRowIndex::InheritMainRow(const Span& span, std::uint16_t from) {
  Row inherited = m_rows[span.first];
  inherited.entry = nullptr;
  for (std::uint32_t place = span.first + std::max<std::uint16_t>(from, 1); place < span.first + span.count; ++place) {
    if (m_rows[place].entry == nullptr) {
      m_rows[place] = inherited;
    }
  }
}

void DptRowIndex::Add(const KNXDPT& dpt, const DptValueEntry& entry, const ConverterCalls* calls) {
  if (dpt.subNumber >= DenseSubNumbers) {
    return;
  }
  if (dpt.mainNumber >= m_mains.size()) {
    m_mains.resize(static_cast<std::size_t>(dpt.mainNumber) + 1);
  }
  Span& span = m_mains[dpt.mainNumber];
  const std::uint16_t placesBefore = span.count;
  if (dpt.subNumber >= span.count) {
    Widen(span, static_cast<std::uint16_t>(dpt.subNumber + 1));
  }
  // The size depends on the main number alone, so the main.x row answers
  // for its sub numbers with the same size.
  Row row = GeneralRow(dpt, entry);
  // Main number 0 is completed from the value first, on the general path.
  if (calls != nullptr && dpt.mainNumber != 0) {
    row.directType = static_cast<std::int64_t>(entry.valueType);
    row.directBitSize = row.expectedBitSize != ControlFieldBits ? row.expectedBitSize : NoDirectBitSize;
    row.send = calls->send;
    row.receive = calls->receive;
  }
  m_rows[span.first + dpt.subNumber] = row;
  // A new main.x row reaches every empty place; a sub row only the places
  // it has just opened.
  InheritMainRow(span, dpt.subNumber == 0 ? 1 : placesBefore);
}

}  // namespace Nelmo

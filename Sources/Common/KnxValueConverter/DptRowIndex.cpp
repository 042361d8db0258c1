#include "DptRowIndex.h"

#include <algorithm>
#include <cstddef>

#include "KnxDptFormat.h"

namespace Nelmo {

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

void DptRowIndex::Add(const KNXDPT& dpt, const DptValueEntry& entry, const ConverterCalls* calls) {
  if (dpt.subNumber >= DenseSubNumbers) {
    return;
  }
  if (dpt.mainNumber >= m_mains.size()) {
    m_mains.resize(static_cast<std::size_t>(dpt.mainNumber) + 1);
  }
  Span& span = m_mains[dpt.mainNumber];
  if (dpt.subNumber >= span.count) {
    Widen(span, static_cast<std::uint16_t>(dpt.subNumber + 1));
  }
  // The size depends on the main number alone, so the main.x row answers
  // for its sub numbers with the same size.
  m_rows[span.first + dpt.subNumber] = Row{&entry, static_cast<std::uint32_t>(KnxDptFormat::GetBitSize(dpt)),
                                           entry.valueType, entry.GetConverter(), calls};
}

}  // namespace Nelmo

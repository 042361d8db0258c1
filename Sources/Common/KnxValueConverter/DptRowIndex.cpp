#include "DptRowIndex.h"

#include "KnxDptFormat.h"

namespace Nelmo {

void DptRowIndex::Add(const KNXDPT& dpt, const DptValueEntry& entry) {
  if (dpt.subNumber >= DenseSubNumbers) {
    return;
  }
  if (dpt.mainNumber >= m_mains.size()) {
    m_mains.resize(static_cast<std::size_t>(dpt.mainNumber) + 1);
  }
  std::vector<Row>& rows = m_mains[dpt.mainNumber];
  if (dpt.subNumber >= rows.size()) {
    rows.resize(static_cast<std::size_t>(dpt.subNumber) + 1);
  }
  // The size depends on the main number alone, so the main.x row answers
  // for its sub numbers with the same size.
  rows[dpt.subNumber] = Row{&entry, static_cast<std::uint32_t>(KnxDptFormat::GetBitSize(dpt))};
}

}  // namespace Nelmo

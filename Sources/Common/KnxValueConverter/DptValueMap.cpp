#include "DptValueMap.h"

#include <ostream>
#include <utility>

#include "ConverterLog.h"
#include "KnxConverterDefault.h"

namespace Nelmo {

namespace {

constexpr std::uint16_t GeneralSubNumber = 0;

template <typename Compose>
void LogNoEntry(int line, Compose&& compose) {
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, "GetEntry", line, [&](std::ostream& out) {
    out << "No Entry found for DPT = ";
    compose(out);
  });
}

}  // namespace

bool DptValueMap::AddEntry(const KNXDPT& dpt, DptValueEntry&& entry) {
  return AddEntry(dpt, std::move(entry), nullptr);
}

bool DptValueMap::AddEntry(const KNXDPT& dpt, DptValueEntry&& entry, const ConverterCalls* calls) {
  auto mainNode = m_map.find(dpt.mainNumber);
  if (mainNode == m_map.end()) {
    const auto inserted = m_map.emplace(dpt.mainNumber, SubNumberMap());
    if (!inserted.second) {
      return false;
    }
    mainNode = inserted.first;
  } else if (mainNode->second.count(dpt.subNumber) != 0) {
    return true;
  }
  const auto inserted = mainNode->second.try_emplace(dpt.subNumber, std::move(entry));
  if (inserted.second) {
    m_index.Add(dpt, inserted.first->second, calls);
  }
  return inserted.second;
}

const DptValueEntry& DptValueMap::GetEntry(const KNXDPT& dpt) const {
  const DptRowIndex::Row indexed = m_index.Find(dpt);
  if (indexed.entry != nullptr) {
    return *indexed.entry;
  }
  const auto mainNode = m_map.find(dpt.mainNumber);
  if (mainNode == m_map.end()) {
    LogNoEntry(__LINE__, [&](std::ostream& out) { out << Log::Dpt{dpt}; });
    return GetEmptyEntry();
  }
  const SubNumberMap& rows = mainNode->second;
  const auto row = rows.find(dpt.subNumber);
  if (row != rows.end()) {
    return row->second;
  }
  if (dpt.subNumber == GeneralSubNumber) {
    LogNoEntry(__LINE__, [&](std::ostream& out) { out << Log::Dpt{dpt}; });
    return GetEmptyEntry();
  }
  if (!rows.empty() && rows.begin()->first == GeneralSubNumber) {
    return rows.begin()->second;
  }
  LogNoEntry(__LINE__, [&](std::ostream& out) { out << static_cast<unsigned>(dpt.mainNumber) << ".x"; });
  return GetEmptyEntry();
}

DptRowIndex::Row DptValueMap::FindRowInTree(const KNXDPT& dpt) const {
  return DptRowIndex::GeneralRow(dpt, GetEntry(dpt));
}

DptValueEntry& DptValueMap::GetEmptyEntry() {
  static DptValueEntry empty(KNXDPT(), IVT_ANY, UloDP::IVST_NONE, std::make_unique<KnxConverterDefault>());
  return empty;
}

bool DptValueMap::Clear() {
  m_index.Clear();
  m_map.clear();
  return true;
}

}  // namespace Nelmo

#include "DptCatalogue.h"

#include <algorithm>

#include "CatalogueText.h"
#include "DptCatalogueRows.h"

namespace Nelmo {

using DptCatalogueRows::RowCount;
using DptCatalogueRows::Rows;

const DptSubtype* DptCatalogue::begin() {
  return Rows;
}

const DptSubtype* DptCatalogue::end() {
  return Rows + RowCount;
}

std::size_t DptCatalogue::Size() {
  return RowCount;
}

const DptSubtype* DptCatalogue::Find(std::uint16_t mainNumber, std::uint16_t subNumber) {
  const DptSubtype* found =
      std::lower_bound(begin(), end(), DptId{mainNumber, subNumber, true}, [](const DptSubtype& row, const DptId& id) {
        return row.mainNumber < id.mainNumber || (row.mainNumber == id.mainNumber && row.subNumber < id.subNumber);
      });
  if (found == end() || found->mainNumber != mainNumber || found->subNumber != subNumber) {
    return nullptr;
  }
  return found;
}

const DptSubtype* DptCatalogue::FindByName(std::string_view name) {
  const DptSubtype* found = std::find_if(
      begin(), end(), [name](const DptSubtype& row) { return CatalogueText::EqualIgnoringCase(row.name, name); });
  return found == end() ? nullptr : found;
}

const char* DptCatalogue::ValueName(const DptSubtype& subtype, std::uint32_t value) {
  const DptValueName* first = subtype.valueNames;
  const DptValueName* last = first + subtype.valueNameCount;
  const DptValueName* found =
      std::find_if(first, last, [value](const DptValueName& row) { return row.value == value; });
  return found == last ? nullptr : found->name;
}

std::optional<std::uint32_t> DptCatalogue::ValueOfName(const DptSubtype& subtype, std::string_view name) {
  const DptValueName* first = subtype.valueNames;
  const DptValueName* last = first + subtype.valueNameCount;
  const DptValueName* found = std::find_if(
      first, last, [name](const DptValueName& row) { return CatalogueText::EqualIgnoringCase(row.name, name); });
  if (found == last) {
    return std::nullopt;
  }
  return found->value;
}

}  // namespace Nelmo

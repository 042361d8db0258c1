#include "EtsXmlReader.h"

#include <pugixml.hpp>

#include <algorithm>

#include "BusAddress.h"
#include "EtsDptText.h"
#include "InputError.h"

namespace Knxconv {

namespace {

std::size_t LineAt(const std::string& text, std::ptrdiff_t offset) {
  const auto end = text.begin() + std::clamp<std::ptrdiff_t>(offset, 0, static_cast<std::ptrdiff_t>(text.size()));
  return 1 + static_cast<std::size_t>(std::count(text.begin(), end, '\n'));
}

void AddGroupAddress(const pugi::xml_node& node, AddressBook& book) {
  const pugi::xml_attribute address = node.attribute("Address");
  if (!address) {
    throw InputError("GroupAddress without an Address");
  }
  AddressEntry entry;
  entry.name = node.attribute("Name").value();
  entry.dpt = ParseEtsDpt(node.attribute("DPTs").value());
  book.Add(ParseGroupAddress(address.value()), std::move(entry));
}

}  // namespace

AddressBook ReadEtsXml(const std::string& text, const std::string& file) {
  pugi::xml_document document;
  const pugi::xml_parse_result parsed = document.load_buffer(text.data(), text.size());
  if (!parsed) {
    throw AddressFileError(file, LineAt(text, parsed.offset), std::string("malformed XML: ") + parsed.description());
  }
  AddressBook book;
  for (const pugi::xpath_node& found : document.select_nodes("//*[local-name()='GroupAddress']")) {
    try {
      AddGroupAddress(found.node(), book);
    } catch (const InputError& error) {
      throw AddressFileError(file, LineAt(text, found.node().offset_debug()), error.what());
    }
  }
  return book;
}

}  // namespace Knxconv

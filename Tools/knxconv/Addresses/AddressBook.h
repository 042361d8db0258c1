#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include "UloPlatform.h"

namespace Knxconv {

// What an installation's project says about one group address.
struct AddressEntry {
  std::string name;
  std::optional<KNXDPT> dpt;
};

class AddressBook {
 public:
  void Add(std::uint16_t address, AddressEntry entry) { m_entries[address] = std::move(entry); }
  // Null when the address is not in the book.
  const AddressEntry* Find(std::uint16_t address) const {
    const auto found = m_entries.find(address);
    return found == m_entries.end() ? nullptr : &found->second;
  }
  std::size_t Size() const { return m_entries.size(); }

 private:
  std::map<std::uint16_t, AddressEntry> m_entries;
};

// A group-address file that cannot be read; the text names the file and
// the line.
class AddressFileError : public std::runtime_error {
 public:
  AddressFileError(const std::string& file, std::size_t line, const std::string& reason)
      : std::runtime_error(file + ", line " + std::to_string(line) + ": " + reason) {}
};

// Reads a group-address export of the engineering tool, XML or CSV (told
// apart by the content). Throws AddressFileError.
AddressBook ReadAddressFile(const std::string& path);

}  // namespace Knxconv

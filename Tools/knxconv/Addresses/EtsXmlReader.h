#pragma once

#include <string>

#include "AddressBook.h"

namespace Knxconv {

// The XML export: GroupAddress elements (Name, Address as "1/2/3" or the
// 16-bit number, DPTs) at any depth of nested GroupRange elements. Throws
// AddressFileError naming file.
AddressBook ReadEtsXml(const std::string& text, const std::string& file);

}  // namespace Knxconv

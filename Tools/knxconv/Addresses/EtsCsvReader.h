#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "AddressBook.h"

namespace Knxconv {

// One line of a CSV export split into its fields: fields may be quoted
// ("" inside quotes is one quote). Throws InputError for an unterminated
// quote.
std::vector<std::string> SplitCsvLine(std::string_view line, char separator);

// The CSV export, comma, semicolon or tab separated: either with the
// columns "Group name" and "Address" or with "Main", "Middle" and "Sub"
// (the name in the column of the address's level) and "Address"; the
// datapoint type in "DatapointType". Rows of ranges ("1/-/-") are skipped.
// Throws AddressFileError naming file.
AddressBook ReadEtsCsv(const std::string& text, const std::string& file);

}  // namespace Knxconv

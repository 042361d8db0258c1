#include <gtest/gtest.h>

#include <string>

#include "AddressBook.h"
#include "BusAddress.h"
#include "DptText.h"
#include "RowName.h"

namespace {

using namespace Knxconv;

std::string Sample(const std::string& file) {
  return std::string(KNXCONV_ADDRESS_SAMPLES) + "/" + file;
}

// What the book says of an address: "name | dpt", "-" for no DPT, "absent".
std::string Lookup(const AddressBook& book, const std::string& address) {
  const AddressEntry* entry = book.Find(ParseGroupAddress(address));
  if (entry == nullptr) {
    return "absent";
  }
  return entry->name + " | " + (entry->dpt ? FormatDpt(*entry->dpt) : "-");
}

struct EntryRow {
  std::string name;
  std::string file;
  std::string address;
  std::string expected;
};

class AddressFileEntries : public testing::TestWithParam<EntryRow> {};

TEST_P(AddressFileEntries, GiveNameAndDpt) {
  const EntryRow& row = GetParam();
  EXPECT_EQ(Lookup(ReadAddressFile(Sample(row.file)), row.address), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Xml, AddressFileEntries,
    testing::Values(EntryRow{"xml_nested", "nested.xml", "1/2/3", "Kitchen temperature | 9.001"},
                    EntryRow{"xml_other_attributes", "nested.xml", "1/2/4", "Kitchen light | 1.001"},
                    EntryRow{"xml_number_address", "nested.xml", "1/2/5", "Kitchen dimmer | 5.000"},
                    EntryRow{"xml_no_dpt", "nested.xml", "1/2/6", "Kitchen scene | -"},
                    EntryRow{"xml_first_of_several_dpts", "nested.xml", "2/0/1", "Wind & rain | 1.005"},
                    EntryRow{"xml_utf8", "nested.xml", "2/0/2", "Außentemperatur | 9.001"},
                    EntryRow{"xml_absent", "nested.xml", "1/2/7", "absent"}),
    TestSupport::RowName());

INSTANTIATE_TEST_SUITE_P(
    Csv, AddressFileEntries,
    testing::Values(EntryRow{"csv_bom_crlf", "one-column.csv", "1/2/3", "Kitchen temperature | 9.001"},
                    EntryRow{"csv_separator_quoted", "one-column.csv", "1/2/4", "Kitchen light | 1.001"},
                    EntryRow{"csv_main_type", "one-column.csv", "1/2/5", "Kitchen dimmer | 5.000"},
                    EntryRow{"csv_no_dpt", "one-column.csv", "1/2/6", "Kitchen scene | -"},
                    EntryRow{"csv_doubled_quotes", "one-column.csv", "2/0/1", "Wind \"and\" rain | 1.005"},
                    EntryRow{"csv_utf8", "one-column.csv", "2/0/2", "Außentemperatur | 9.001"},
                    EntryRow{"semicolon_sub_name", "three-level-semicolon.csv", "1/2/3", "Kitchen temperature | 9.001"},
                    EntryRow{"semicolon_no_dpt", "three-level-semicolon.csv", "1/2/6", "Kitchen scene | -"},
                    EntryRow{"semicolon_doubled_quotes", "three-level-semicolon.csv", "2/0/1",
                             "Wind \"and\" rain | 1.005"},
                    EntryRow{"semicolon_range_skipped", "three-level-semicolon.csv", "1/0/0", "absent"},
                    EntryRow{"tab_sub_name", "three-level-tab.csv", "1/2/3", "Kitchen temperature | 9.001"},
                    EntryRow{"tab_main_type", "three-level-tab.csv", "1/2/5", "Kitchen dimmer | 5.000"},
                    EntryRow{"tab_utf8", "three-level-tab.csv", "2/0/2", "Außentemperatur | 9.001"}),
    TestSupport::RowName());

struct BadRow {
  std::string name;
  std::string file;
  std::string message;  // after "<path>, "
};

class AddressFileRefused : public testing::TestWithParam<BadRow> {};

TEST_P(AddressFileRefused, NamesFileLineAndReason) {
  const BadRow& row = GetParam();
  try {
    ReadAddressFile(Sample(row.file));
    FAIL() << row.file << " was read";
  } catch (const AddressFileError& error) {
    EXPECT_EQ(std::string(error.what()), Sample(row.file) + ", " + row.message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AddressFileRefused,
    testing::Values(
        BadRow{"xml_syntax", "bad-xml-syntax.xml", "line 5: malformed XML: Start-end tags mismatch"},
        BadRow{"xml_address", "bad-xml-address.xml", "line 5: not a group address: '1/9/4' (write it as 1/2/3)"},
        BadRow{"xml_no_address", "bad-xml-no-address.xml", "line 3: GroupAddress without an Address"},
        BadRow{"xml_dpt", "bad-xml-dpt.xml", "line 4: not a datapoint type: 'DPST-nine-1'"},
        BadRow{"csv_fields", "bad-csv-fields.csv", "line 3: 2 fields instead of 3"},
        BadRow{"csv_quote", "bad-csv-quote.csv", "line 3: a quoted field is not closed"},
        BadRow{"csv_header", "bad-csv-header.csv", "line 1: the header has no \"Address\" column"},
        BadRow{"csv_address", "bad-csv-address.csv", "line 4: not a group address: '1/2/x' (write it as 1/2/3)"},
        BadRow{"empty", "bad-empty.csv", "line 0: the file is empty"},
        BadRow{"missing", "no-such-file.xml", "line 0: cannot read the file"}),
    TestSupport::RowName());

}  // namespace

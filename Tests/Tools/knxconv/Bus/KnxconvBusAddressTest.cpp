#include <gtest/gtest.h>

#include <string>

#include "BusAddress.h"
#include "InputError.h"
#include "RowName.h"

namespace {

using namespace Knxconv;

struct AddressRow {
  std::string name;
  std::string text;
  std::uint16_t address;
  std::string threeLevel;
};

class GroupAddressText : public testing::TestWithParam<AddressRow> {};

TEST_P(GroupAddressText, ReadsEachFormAndWritesThreeLevels) {
  const AddressRow& row = GetParam();
  EXPECT_EQ(ParseGroupAddress(row.text), row.address);
  EXPECT_EQ(FormatGroupAddress(row.address), row.threeLevel);
}

INSTANTIATE_TEST_SUITE_P(Rows, GroupAddressText,
                         testing::Values(AddressRow{"three_levels", "1/2/3", 0x0A03, "1/2/3"},
                                         AddressRow{"zero", "0/0/0", 0x0000, "0/0/0"},
                                         AddressRow{"highest", "31/7/255", 0xFFFF, "31/7/255"},
                                         AddressRow{"two_levels", "1/515", 0x0A03, "1/2/3"},
                                         AddressRow{"number", "2563", 0x0A03, "1/2/3"},
                                         AddressRow{"number_highest", "65535", 0xFFFF, "31/7/255"},
                                         AddressRow{"blanks", " 6/0/11 ", 0x300B, "6/0/11"}),
                         TestSupport::RowName());

struct BadRow {
  std::string name;
  std::string text;
};

class GroupAddressRefused : public testing::TestWithParam<BadRow> {};

TEST_P(GroupAddressRefused, SaysWhatIsWrong) {
  const BadRow& row = GetParam();
  try {
    ParseGroupAddress(row.text);
    FAIL() << row.text << " was read";
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()), "not a group address: '" + row.text + "' (write it as 1/2/3)");
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, GroupAddressRefused,
                         testing::Values(BadRow{"middle_too_big", "3/8/1"}, BadRow{"main_too_big", "32/0/0"},
                                         BadRow{"sub_too_big", "1/2/256"}, BadRow{"two_level_sub", "1/2048"},
                                         BadRow{"number_too_big", "65536"}, BadRow{"four_levels", "1/2/3/4"},
                                         BadRow{"empty_level", "1//3"}, BadRow{"range", "1/-/-"},
                                         BadRow{"individual", "1.1.5"}, BadRow{"empty", ""}),
                         TestSupport::RowName());

struct IndividualRow {
  std::string name;
  std::uint16_t address;
  std::string text;
};

class IndividualAddressText : public testing::TestWithParam<IndividualRow> {};

TEST_P(IndividualAddressText, WritesAreaLineDevice) {
  EXPECT_EQ(FormatIndividualAddress(GetParam().address), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, IndividualAddressText,
                         testing::Values(IndividualRow{"device", 0x1105, "1.1.5"},
                                         IndividualRow{"daemon_client", 0x0002, "0.0.2"},
                                         IndividualRow{"highest", 0xFFFF, "15.15.255"}),
                         TestSupport::RowName());

}  // namespace

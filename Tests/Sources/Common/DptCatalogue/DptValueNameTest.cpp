#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

#include "CountedAllocations.h"
#include "DptCatalogue.h"

namespace {

using Nelmo::DptCatalogue;
using Nelmo::DptSubtype;

struct NamedValue {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  std::uint32_t value;
  const char* name;  // nullptr: the value has no name
};

const NamedValue NamedValues[] = {
    {1, 1, 0, "off"},
    {1, 1, 1, "on"},
    {1, 8, 0, "up"},
    {1, 8, 1, "down"},
    {1, 8, 2, nullptr},
    {1, 9, 0, "open"},
    {1, 9, 1, "close"},
    {1, 100, 0, "cooling"},
    {1, 100, 1, "heating"},
    {20, 102, 0, "Auto"},
    {20, 102, 1, "Comfort"},
    {20, 102, 2, "Standby"},
    {20, 102, 3, "Economy"},
    {20, 102, 4, "Building Protection"},
    {20, 102, 5, nullptr},
    {20, 1004, 5, "KNX IP"},
    {20, 1004, 3, nullptr},
    {23, 1, 3, "on/off"},
    {20, 609, 2, "trailing edge (resistive or capacitive load)"},
    {20, 609, 8, "LED, trailing"},
    {20, 609, 9, nullptr},
    {20, 610, 4, "calibration pending, waiting on trigger"},
    {9, 1, 0, nullptr},
};

TEST(DptValueName, NamesTheValuesOfBooleansAndEnumerations) {
  for (const NamedValue& row : NamedValues) {
    const DptSubtype* entry = DptCatalogue::Find(row.mainNumber, row.subNumber);
    ASSERT_NE(entry, nullptr) << row.mainNumber << "." << row.subNumber;
    const char* name = DptCatalogue::ValueName(*entry, row.value);
    if (row.name == nullptr) {
      EXPECT_EQ(name, nullptr) << entry->name << " " << row.value;
    } else {
      EXPECT_STREQ(name, row.name) << entry->name << " " << row.value;
    }
  }
}

struct ValueOfName {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* name;
  std::optional<std::uint32_t> value;
};

const ValueOfName ValuesOfNames[] = {
    {1, 8, "up", 0},
    {1, 8, "DOWN", 1},
    {1, 8, "Down ", std::nullopt},
    {1, 9, "open", 0},
    {1, 9, "Close", 1},
    {1, 9, "closed", std::nullopt},
    {20, 102, "Auto", 0},
    {20, 102, "Comfort", 1},
    {20, 102, "Standby", 2},
    {20, 102, "Economy", 3},
    {20, 102, "Building Protection", 4},
    {20, 102, "building protection", 4},
    {20, 102, "protection", std::nullopt},
    {20, 102, "", std::nullopt},
    {9, 1, "on", std::nullopt},
};

TEST(DptValueName, FindsTheValueOfANameIgnoringCase) {
  for (const ValueOfName& row : ValuesOfNames) {
    const DptSubtype* entry = DptCatalogue::Find(row.mainNumber, row.subNumber);
    ASSERT_NE(entry, nullptr) << row.mainNumber << "." << row.subNumber;
    EXPECT_EQ(DptCatalogue::ValueOfName(*entry, row.name), row.value) << entry->name << " '" << row.name << "'";
  }
}

TEST(DptValueName, EveryBooleanNamesBothValues) {
  for (const DptSubtype& entry : DptCatalogue::All()) {
    if (entry.mainNumber == 1) {
      EXPECT_NE(DptCatalogue::ValueName(entry, 0), nullptr) << entry.name;
      EXPECT_NE(DptCatalogue::ValueName(entry, 1), nullptr) << entry.name;
    }
  }
}

TEST(DptValueName, EveryNamedValueLiesInTheRangeAndReadsBack) {
  for (const DptSubtype& entry : DptCatalogue::All()) {
    for (std::size_t i = 0; i < entry.valueNameCount; ++i) {
      const Nelmo::DptValueName& named = entry.valueNames[i];
      EXPECT_GE(named.value, entry.minimum) << entry.name;
      EXPECT_LE(named.value, entry.maximum) << entry.name;
      if (i > 0) {
        EXPECT_LT(entry.valueNames[i - 1].value, named.value) << entry.name;
      }
      // Names that stand twice (1.017 "trigger") read back as the first.
      const std::optional<std::uint32_t> value = DptCatalogue::ValueOfName(entry, named.name);
      ASSERT_TRUE(value.has_value()) << entry.name << " " << named.name;
      EXPECT_STREQ(DptCatalogue::ValueName(entry, *value), named.name) << entry.name;
    }
  }
}

TEST(DptValueName, AllocatesNothing) {
  for (const ValueOfName& row : ValuesOfNames) {
    const DptSubtype* entry = DptCatalogue::Find(row.mainNumber, row.subNumber);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(CountedAllocations::During([entry, &row] { (void)DptCatalogue::ValueOfName(*entry, row.name); }), 0);
    EXPECT_EQ(CountedAllocations::During([entry] { (void)DptCatalogue::ValueName(*entry, 1); }), 0);
  }
}

}  // namespace

#include <gtest/gtest.h>

#include <cstdint>

#include "DptCatalogue.h"
#include "KnxDptFormat.h"

namespace {

using Nelmo::DptCatalogue;
using Nelmo::DptSubtype;
using Nelmo::KnxDptFormat;

struct SizeDifference {
  std::uint16_t mainNumber;
  std::uint16_t catalogueBits;  // the standard's format
  std::int32_t formatBits;      // what the converters expect on the bus
};

// Where the library's format table, which the converters follow, parts from
// the standard's format; each difference is named so that neither side can
// change unnoticed.
const SizeDifference SizeDifferences[] = {
    {23, 2, 8},  // N2, carried in one octet by the converters
    {24, DptCatalogue::VariableBitSize, KnxDptFormat::VariableLength},
    {28, DptCatalogue::VariableBitSize, KnxDptFormat::VariableLength},
    {200, 16, 9},  // B1Z8: the table counts the used bits
    {249, 48, 32},
};

const SizeDifference* DifferenceOf(std::uint16_t mainNumber) {
  for (const SizeDifference& row : SizeDifferences) {
    if (row.mainNumber == mainNumber) {
      return &row;
    }
  }
  return nullptr;
}

TEST(DptFormatSize, EveryEntryHasTheSizeOfTheFormatTable) {
  for (const DptSubtype& entry : DptCatalogue::All()) {
    const KNXDPT dpt{0, entry.mainNumber, entry.subNumber};
    const std::int32_t formatBits = KnxDptFormat::GetBitSize(dpt);
    if (formatBits == 0) {
      continue;  // a main number the format table does not know
    }
    if (const SizeDifference* difference = DifferenceOf(entry.mainNumber)) {
      EXPECT_EQ(entry.bitSize, difference->catalogueBits) << entry.name;
      EXPECT_EQ(formatBits, difference->formatBits) << entry.name;
    } else {
      EXPECT_EQ(entry.bitSize, formatBits) << entry.name;
    }
  }
}

TEST(DptFormatSize, EveryDifferenceConcernsACatalogueEntry) {
  for (const SizeDifference& row : SizeDifferences) {
    bool found = false;
    for (const DptSubtype& entry : DptCatalogue::All()) {
      found = found || entry.mainNumber == row.mainNumber;
    }
    EXPECT_TRUE(found) << "main " << row.mainNumber;
  }
}

TEST(DptFormatSize, MainNumbersUnknownToTheFormatTableAreFew) {
  std::size_t unknown = 0;
  for (const DptSubtype& entry : DptCatalogue::All()) {
    if (KnxDptFormat::GetBitSize(KNXDPT{0, entry.mainNumber, entry.subNumber}) == 0) {
      ++unknown;
      EXPECT_GT(entry.mainNumber, 254) << entry.name;
    }
  }
  EXPECT_EQ(unknown, 3u);
}

}  // namespace

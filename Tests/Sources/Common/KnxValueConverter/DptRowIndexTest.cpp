#include <gtest/gtest.h>

#include "KnxConverterFloat.h"
#include "KnxValueConverter.h"

// Which place of the row index a conversion reads first, and whether that
// place sends it straight to a standard converter: a row's own place, the
// empty places and the sub numbers beyond the last row of a main type (its
// main.x row's calls), and the places that convert on the general path.

namespace {

using Nelmo::DptRowIndex;
using Nelmo::KnxValueConverter;

struct Place {
  const char* name;
  KNXDPT dpt;
  // The DPT whose row's direct calls the place carries; null: none.
  const KNXDPT* callsOf;
};

const KNXDPT MainRow9{16, 9, 0};
const KNXDPT Row9001{16, 9, 1};
const KNXDPT Row19x{64, 19, 0};

const Place StandardPlaces[] = {
    {"9.001, a row of its own", Row9001, &Row9001},
    {"9.x, the main row itself", MainRow9, &MainRow9},
    {"9.002, an empty place between rows", {16, 9, 2}, &MainRow9},
    {"9.500, beyond the last row", {16, 9, 500}, &MainRow9},
    {"9.1023, the last indexed sub number", {16, 9, 1023}, &MainRow9},
    {"9.1024, not indexed: the table answers", {16, 9, 1024}, nullptr},
    {"19.7, a main type of one row", {64, 19, 7}, &Row19x},
    {"99.1, a main number without rows", {8, 99, 1}, nullptr},
    {"0.0, completed from the value first", {0, 0, 0}, nullptr},
};

void ExpectSameCalls(const DptRowIndex::Row& place, const DptRowIndex::Row& row) {
  EXPECT_EQ(place.directType, row.directType);
  EXPECT_EQ(place.directBitSize, row.directBitSize);
  EXPECT_EQ(place.send, row.send);
  EXPECT_EQ(place.receive, row.receive);
  EXPECT_EQ(place.converter, row.converter);
}

void ExpectNoCalls(const DptRowIndex::Row& place) {
  EXPECT_EQ(place.directType, DptRowIndex::NoDirectType);
  EXPECT_EQ(place.directBitSize, DptRowIndex::NoDirectBitSize);
}

TEST(DptRowIndex, StandardPlacesCarryTheirRowsCalls) {
  const KnxValueConverter facade;
  const Nelmo::DptValueMap& map = facade.GetDptValueMap();
  for (const Place& expected : StandardPlaces) {
    SCOPED_TRACE(expected.name);
    const DptRowIndex::Row& place = map.FindDirectRow(expected.dpt);
    if (expected.callsOf != nullptr) {
      ExpectSameCalls(place, map.FindDirectRow(*expected.callsOf));
    } else {
      ExpectNoCalls(place);
    }
  }
}

TEST(DptRowIndex, AStandardRowsCallsMatchItsTypeAndFormatSize) {
  const KnxValueConverter facade;
  const DptRowIndex::Row& row = facade.GetDptValueMap().FindDirectRow(Row9001);
  EXPECT_EQ(row.directType, static_cast<std::int64_t>(IVT_DOUBLE));
  EXPECT_EQ(row.directBitSize, 16U);
  EXPECT_NE(row.send, nullptr);
  EXPECT_NE(row.receive, nullptr);
  EXPECT_EQ(row.entry, &facade.GetEntry(Row9001));
}

TEST(DptRowIndex, ACallersRowConvertsOnTheGeneralPathAndLeavesItsNeighbours) {
  KnxValueConverter facade;
  const Nelmo::KnxConverterFloat16BitFloat converter(Nelmo::FloatRange{});
  ASSERT_TRUE(facade.AddDptValueMapEntry(9, 100, 16, IVT_DOUBLE, UloDP::IVST_NONE, converter));
  const Nelmo::DptValueMap& map = facade.GetDptValueMap();
  const DptRowIndex::Row& callers = map.FindDirectRow({16, 9, 100});
  ExpectNoCalls(callers);
  EXPECT_EQ(callers.entry, &facade.GetEntry({16, 9, 100}));
  ExpectSameCalls(map.FindDirectRow({16, 9, 50}), map.FindDirectRow(MainRow9));
  ExpectSameCalls(map.FindDirectRow({16, 9, 101}), map.FindDirectRow(MainRow9));
}

TEST(DptRowIndex, CallersRowsAloneConvertOnTheGeneralPath) {
  KnxValueConverter facade;
  facade.Clear();
  const Nelmo::KnxConverterFloat16BitFloat converter(Nelmo::FloatRange{});
  ASSERT_TRUE(facade.AddDptValueMapEntry(9, 0, 16, IVT_DOUBLE, UloDP::IVST_NONE, converter));
  ASSERT_TRUE(facade.AddDptValueMapEntry(9, 3, 16, IVT_DOUBLE, UloDP::IVST_NONE, converter));
  for (const KNXDPT dpt : {KNXDPT{16, 9, 0}, KNXDPT{16, 9, 1}, KNXDPT{16, 9, 3}, KNXDPT{16, 9, 40}}) {
    SCOPED_TRACE(dpt.subNumber);
    ExpectNoCalls(facade.GetDptValueMap().FindDirectRow(dpt));
  }
}

TEST(DptRowIndex, AfterClearNoPlaceConvertsDirectly) {
  KnxValueConverter facade;
  facade.Clear();
  ExpectNoCalls(facade.GetDptValueMap().FindDirectRow(Row9001));
  EXPECT_EQ(facade.GetDptValueMap().FindDirectRow(Row9001).entry, nullptr);
}

}  // namespace

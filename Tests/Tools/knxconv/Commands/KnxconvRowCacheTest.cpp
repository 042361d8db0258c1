#include <gtest/gtest.h>

#include <cstdint>

#include "CatalogueInput.h"
#include "Conversion.h"
#include "MakeDpt.h"
#include "RowCache.h"

namespace {

using namespace Knxconv;

using TestSupport::MakeDpt;

struct RowCase {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  UloValueType valueType;  // IVT_ANY: the library has no row
};

const RowCase RowCases[] = {
    {9, 1, IVT_DOUBLE}, {9, 4, IVT_DOUBLE}, {1, 8, IVT_BOOL}, {10, 1, IVT_TIME}, {29, 10, IVT_ANY},
};

// Asked twice: the second answer comes from the cache and is the library's
// own row, as QuietEntry finds it, with its scale.
TEST(RowCache, AnswersWithTheLibrarysRowAndItsScale) {
  const Nelmo::KnxValueConverter converter;
  RowCache rows;
  for (int round = 0; round < 2; ++round) {
    for (const RowCase& row : RowCases) {
      const KNXDPT dpt = MakeDpt(row.mainNumber, row.subNumber);
      const CachedRow& found = rows.Find(converter, dpt);
      EXPECT_EQ(found.entry, &QuietEntry(converter, dpt)) << row.mainNumber << "." << row.subNumber;
      EXPECT_EQ(found.entry->valueType, row.valueType) << row.mainNumber << "." << row.subNumber;
      const NumberScale scale = ScaleOf(found.entry->GetConverter());
      EXPECT_EQ(found.scale.floats, scale.floats) << row.mainNumber << "." << row.subNumber;
      EXPECT_EQ(found.scale.scaled, scale.scaled) << row.mainNumber << "." << row.subNumber;
      EXPECT_EQ(found.subtype, SubtypeOf(dpt)) << row.mainNumber << "." << row.subNumber;
    }
  }
}

// Every sub number of 9.x has a row (9.x answers for those without one of
// their own): the cache holds no more than its capacity, and still answers
// with the library's row.
TEST(RowCache, HoldsNoMoreThanItsCapacity) {
  const Nelmo::KnxValueConverter converter;
  RowCache rows;
  for (std::uint16_t sub = 1; sub <= 3 * RowCache::Capacity; ++sub) {
    const KNXDPT dpt = MakeDpt(9, sub);
    EXPECT_EQ(rows.Find(converter, dpt).entry, &QuietEntry(converter, dpt)) << "9." << sub;
    EXPECT_LE(rows.Size(), RowCache::Capacity) << "9." << sub;
  }
  EXPECT_GT(rows.Size(), 0u);
}

}  // namespace

#include "DptCatalogueRows.h"

#include "DptBooleanNames.h"
#include "DptEnumerationNames.h"

// Facts of the KNX standard's datapoint type list, each taken from two
// sources: the list as published in the data of two open-source KNX
// libraries (npm packages), and the manufacturers' association's published
// documentation of the datapoint types. Where they differ, the standard's own
// names and units are kept.

namespace Nelmo::DptCatalogueRows {

namespace {

namespace B = DptBooleanNames;
namespace E = DptEnumerationNames;

// In order of main number, each file a block of its own so that no tool
// sorts them.
constexpr DptSubtype AllRows[] = {
#include "DptRowsBasic.inc"

#include "DptRowsMeasures.inc"

#include "DptRowsFloat32.inc"

#include "DptRowsEnumerations.inc"

#include "DptRowsSystem.inc"
};

constexpr std::size_t AllRowCount = sizeof(AllRows) / sizeof(AllRows[0]);

constexpr bool Precedes(const DptSubtype& left, const DptSubtype& right) {
  return left.mainNumber < right.mainNumber ||
         (left.mainNumber == right.mainNumber && left.subNumber < right.subNumber);
}

constexpr bool StrictlyOrderedWithKnownSizes() {
  for (std::size_t i = 0; i < AllRowCount; ++i) {
    if (AllRows[i].bitSize == UnknownBitSize || (i > 0 && !Precedes(AllRows[i - 1], AllRows[i]))) {
      return false;
    }
  }
  return true;
}

// Find searches by halves, which needs the order.
static_assert(StrictlyOrderedWithKnownSizes(), "catalogue rows out of order or of a main number without a size");

}  // namespace

const DptSubtype* const Rows = AllRows;
const std::size_t RowCount = AllRowCount;

}  // namespace Nelmo::DptCatalogueRows

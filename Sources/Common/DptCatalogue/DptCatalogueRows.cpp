#include "DptCatalogueRows.h"

#include "DptBooleanNames.h"
#include "DptEnumerationNames.h"

// Facts of the KNX standard's datapoint type list, each checked against at
// least two sources: the datapoint data of two open-source KNX libraries
// (npm), the datapoint tables of further open-source KNX libraries, the
// association's machine-readable datapoint master data as carried by those
// tables, and the association's published documentation of the datapoint
// types (overview, formats, ranges, units and value names). Where they differ,
// the published documentation wins; where the documentation itself spells a
// name two ways, the master data's spelling is kept.

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

#pragma once

#include <cstdint>

#include "DptValueEntry.h"
#include "DptValueMap.h"
#include "KnxConverter.h"
#include "KnxStack.h"
#include "NelmoExport.h"
#include "UloPlatform.h"

namespace Nelmo {

struct ConverterCalls;

// Converts platform values to KNX group values and back, driven by the DPT
// table. After construction the table is only read, so several threads may
// convert at once; registering rows must not overlap with conversions.
class NELMO_EXPORT KnxValueConverter {
 public:
  // Fills the table with the standard rows.
  KnxValueConverter();
  KnxValueConverter(const KnxValueConverter&) = delete;
  KnxValueConverter& operator=(const KnxValueConverter&) = delete;

  // Does nothing; always true.
  bool Init();
  // Rebuilds the table from scratch; always true.
  bool FillDptValueMap();
  // Stores a clone of converter; the caller keeps its own object. A DPT
  // registered before keeps its first row.
  bool AddDptValueMapEntry(std::uint16_t mainNumber, std::uint16_t subNumber, std::uint8_t bitSize,
                           UloValueType valueType, UloDP::UloValueSubType subType, const KnxConverter& converter);
  // The row that conversions of dpt use; see DptValueMap::GetEntry.
  const DptValueEntry& GetEntry(const KNXDPT& dpt) const;
  // The table as it stands, for listing its rows.
  const DptValueMap& GetDptValueMap() const { return m_dptValueMap; }
  // Removes every row; FillDptValueMap() brings the standard rows back.
  bool Clear();

  // A dpt with main number 0 is completed from defaults, and the chosen DPT
  // is written back into the caller's object: pass a non-const KNXDPT, and
  // do not share such an object between threads. KnxStack::GroupValueException
  // is caught and logged; other exceptions pass through.
  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) const;
  // As ToKnxValue, the other way. The type of value on entry only picks a
  // default DPT; after a false result value must not be read.
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) const;

  // Whether a value of type first may reach a converter of a row of type
  // second unconverted. Not symmetric for the date and time kinds.
  bool AreValueTypesCompatible(UloValueType first, UloValueType second) const;
  // From dpt's bit size (and the value type as a tie-break): writes main and
  // sub only. False, and dpt untouched, for sizes without a default.
  bool GetDefaultMappingDptForSize(UloValueType valueType, KNXDPT& dpt) const;
  // From value's type (and for some types dpt's bit size): writes bit size,
  // main and sub. False, and dpt untouched, where there is no default.
  bool GetDefaultMappingDptForValueType(KNXDPT& dpt, const ULOVALUE& value) const;

 private:
  // AddDptValueMapEntry; calls, if not null, is how to reach the converter
  // of a row whose class is known.
  bool AddRow(const KNXDPT& dpt, UloValueType valueType, UloDP::UloValueSubType subType, const KnxConverter& converter,
              const ConverterCalls* calls);

  DptValueMap m_dptValueMap;
};

}  // namespace Nelmo

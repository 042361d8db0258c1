#pragma once

#include <memory>

#include "KnxConverter.h"
#include "NelmoExport.h"
#include "UloPlatform.h"

namespace Nelmo {

// One row of the DPT table. Owns its converter, so it moves but does not
// copy; a moved-from entry has no converter.
class NELMO_EXPORT DptValueEntry {
 public:
  DptValueEntry() = default;
  DptValueEntry(const KNXDPT& dpt, UloValueType valueType, UloDP::UloValueSubType subType,
                std::unique_ptr<KnxConverter> converter);
  // Takes ownership of converter (may be null).
  DptValueEntry(const KNXDPT& dpt, UloValueType valueType, UloDP::UloValueSubType subType, KnxConverter* converter);
  ~DptValueEntry();

  DptValueEntry(DptValueEntry&& other) noexcept;
  DptValueEntry& operator=(DptValueEntry&& other) noexcept;
  DptValueEntry(const DptValueEntry&) = delete;
  DptValueEntry& operator=(const DptValueEntry&) = delete;

  // The converter to call, owned by this entry; null when there is none.
  KnxConverter* GetConverter() const { return converter.get(); }

  KNXDPT dpt;
  UloValueType valueType = IVT_ANY;
  UloDP::UloValueSubType subType = UloDP::IVST_NONE;
  std::unique_ptr<KnxConverter> converter;
};

}  // namespace Nelmo

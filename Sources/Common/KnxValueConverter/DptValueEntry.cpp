#include "DptValueEntry.h"

#include <utility>

namespace Nelmo {

DptValueEntry::DptValueEntry(const KNXDPT& dpt, UloValueType valueType, UloDP::UloValueSubType subType,
                             std::unique_ptr<KnxConverter> converter)
    : dpt(dpt), valueType(valueType), subType(subType), converter(std::move(converter)) {}

DptValueEntry::DptValueEntry(const KNXDPT& dpt, UloValueType valueType, UloDP::UloValueSubType subType,
                             KnxConverter* converter)
    : DptValueEntry(dpt, valueType, subType, std::unique_ptr<KnxConverter>(converter)) {}

DptValueEntry::~DptValueEntry() = default;

DptValueEntry::DptValueEntry(DptValueEntry&& other) noexcept = default;

DptValueEntry& DptValueEntry::operator=(DptValueEntry&& other) noexcept = default;

}  // namespace Nelmo

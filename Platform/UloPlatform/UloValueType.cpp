#include "UloValueType.h"

#include "UloPayload.h"

#define ULO_NAME_CASE(name) \
  case name:                \
    return #name;

const char* UloValueTypeName(UloValueType type) {
  switch (type) {
    ULO_NAME_CASE(IVT_NONE)
    ULO_NAME_CASE(IVT_ANY)
    ULO_NAME_CASE(IVT_BOOL)
    ULO_NAME_CASE(IVT_DOUBLE)
    ULO_NAME_CASE(IVT_INT32)
    ULO_NAME_CASE(IVT_TYPE_5)
    ULO_NAME_CASE(IVT_BYTE)
    ULO_NAME_CASE(IVT_UINT16)
    ULO_NAME_CASE(IVT_UINT32)
    ULO_NAME_CASE(IVT_UINT64)
    ULO_NAME_CASE(IVT_STRING)
    ULO_NAME_CASE(IVT_DATE)
    ULO_NAME_CASE(IVT_TIME)
    ULO_NAME_CASE(IVT_DATETIME)
    ULO_NAME_CASE(IVT_TIMESPAN)
    ULO_NAME_CASE(IVT_UNSIGNED_20)
    ULO_NAME_CASE(IVT_DATETIME_102)
    ULO_NAME_CASE(IVT_TIME_104)
    ULO_NAME_CASE(IVT_DATE_105)
    ULO_NAME_CASE(IVT_DATETIME_201)
    ULO_NAME_CASE(IVT_DOUBLE_1005)
    ULO_NAME_CASE(IVT_BYTE_1021)
    ULO_NAME_CASE(IVT_PERCENT)
    ULO_NAME_CASE(IVT_DIMMING)
    ULO_NAME_CASE(IVT_DOUBLE_1039)
  }
  return nullptr;
}

const char* UloValueSubTypeName(UloDP::UloValueSubType subType) {
  using namespace UloDP;
  switch (subType) {
    ULO_NAME_CASE(IVST_NONE)
    ULO_NAME_CASE(IVST_WIND_SPEED)
    ULO_NAME_CASE(IVST_PERCENT)
    ULO_NAME_CASE(IVST_RELATIVE_PERCENT)
    ULO_NAME_CASE(IVST_TEMPERATURE)
    ULO_NAME_CASE(IVST_ANGLE)
    ULO_NAME_CASE(IVST_ILLUMINANCE)
    ULO_NAME_CASE(IVST_SCENE)
    ULO_NAME_CASE(IVST_ASCII)
    ULO_NAME_CASE(IVST_ISO8859_1)
  }
  return nullptr;
}

#undef ULO_NAME_CASE

namespace UloPlatformDetail {

Payload PayloadOf(UloValueType type) {
  switch (type) {
    case IVT_BOOL:
      return Payload::Bool;
    case IVT_DOUBLE:
    case IVT_DOUBLE_1005:
    case IVT_PERCENT:
    case IVT_DIMMING:
    case IVT_DOUBLE_1039:
      return Payload::Double;
    case IVT_INT32:
    case IVT_TYPE_5:
    case IVT_TIMESPAN:
      return Payload::Int32;
    case IVT_BYTE:
    case IVT_BYTE_1021:
      return Payload::Byte;
    case IVT_UINT16:
      return Payload::UInt16;
    case IVT_UINT32:
    case IVT_UNSIGNED_20:
      return Payload::UInt32;
    case IVT_UINT64:
      return Payload::UInt64;
    case IVT_STRING:
      return Payload::Text;
    case IVT_DATE:
    case IVT_DATE_105:
      return Payload::Date;
    case IVT_TIME:
    case IVT_TIME_104:
      return Payload::Time;
    case IVT_DATETIME:
    case IVT_DATETIME_102:
    case IVT_DATETIME_201:
      return Payload::DateTime;
    case IVT_NONE:
    case IVT_ANY:
      break;
  }
  return Payload::Nothing;
}

}  // namespace UloPlatformDetail

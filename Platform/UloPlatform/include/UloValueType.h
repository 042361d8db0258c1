#pragma once

#include <cstdint>

// Type tag of a ULOVALUE. The numbers are fixed by the platform.
enum UloValueType : std::int32_t {
  IVT_NONE = 0,
  IVT_ANY = 1,
  IVT_BOOL = 2,
  IVT_DOUBLE = 3,
  IVT_INT32 = 4,
  IVT_TYPE_5 = 5,
  IVT_BYTE = 6,
  IVT_UINT16 = 7,
  IVT_UINT32 = 8,
  IVT_UINT64 = 9,
  IVT_STRING = 10,
  IVT_DATE = 11,
  IVT_TIME = 12,
  IVT_DATETIME = 13,
  IVT_TIMESPAN = 14,
  IVT_UNSIGNED_20 = 20,
  IVT_DATETIME_102 = 102,
  IVT_TIME_104 = 104,
  IVT_DATE_105 = 105,
  IVT_DATETIME_201 = 201,
  IVT_DOUBLE_1005 = 1005,
  IVT_BYTE_1021 = 1021,
  IVT_PERCENT = 1036,
  IVT_DIMMING = 1037,
  IVT_DOUBLE_1039 = 1039,
};

namespace UloDP {

// Refinement of a value's meaning (unit or text coding).
enum UloValueSubType : std::int32_t {
  IVST_NONE = 0,
  IVST_WIND_SPEED = 15,
  IVST_PERCENT = 3001,
  IVST_RELATIVE_PERCENT = 3002,
  IVST_TEMPERATURE = 3003,
  IVST_ANGLE = 3004,
  IVST_ILLUMINANCE = 3005,
  IVST_SCENE = 4001,
  IVST_ASCII = 8001,
  IVST_ISO8859_1 = 8002,
};

}  // namespace UloDP

// Names as written in the enumerations ("IVT_DOUBLE"); nullptr for numbers
// the platform does not know.
const char* UloValueTypeName(UloValueType type);
const char* UloValueSubTypeName(UloDP::UloValueSubType subType);

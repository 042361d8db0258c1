#pragma once

#include "UloValueType.h"

namespace UloPlatformDetail {

// Which part of a ULOVALUE holds the value of a type. Nothing for the empty
// kinds and for numbers the platform does not know.
enum class Payload {
  Nothing,
  Bool,
  Double,
  Int32,
  Byte,
  UInt16,
  UInt32,
  UInt64,
  Text,
  Date,
  Time,
  DateTime,
};

Payload PayloadOf(UloValueType type);

}  // namespace UloPlatformDetail

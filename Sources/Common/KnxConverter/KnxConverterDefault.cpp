#include "KnxConverterDefault.h"

#include <algorithm>
#include <ostream>

#include "ConverterLog.h"

namespace Nelmo {

namespace {

constexpr unsigned int BufferSize = 24;
// Byte counts above this let the platform fill the whole buffer.
constexpr unsigned int LargestRequestedCount = 23;
// Boolean codes of the 2-bit fallback, deliberately not the control codes
// 2 and 3 of the 2-bit converter.
constexpr unsigned char TrueCode = 0x11;
constexpr unsigned char FalseCode = 0x10;

void LogToByteArrayFailed(const KNXDPT& dpt, int line) {
  Log::Write(ULO_LOG_ERROR, Log::ConverterFile, "ToKnxValue", line,
             [&](std::ostream& out) { out << "UloValueToByteArray failed. DPT=" << Log::Dpt{dpt}; });
}

// Kinds whose byte form is always one byte (a scaled number, a step code).
bool WriteOneByte(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  unsigned char byte = 0;
  unsigned int size = 1;
  if (!UloValueToByteArray(value, &byte, size)) {
    LogToByteArrayFailed(dpt, __LINE__);
    return false;
  }
  groupValue.SetAsUnsigned8(byte);
  return true;
}

// Other main numbers than 1 and 2 take a boolean without writing anything.
bool WriteBoolean(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  if (dpt.mainNumber == 1) {
    groupValue.SetAsBoolean(value.GetBool());
  } else if (dpt.mainNumber == 2) {
    groupValue.SetAsUnsigned2(value.GetBool() ? TrueCode : FalseCode);
  }
  return true;
}

bool WriteBytes(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  unsigned int byteCount = (dpt.bitSize + 7u) / 8u;
  if (byteCount == 0 || byteCount > LargestRequestedCount) {
    byteCount = BufferSize;
  }
  unsigned char buffer[BufferSize] = {};
  if (!UloValueToByteArray(value, buffer, byteCount)) {
    Log::Write(ULO_LOG_ERROR, Log::ConverterFile, "ToKnxValue", __LINE__, [&](std::ostream& out) {
      out << "UloValueToByteArray failed. DPT=" << Log::Dpt{dpt} << " data size =" << byteCount;
    });
    return false;
  }
  if (byteCount <= 1) {
    groupValue.SetAsUnsigned8(buffer[0]);
  } else {
    groupValue.SetRawData(KnxStack::BinaryData(buffer, std::min(byteCount, BufferSize)));
  }
  return true;
}

void ResetToEmpty(ULOVALUE& value) {
  value = ULOVALUE();
  value.GetTime().Clear(true);
}

}  // namespace

bool KnxConverterDefault::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  const UloValueType type = value.GetType();
  if (type == IVT_DOUBLE_1005 || type == IVT_DIMMING) {
    return WriteOneByte(dpt, value, groupValue);
  }
  if (type == IVT_BOOL) {
    return WriteBoolean(dpt, value, groupValue);
  }
  return WriteBytes(dpt, value, groupValue);
}

bool KnxConverterDefault::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  const KnxStack::BinaryData& data = groupValue.GetRawData();
  const unsigned int length = data.GetLength();
  if (ByteArrayToUloValue(data.GetData(), length, value, groupValue.GetDefinedSize() == 1)) {
    return true;
  }
  ResetToEmpty(value);
  Log::Write(ULO_LOG_ERROR, Log::ConverterFile, "FromKnxValue", __LINE__, [&](std::ostream& out) {
    out << "ByteArrayToUloValue failed. DPT=" << Log::Dpt{dpt} << " data size =" << length;
  });
  return false;
}

KnxConverter* KnxConverterDefault::Clone() const {
  return new KnxConverterDefault(*this);
}

}  // namespace Nelmo

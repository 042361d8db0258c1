#include "KnxValueConverter.h"

#include <cstddef>
#include <ostream>
#include <string_view>
#include <utility>

#include "ConverterCalls.h"
#include "ConverterLog.h"
#include "KnxDptFormat.h"

namespace Nelmo {

namespace {

using Log::FromKnxFunction;
using Log::ToKnxFunction;

// Values of up to 6 bits travel inside the telegram's control field.
constexpr std::uint32_t ControlFieldBits = 6;
constexpr std::uint32_t VariableLength = static_cast<std::uint32_t>(KnxDptFormat::VariableLength);
constexpr unsigned int LargestBitSizeField = 255;

// The result turns false before the message is written: an exception raised
// while logging must still report the failure. Every failure leaves the
// conversion path through here, out of line, so that path stays short.
template <typename Compose>
[[gnu::cold, gnu::noinline]] bool Fail(bool& result, std::string_view function, int line, Compose&& compose) {
  result = false;
  Log::Write(ULO_LOG_ERROR, Log::FacadeFile, function, line, std::forward<Compose>(compose));
  return false;
}

bool AcceptsUnconverted(UloValueType first, UloValueType second);

// The map answered with the empty entry.
[[gnu::cold, gnu::noinline]] bool NoRow(bool& result, std::string_view function, const KNXDPT& dpt) {
  return Fail(result, function, __LINE__,
              [&](std::ostream& out) { out << "No Entry found for DPT = " << Log::Dpt{dpt}; });
}

[[gnu::cold, gnu::noinline]] bool NoConverter(bool& result, std::string_view function, const KNXDPT& dpt) {
  return Fail(result, function, __LINE__,
              [&](std::ostream& out) { out << "NULL pointer as KnxConverter for DPT = " << Log::Dpt{dpt}; });
}

[[gnu::cold, gnu::noinline]] bool CompleteDptToSend(const KnxValueConverter& facade, KNXDPT& dpt, const ULOVALUE& value,
                                                    bool& result) {
  if (!facade.GetDefaultMappingDptForValueType(dpt, value)) {
    facade.GetDefaultMappingDptForSize(value.GetType(), dpt);
  }
  if (dpt.mainNumber != 0) {
    return true;
  }
  return Fail(result, ToKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Convert to KNX value failed. Missing DPT. val = " << value.ToString();
  });
}

// The row's converter writes the group value from working, the call's own
// copy of the value after any type conversion.
inline bool Encode(const DptValueEntry& entry, const KNXDPT& dpt, const ULOVALUE& working,
                   KnxStack::GroupValue& groupValue, bool& result) {
  KnxConverter* converter = entry.GetConverter();
  if (converter == nullptr) {
    return NoConverter(result, ToKnxFunction, dpt);
  }
  if (converter->ToKnxValue(dpt, working, groupValue)) {
    return true;
  }
  result = false;
  ConversionReport::SendFailed(dpt, working);
  return false;
}

// A value that the row does not take as it is goes as a copy converted into
// the row's type.
[[gnu::noinline]] bool EncodeConverted(const DptValueEntry& entry, const KNXDPT& dpt, const ULOVALUE& value,
                                       KnxStack::GroupValue& groupValue, bool& result) {
  ULOVALUE working;
  working.SetType(entry.valueType);
  if (!working.Assign(value)) {
    return Fail(result, ToKnxFunction, __LINE__, [&](std::ostream& out) {
      out << "Invalid value type found for DPT = " << Log::Dpt{dpt}
          << " val.ivt=" << static_cast<std::int32_t>(value.GetType());
    });
  }
  return Encode(entry, dpt, working, groupValue, result);
}

bool Send(const KnxValueConverter& facade, KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue,
          bool& result) {
  if (dpt.mainNumber == 0 && !CompleteDptToSend(facade, dpt, value, result)) {
    return false;
  }
  const DptValueEntry& entry = *facade.GetDptValueMap().FindRow(dpt).entry;
  if (entry.valueType == IVT_ANY) {
    return NoRow(result, ToKnxFunction, dpt);
  }
  if (value.GetType() != IVT_NONE && !AcceptsUnconverted(value.GetType(), entry.valueType)) {
    return EncodeConverted(entry, dpt, value, groupValue, result);
  }
  // A converter may keep the value it is handed; it never gets the caller's.
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is the point
  const ULOVALUE working(value);
  return Encode(entry, dpt, working, groupValue, result);
}

// A size that the DPT's bit size field cannot hold has no default either.
std::uint8_t BitSizeField(unsigned int bits) {
  return bits > LargestBitSizeField ? 0 : static_cast<std::uint8_t>(bits);
}

[[gnu::cold, gnu::noinline]] bool CompleteDptToReceive(const KnxValueConverter& facade, KNXDPT& dpt,
                                                       const KnxStack::GroupValue& groupValue, const ULOVALUE& value,
                                                       bool& result) {
  if (dpt.bitSize != 0) {
    facade.GetDefaultMappingDptForSize(value.GetType(), dpt);
  } else {
    KNXDPT sized = dpt;
    sized.bitSize = BitSizeField(groupValue.GetDefinedSize());
    if (facade.GetDefaultMappingDptForSize(value.GetType(), sized)) {
      dpt = sized;
    }
  }
  if (dpt.mainNumber != 0) {
    return true;
  }
  return Fail(result, FromKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Convert from KNX value failed. Missing DPT. GroupValue = " << groupValue.GetRawData().ToString();
  });
}

[[gnu::cold, gnu::noinline]] bool SizeMismatch(bool& result, const KNXDPT& dpt, std::uint32_t defined,
                                               std::uint32_t expected) {
  return Fail(result, FromKnxFunction, __LINE__, [&](std::ostream& out) {
    out << "Failed to convert a GroupValue for DPT " << Log::Dpt{dpt} << " because of unexpected bit size: " << defined
        << ", expected: " << expected;
  });
}

inline bool Decode(const DptValueEntry& entry, const KNXDPT& dpt, const KnxStack::GroupValue& chosen, ULOVALUE& value,
                   bool& result) {
  KnxConverter* converter = entry.GetConverter();
  if (converter == nullptr) {
    return NoConverter(result, FromKnxFunction, dpt);
  }
  if (converter->FromKnxValue(dpt, chosen, value)) {
    return true;
  }
  result = false;
  ConversionReport::ReceiveFailed(dpt, chosen);
  return false;
}

// Values sent inside the control field arrive with 6 bits and are handed on
// re-sized to the DPT's format, through a group value of the call's own; a
// variable-length DPT gets that group value as it was constructed.
[[gnu::noinline]] bool DecodeResized(const DptValueEntry& entry, const KNXDPT& dpt,
                                     const KnxStack::GroupValue& received, std::uint32_t expected, ULOVALUE& value,
                                     bool& result) {
  KnxStack::GroupValue local;
  if (expected <= ControlFieldBits) {
    local = KnxStack::GroupValue(received.GetRawData(), expected);
  }
  return Decode(entry, dpt, local, value, result);
}

bool Receive(const KnxValueConverter& facade, KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value,
             bool& result) {
  if (dpt.mainNumber == 0 && !CompleteDptToReceive(facade, dpt, groupValue, value, result)) {
    return false;
  }
  const DptRowIndex::Row row = facade.GetDptValueMap().FindRow(dpt);
  const DptValueEntry& entry = *row.entry;
  if (entry.valueType == IVT_ANY) {
    return NoRow(result, FromKnxFunction, dpt);
  }
  value.SetType(entry.valueType);
  const std::uint32_t expected = row.expectedBitSize;
  const std::uint32_t defined = groupValue.GetDefinedSize();
  const bool mismatch =
      expected <= ControlFieldBits ? defined > ControlFieldBits : expected != defined && expected != VariableLength;
  if (mismatch) {
    return SizeMismatch(result, dpt, defined, expected);
  }
  // The group value handed on depends on the received size alone; only the
  // control-field size ever reads a re-sized copy.
  if (defined == ControlFieldBits) {
    return DecodeResized(entry, dpt, groupValue, expected, value, result);
  }
  return Decode(entry, dpt, groupValue, value, result);
}

[[gnu::noinline]] bool SendInGeneral(const KnxValueConverter& facade, const KNXDPT& dpt, const ULOVALUE& value,
                                     KnxStack::GroupValue& groupValue) {
  return Guarded(
      [&](bool& result) {
        // Callers rely on seeing the DPT chosen for them in their own object.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): the completed DPT is written back on purpose
        Send(facade, const_cast<KNXDPT&>(dpt), value, groupValue, result);
      },
      &ConversionReport::SendThrew);
}

[[gnu::noinline]] bool ReceiveInGeneral(const KnxValueConverter& facade, const KNXDPT& dpt,
                                        const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  return Guarded(
      [&](bool& result) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): as in SendInGeneral
        Receive(facade, const_cast<KNXDPT&>(dpt), groupValue, value, result);
      },
      &ConversionReport::ReceiveThrew);
}

// A list of value types, for the compatibility table.
struct TypeList {
  const UloValueType* types = nullptr;
  std::size_t count = 0;

  bool Contains(UloValueType type) const {
    for (std::size_t index = 0; index < count; ++index) {
      if (types[index] == type) {
        return true;
      }
    }
    return false;
  }
};

template <std::size_t Count>
constexpr TypeList ListOf(const UloValueType (&types)[Count]) {
  return TypeList{types, Count};
}

constexpr UloValueType NumberKinds[] = {IVT_DOUBLE, IVT_DOUBLE_1005, IVT_PERCENT, IVT_DIMMING, IVT_DOUBLE_1039};
constexpr UloValueType SignedKinds[] = {IVT_INT32, IVT_TIMESPAN};
constexpr UloValueType ByteKinds[] = {IVT_BYTE, IVT_BYTE_1021};
constexpr UloValueType UnsignedKinds[] = {IVT_UINT16, IVT_UINT32, IVT_UNSIGNED_20};
constexpr UloValueType DateKinds[] = {IVT_DATE, IVT_DATE_105};
constexpr UloValueType TimeKinds[] = {IVT_TIME, IVT_TIME_104};
// A date-time may go to a date or a time row, but not the other way round.
constexpr UloValueType DateAndTimeKinds[] = {IVT_DATE,     IVT_TIME,     IVT_DATETIME,    IVT_DATETIME_102,
                                             IVT_TIME_104, IVT_DATE_105, IVT_DATETIME_201};

// The row types that a value of type first may reach unconverted, besides
// its own.
TypeList AcceptedRowTypes(UloValueType first) {
  switch (first) {
    case IVT_DOUBLE:
    case IVT_DOUBLE_1005:
    case IVT_PERCENT:
    case IVT_DIMMING:
    case IVT_DOUBLE_1039:
      return ListOf(NumberKinds);
    case IVT_INT32:
    case IVT_TIMESPAN:
      return ListOf(SignedKinds);
    case IVT_BYTE:
    case IVT_BYTE_1021:
      return ListOf(ByteKinds);
    case IVT_UINT16:
    case IVT_UINT32:
    case IVT_UNSIGNED_20:
      return ListOf(UnsignedKinds);
    case IVT_DATE:
    case IVT_DATE_105:
      return ListOf(DateKinds);
    case IVT_TIME:
    case IVT_TIME_104:
      return ListOf(TimeKinds);
    case IVT_DATETIME:
    case IVT_DATETIME_102:
    case IVT_DATETIME_201:
      return ListOf(DateAndTimeKinds);
    default:
      return TypeList();
  }
}

// The conversion path asks this directly rather than through the exported
// member, which the library could only reach through its symbol table.
bool AcceptsUnconverted(UloValueType first, UloValueType second) {
  return first == second || AcceptedRowTypes(first).Contains(second);
}

constexpr int AnyBitSize = -1;

// Default DPT of a value type; rows of one type are tried in order.
struct ValueTypeDefault {
  UloValueType type;
  int bitSizeOnEntry;
  KNXDPT dpt;
};

constexpr ValueTypeDefault ValueTypeDefaults[] = {
    {IVT_BOOL, AnyBitSize, {1, 1, 1}},
    {IVT_DIMMING, AnyBitSize, {4, 3, 7}},
    {IVT_BYTE, AnyBitSize, {8, 5, 0}},
    {IVT_PERCENT, AnyBitSize, {8, 5, 1}},
    {IVT_DOUBLE, 0, {16, 9, 0}},
    {IVT_DOUBLE, 4, {4, 3, 0}},
    {IVT_DOUBLE, 8, {8, 5, 1}},
    {IVT_DOUBLE, 16, {16, 9, 0}},
    {IVT_DOUBLE, 32, {32, 14, 0}},
    {IVT_TIME, AnyBitSize, {24, 10, 1}},
    {IVT_DATE, AnyBitSize, {24, 11, 1}},
    {IVT_UINT32, 0, {32, 12, 1}},
    {IVT_UINT32, 8, {8, 5, 0}},
    {IVT_UINT32, 16, {16, 7, 0}},
    {IVT_UINT32, 24, {24, 232, 0}},
    {IVT_UINT32, 32, {32, 12, 0}},
    {IVT_INT32, 0, {32, 13, 0}},
    {IVT_INT32, 8, {8, 6, 0}},
    {IVT_INT32, 16, {16, 8, 0}},
    {IVT_INT32, 32, {32, 13, 0}},
    {IVT_TIMESPAN, AnyBitSize, {32, 13, 100}},
    {IVT_UINT64, AnyBitSize, {40, 218, 0}},
    {IVT_DATETIME, AnyBitSize, {64, 19, 1}},
    {IVT_STRING, 0, {112, 16, 1}},
    {IVT_STRING, 8, {8, 4, 2}},
    {IVT_STRING, 112, {112, 16, 1}},
};

// Default DPT of a bit size; within a size the first matching row wins, the
// last row of a size takes every type.
struct SizeDefault {
  std::uint8_t bitSize;
  bool anyType;
  UloValueType type;
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
};

constexpr SizeDefault ForType(std::uint8_t bitSize, UloValueType type, std::uint16_t mainNumber,
                              std::uint16_t subNumber) {
  return SizeDefault{bitSize, false, type, mainNumber, subNumber};
}

constexpr SizeDefault ForAny(std::uint8_t bitSize, std::uint16_t mainNumber, std::uint16_t subNumber) {
  return SizeDefault{bitSize, true, IVT_ANY, mainNumber, subNumber};
}

constexpr SizeDefault SizeDefaults[] = {
    ForAny(1, 1, 1),
    ForAny(2, 2, 1),
    ForType(4, IVT_DOUBLE, 3, 0),
    ForAny(4, 3, 7),
    ForType(8, IVT_INT32, 6, 0),
    ForType(8, IVT_STRING, 4, 2),
    ForType(8, IVT_DOUBLE, 5, 1),
    ForType(8, IVT_PERCENT, 5, 1),
    ForAny(8, 5, 0),
    ForType(16, IVT_INT32, 8, 0),
    ForType(16, IVT_UINT16, 7, 0),
    ForType(16, IVT_UINT32, 7, 0),
    ForAny(16, 9, 0),
    ForType(24, IVT_UINT32, 232, 0),
    ForType(24, IVT_DATE, 11, 1),
    ForAny(24, 10, 1),
    ForType(32, IVT_UINT32, 12, 0),
    ForType(32, IVT_TIMESPAN, 13, 100),
    ForType(32, IVT_INT32, 13, 0),
    ForAny(32, 14, 0),
    ForAny(40, 218, 0),
    ForAny(48, 219, 1),
    ForAny(64, 19, 1),
    ForType(112, IVT_STRING, 16, 1),
    ForAny(112, 16, 0),
};

}  // namespace

KnxValueConverter::KnxValueConverter() {
  FillDptValueMap();
}

bool KnxValueConverter::Init() {
  return true;
}

bool KnxValueConverter::AddDptValueMapEntry(std::uint16_t mainNumber, std::uint16_t subNumber, std::uint8_t bitSize,
                                            UloValueType valueType, UloDP::UloValueSubType subType,
                                            const KnxConverter& converter) {
  return AddRow(KNXDPT{bitSize, mainNumber, subNumber}, valueType, subType, converter, nullptr);
}

bool KnxValueConverter::AddRow(const KNXDPT& dpt, UloValueType valueType, UloDP::UloValueSubType subType,
                               const KnxConverter& converter, const ConverterCalls* calls) {
  DptValueEntry entry(dpt, valueType, subType, converter.Clone());
  return m_dptValueMap.AddEntry(dpt, std::move(entry), calls);
}

const DptValueEntry& KnxValueConverter::GetEntry(const KNXDPT& dpt) const {
  return m_dptValueMap.GetEntry(dpt);
}

bool KnxValueConverter::Clear() {
  return m_dptValueMap.Clear();
}

bool KnxValueConverter::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) const {
  // A standard row that takes the value's type as it is needs none of the
  // general path's steps: straight to its converter.
  const DptRowIndex::Row& row = m_dptValueMap.FindDirectRow(dpt);
  if (row.directType == static_cast<std::int64_t>(value.GetType())) {
    return row.send(*row.converter, dpt, value, groupValue);
  }
  return SendInGeneral(*this, dpt, value, groupValue);
}

bool KnxValueConverter::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) const {
  // Likewise for a standard row and a group value of the size it expects.
  const DptRowIndex::Row& row = m_dptValueMap.FindDirectRow(dpt);
  if (row.directBitSize == groupValue.GetDefinedSize()) {
    value.SetType(row.valueType);
    return row.receive(*row.converter, dpt, groupValue, value);
  }
  return ReceiveInGeneral(*this, dpt, groupValue, value);
}

bool KnxValueConverter::AreValueTypesCompatible(UloValueType first, UloValueType second) const {
  return AcceptsUnconverted(first, second);
}

bool KnxValueConverter::GetDefaultMappingDptForSize(UloValueType valueType, KNXDPT& dpt) const {
  for (const SizeDefault& row : SizeDefaults) {
    if (row.bitSize == dpt.bitSize && (row.anyType || row.type == valueType)) {
      dpt.mainNumber = row.mainNumber;
      dpt.subNumber = row.subNumber;
      return true;
    }
  }
  return false;
}

bool KnxValueConverter::GetDefaultMappingDptForValueType(KNXDPT& dpt, const ULOVALUE& value) const {
  for (const ValueTypeDefault& row : ValueTypeDefaults) {
    if (row.type == value.GetType() && (row.bitSizeOnEntry == AnyBitSize || row.bitSizeOnEntry == dpt.bitSize)) {
      dpt = row.dpt;
      return true;
    }
  }
  return false;
}

}  // namespace Nelmo

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "ConverterCalls.h"
#include "FloatRange.h"
#include "IntegerRange.h"
#include "KnxConverterBit.h"
#include "KnxConverterDateAndTime.h"
#include "KnxConverterFloat.h"
#include "KnxConverterInteger.h"
#include "KnxConverterScene.h"
#include "KnxConverterString.h"
#include "KnxValueConverter.h"
#include "LongIntegerRange.h"
#include "StandardDptTable.h"

namespace Nelmo {

namespace {

// Each range is filled the same way: bounds, a factor of 1.0, then the
// factor's calculation (which reports a range it cannot use).
template <typename Range, typename Internal, typename External>
Range MakeRange(Internal internalMin, Internal internalMax, External externalMin, External externalMax) {
  Range range;
  range.internalMinimum = internalMin;
  range.internalMaximum = internalMax;
  range.externalMinimum = externalMin;
  range.externalMaximum = externalMax;
  range.scaleFactor = 1.0;
  range.CalculateScaleFactor();
  return range;
}

IntegerRange Ints(std::int32_t internalMin, std::int32_t internalMax, std::int32_t externalMin,
                  std::int32_t externalMax) {
  return MakeRange<IntegerRange>(internalMin, internalMax, externalMin, externalMax);
}

LongIntegerRange Longs(std::int64_t internalMin, std::int64_t internalMax, std::int64_t externalMin,
                       std::int64_t externalMax) {
  return MakeRange<LongIntegerRange>(internalMin, internalMax, externalMin, externalMax);
}

UnsignedLongIntegerRange UnsignedLongs(std::uint64_t internalMin, std::uint64_t internalMax, std::uint64_t externalMin,
                                       std::uint64_t externalMax) {
  return MakeRange<UnsignedLongIntegerRange>(internalMin, internalMax, externalMin, externalMax);
}

FloatRange Floats(double internalMin, double internalMax, double externalMin, double externalMax) {
  return MakeRange<FloatRange>(internalMin, internalMax, externalMin, externalMax);
}

// FloatIntegerRange's constructor calculates its factor itself.
FloatIntegerRange FloatInts(double internalMin, double internalMax, std::int32_t externalMin,
                            std::int32_t externalMax) {
  return FloatIntegerRange(internalMin, internalMax, externalMin, externalMax);
}

constexpr double Float16Min = -671088.64;
constexpr double Float16Max = 670760.96;
constexpr double Float32Max = 3.4028234663852886e38;
constexpr std::int32_t Int32Min = -2147483647 - 1;
constexpr std::int32_t Int32Max = 2147483647;
constexpr std::int64_t UInt32Max = 4294967295;
constexpr std::int64_t UInt24Max = 16777215;
constexpr std::uint64_t UInt48Max = 281474976710655;

}  // namespace

bool KnxValueConverter::FillDptValueMap() {
  using namespace UloDP;
  m_dptValueMap.Clear();
  // The map keeps a clone of each prototype, so the prototypes live on the
  // stack for one row only. The clone's class is the prototype's, so its
  // functions can be called directly.
  const auto row = [this](std::uint16_t mainNumber, std::uint16_t subNumber, std::string_view label,
                          std::uint8_t bitSize, UloValueType valueType, UloValueSubType subType,
                          const auto& converter) {
    using Converter = std::decay_t<decltype(converter)>;
    StandardDptTable::ReportRow(
        AddRow(KNXDPT{bitSize, mainNumber, subNumber}, valueType, subType, converter, &CallsOf<Converter>()), label,
        __LINE__);
  };

  // clang-format off
  row(  1,   0, "1.x",    1,   IVT_BOOL,     IVST_NONE,             KnxConverter1Bit());
  row(  2,   0, "2.x",    2,   IVT_BOOL,     IVST_NONE,             KnxConverter2Bit());
  row(  3,   0, "3.x",    4,   IVT_DOUBLE,   IVST_RELATIVE_PERCENT, KnxConverter4Bit(FloatInts(-100.0, 100.0, 0, 15)));
  row(  4,   0, "4.x",    8,   IVT_STRING,   IVST_ASCII,            KnxConverter8BitString(Ints(0, 127, 0, 127)));
  row(  4,   1, "4.001",  8,   IVT_STRING,   IVST_ASCII,            KnxConverter8BitString(Ints(0, 127, 0, 127)));
  row(  4,   2, "4.002",  8,   IVT_STRING,   IVST_ISO8859_1,        KnxConverter8BitString(Ints(0, 255, 0, 255)));
  row(  5,   0, "5.x",    8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row(  5,   1, "5.001",  8,   IVT_DOUBLE,   IVST_PERCENT,          KnxConverterFloat8BitUnsigned(FloatInts(0.0, 100.0, 0, 255)));
  row(  5,   4, "5.004",  8,   IVT_DOUBLE,   IVST_PERCENT,          KnxConverterFloat8BitUnsigned(FloatInts(0.0, 255.0, 0, 255)));
  row(  5,   3, "5.003",  8,   IVT_DOUBLE,   IVST_ANGLE,            KnxConverterFloat8BitUnsigned(FloatInts(0.0, 360.0, 0, 255)));
  row(  6,   0, "6.x",    8,   IVT_INT32,    IVST_NONE,             KnxConverterInteger8BitSigned(Ints(-128, 127, -128, 127)));
  row(  6,   1, "6.001",  8,   IVT_DOUBLE,   IVST_PERCENT,          KnxConverterFloat8BitSigned(FloatInts(-128.0, 127.0, -128, 127)));
  row(  7,   0, "7.x",    16,  IVT_UINT16,   IVST_NONE,             KnxConverterInteger16BitUnsigned(Ints(0, 65535, 0, 65535)));
  row(  8,   0, "8.x",    16,  IVT_INT32,    IVST_NONE,             KnxConverterInteger16BitSigned(Ints(-32768, 32767, -32768, 32767)));
  row(  8,  10, "8.010",  16,  IVT_DOUBLE,   IVST_PERCENT,          KnxConverterFloat16BitSigned(FloatInts(-327.68, 327.67, -32768, 32767)));
  row(  9,   0, "9.x",    16,  IVT_DOUBLE,   IVST_NONE,             KnxConverterFloat16BitFloat(Floats(Float16Min, Float16Max, Float16Min, Float16Max)));
  row(  9,   1, "9.001",  16,  IVT_DOUBLE,   IVST_TEMPERATURE,      KnxConverterFloat16BitFloat(Floats(-273.0, 670760.0, -273.0, 670760.0)));
  row(  9,   4, "9.004",  16,  IVT_DOUBLE,   IVST_ILLUMINANCE,      KnxConverterFloat16BitFloat(Floats(0.0, 670760.0, 0.0, 670760.0)));
  row(  9,   5, "9.005",  16,  IVT_DOUBLE,   IVST_WIND_SPEED,       KnxConverterFloat16BitFloat(Floats(0.0, 670760.0, 0.0, 670760.0)));
  row(  9,   6, "9.006",  16,  IVT_DOUBLE,   IVST_NONE,             KnxConverterFloat16BitFloat(Floats(0.0, 670760.0, 0.0, 670760.0)));
  row(  9,   7, "9.007",  16,  IVT_DOUBLE,   IVST_PERCENT,          KnxConverterFloat16BitFloat(Floats(0.0, 670760.0, 0.0, 670760.0)));
  row(  9,   8, "9.008",  16,  IVT_DOUBLE,   IVST_NONE,             KnxConverterFloat16BitFloat(Floats(0.0, 670760.0, 0.0, 670760.0)));
  row(  9,  27, "9.027",  16,  IVT_DOUBLE,   IVST_TEMPERATURE,      KnxConverterFloat16BitFloat(Floats(-459.6, Float16Max, -459.6, Float16Max)));
  row(  9,  28, "9.028",  16,  IVT_DOUBLE,   IVST_WIND_SPEED,       KnxConverterFloat16BitFloat(Floats(0.0, Float16Max, 0.0, Float16Max)));
  row( 10,   0, "10.x",   24,  IVT_TIME,     IVST_NONE,             KnxConverterTime());
  row( 10,   1, "10.1",   24,  IVT_TIME,     IVST_NONE,             KnxConverterTimeOfDay());
  row( 11,   0, "11.x",   24,  IVT_DATE,     IVST_NONE,             KnxConverterDate());
  row( 12,   0, "12.x",   32,  IVT_UINT32,   IVST_NONE,             KnxConverterInteger32BitUnsigned(Longs(0, UInt32Max, 0, UInt32Max)));
  row( 13,   0, "13.x",   32,  IVT_INT32,    IVST_NONE,             KnxConverterInteger32BitSigned(Ints(Int32Min, Int32Max, Int32Min, Int32Max)));
  row( 13, 100, "13.100", 32,  IVT_TIMESPAN, IVST_NONE,             KnxConverterInteger32BitSigned(Ints(Int32Min, Int32Max, Int32Min, Int32Max)));
  row( 14,   0, "14.x",   32,  IVT_DOUBLE,   IVST_NONE,             KnxConverterFloat32BitFloat(Floats(-Float32Max, Float32Max, -Float32Max, Float32Max)));
  row( 15,   0, "15.x",   32,  IVT_UINT32,   IVST_NONE,             KnxConverterInteger32BitUnsigned(Longs(0, UInt32Max, 0, UInt32Max)));
  row( 16,   0, "16.x",   112, IVT_STRING,   IVST_ASCII,            KnxConverter14ByteString(Ints(0, 127, 0, 127)));
  row( 16,   1, "16.001", 112, IVT_STRING,   IVST_ISO8859_1,        KnxConverter14ByteString(Ints(0, 255, 0, 255)));
  row( 17,   0, "17.x",   8,   IVT_INT32,    IVST_SCENE,            KnxConverterSceneNumber(Ints(1, 64, 0, 63)));
  row( 18,   0, "18.x",   8,   IVT_INT32,    IVST_SCENE,            KnxConverterSceneControl(Ints(-64, 64, 0, 255)));
  row( 19,   0, "19.x",   64,  IVT_DATETIME, IVST_NONE,             KnxConverterDateTime());
  row( 20,   0, "20.x",   8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row( 21,   0, "21.x",   8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row( 22,   0, "22.x",   16,  IVT_UINT16,   IVST_NONE,             KnxConverterInteger16BitUnsigned(Ints(0, 65535, 0, 65535)));
  row( 23,   0, "23.x",   8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row( 26,   0, "26.x",   8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row( 27,   0, "27.x",   32,  IVT_UINT32,   IVST_NONE,             KnxConverterInteger32BitUnsigned(Longs(0, UInt32Max, 0, UInt32Max)));
  row(232,   0, "232.x",  24,  IVT_UINT32,   IVST_NONE,             KnxConverterInteger24BitUnsigned(Longs(0, UInt24Max, 0, UInt24Max)));
  row(236,   0, "236.x",  8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row(238,   0, "238.x",  8,   IVT_BYTE,     IVST_NONE,             KnxConverterByte8BitUnsigned());
  row(242,   0, "242.x",  48,  IVT_UINT64,   IVST_NONE,             KnxConverterInteger48BitUnsigned(UnsignedLongs(0, UInt48Max, 0, UInt48Max)));
  row(250,   0, "250.x",  24,  IVT_UINT32,   IVST_NONE,             KnxConverterInteger24BitUnsigned(Longs(0, UInt24Max, 0, UInt24Max)));
  // clang-format on
  return true;
}

}  // namespace Nelmo

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "ConverterLines.h"
#include "KnxValueConverterApi.h"
#include "LogCapture.h"
#include "StandardDptTable.h"

namespace {

using namespace Nelmo;
using namespace UloDP;
using TestSupport::FacadeLine;
using TestSupport::LogCapture;
using TestSupport::LogLine;

// What a test can see of a converter of an expected class: whether it is of
// that class, and its range's bounds, scale factor and text where it has one.
struct Inspection {
  bool isClass = false;
  bool hasRange = false;
  double bounds[4] = {};
  double scaleFactor = 0.0;
  std::string rangeText;
};

template <typename Range>
void TakeRange(const Range& range, Inspection& inspection) {
  inspection.hasRange = true;
  inspection.bounds[0] = static_cast<double>(range.internalMinimum);
  inspection.bounds[1] = static_cast<double>(range.internalMaximum);
  inspection.bounds[2] = static_cast<double>(range.externalMinimum);
  inspection.bounds[3] = static_cast<double>(range.externalMaximum);
  inspection.scaleFactor = range.scaleFactor;
  inspection.rangeText = range.ToString();
}

template <typename Converter, typename = void>
struct HasRange : std::false_type {};
template <typename Converter>
struct HasRange<Converter, std::void_t<decltype(std::declval<const Converter&>().GetRange())>> : std::true_type {};

template <typename Converter>
Inspection Inspect(const KnxConverter* converter) {
  Inspection inspection;
  const auto* typed = dynamic_cast<const Converter*>(converter);
  inspection.isClass = typed != nullptr;
  if constexpr (HasRange<Converter>::value) {
    if (typed != nullptr) {
      TakeRange(typed->GetRange(), inspection);
    }
  }
  return inspection;
}

using Inspector = Inspection (*)(const KnxConverter*);

struct Bounds {
  double internalMinimum;
  double internalMaximum;
  double externalMinimum;
  double externalMaximum;
  double scaleFactor;
};

struct Row {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  std::uint8_t bitSize;
  UloValueType valueType;
  UloValueSubType subType;
  const char* converterClass;
  Inspector inspect;
  std::optional<Bounds> range;
  const char* rangeText;
};

constexpr double F16Min = -671088.64;
constexpr double F16Max = 670760.96;
constexpr double F32Max = 3.4028234663852886e38;
constexpr double I32Min = -2147483648.0;
constexpr double I32Max = 2147483647.0;
constexpr double U32Max = 4294967295.0;
constexpr double U24Max = 16777215.0;
constexpr double U48Max = 281474976710655.0;

#define CONVERTER(name) #name, &Inspect < name>

// The standard table, row by row.
const Row StandardRows[] = {
    {1, 0, 1, IVT_BOOL, IVST_NONE, CONVERTER(KnxConverter1Bit), std::nullopt, ""},
    {2, 0, 2, IVT_BOOL, IVST_NONE, CONVERTER(KnxConverter2Bit), std::nullopt, ""},
    {3, 0, 4, IVT_DOUBLE, IVST_RELATIVE_PERCENT, CONVERTER(KnxConverter4Bit), Bounds{-100.0, 100.0, 0, 15, 0.075},
     "FloatIntegerRange(-100, 100, 0, 15)"},
    {4, 0, 8, IVT_STRING, IVST_ASCII, CONVERTER(KnxConverter8BitString), Bounds{0, 127, 0, 127, 1.0},
     "IntegerRange(0, 127, 0, 127)"},
    {4, 1, 8, IVT_STRING, IVST_ASCII, CONVERTER(KnxConverter8BitString), Bounds{0, 127, 0, 127, 1.0},
     "IntegerRange(0, 127, 0, 127)"},
    {4, 2, 8, IVT_STRING, IVST_ISO8859_1, CONVERTER(KnxConverter8BitString), Bounds{0, 255, 0, 255, 1.0},
     "IntegerRange(0, 255, 0, 255)"},
    {5, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {5, 1, 8, IVT_DOUBLE, IVST_PERCENT, CONVERTER(KnxConverterFloat8BitUnsigned), Bounds{0.0, 100.0, 0, 255, 2.55},
     "FloatIntegerRange(0, 100, 0, 255)"},
    {5, 3, 8, IVT_DOUBLE, IVST_ANGLE, CONVERTER(KnxConverterFloat8BitUnsigned),
     Bounds{0.0, 360.0, 0, 255, 255.0 / 360.0}, "FloatIntegerRange(0, 360, 0, 255)"},
    {5, 4, 8, IVT_DOUBLE, IVST_PERCENT, CONVERTER(KnxConverterFloat8BitUnsigned), Bounds{0.0, 255.0, 0, 255, 1.0},
     "FloatIntegerRange(0, 255, 0, 255)"},
    {6, 0, 8, IVT_INT32, IVST_NONE, CONVERTER(KnxConverterInteger8BitSigned), Bounds{-128, 127, -128, 127, 1.0},
     "IntegerRange(-128, 127, -128, 127)"},
    {6, 1, 8, IVT_DOUBLE, IVST_PERCENT, CONVERTER(KnxConverterFloat8BitSigned), Bounds{-128.0, 127.0, -128, 127, 1.0},
     "FloatIntegerRange(-128, 127, -128, 127)"},
    {7, 0, 16, IVT_UINT16, IVST_NONE, CONVERTER(KnxConverterInteger16BitUnsigned), Bounds{0, 65535, 0, 65535, 1.0},
     "IntegerRange(0, 65535, 0, 65535)"},
    {8, 0, 16, IVT_INT32, IVST_NONE, CONVERTER(KnxConverterInteger16BitSigned),
     Bounds{-32768, 32767, -32768, 32767, 1.0}, "IntegerRange(-32768, 32767, -32768, 32767)"},
    {8, 10, 16, IVT_DOUBLE, IVST_PERCENT, CONVERTER(KnxConverterFloat16BitSigned),
     Bounds{-327.68, 327.67, -32768, 32767, 100.0}, "FloatIntegerRange(-327.68, 327.67, -32768, 32767)"},
    {9, 0, 16, IVT_DOUBLE, IVST_NONE, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{F16Min, F16Max, F16Min, F16Max, 1.0}, "FloatRange(-671089, 670761, -671089, 670761)"},
    {9, 1, 16, IVT_DOUBLE, IVST_TEMPERATURE, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{-273.0, 670760.0, -273.0, 670760.0, 1.0}, "FloatRange(-273, 670760, -273, 670760)"},
    {9, 4, 16, IVT_DOUBLE, IVST_ILLUMINANCE, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{0.0, 670760.0, 0.0, 670760.0, 1.0}, "FloatRange(0, 670760, 0, 670760)"},
    {9, 5, 16, IVT_DOUBLE, IVST_WIND_SPEED, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{0.0, 670760.0, 0.0, 670760.0, 1.0}, "FloatRange(0, 670760, 0, 670760)"},
    {9, 6, 16, IVT_DOUBLE, IVST_NONE, CONVERTER(KnxConverterFloat16BitFloat), Bounds{0.0, 670760.0, 0.0, 670760.0, 1.0},
     "FloatRange(0, 670760, 0, 670760)"},
    {9, 7, 16, IVT_DOUBLE, IVST_PERCENT, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{0.0, 670760.0, 0.0, 670760.0, 1.0}, "FloatRange(0, 670760, 0, 670760)"},
    {9, 8, 16, IVT_DOUBLE, IVST_NONE, CONVERTER(KnxConverterFloat16BitFloat), Bounds{0.0, 670760.0, 0.0, 670760.0, 1.0},
     "FloatRange(0, 670760, 0, 670760)"},
    {9, 27, 16, IVT_DOUBLE, IVST_TEMPERATURE, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{-459.6, F16Max, -459.6, F16Max, 1.0}, "FloatRange(-459.6, 670761, -459.6, 670761)"},
    {9, 28, 16, IVT_DOUBLE, IVST_WIND_SPEED, CONVERTER(KnxConverterFloat16BitFloat),
     Bounds{0.0, F16Max, 0.0, F16Max, 1.0}, "FloatRange(0, 670761, 0, 670761)"},
    {10, 0, 24, IVT_TIME, IVST_NONE, CONVERTER(KnxConverterTime), std::nullopt, ""},
    {10, 1, 24, IVT_TIME, IVST_NONE, CONVERTER(KnxConverterTimeOfDay), std::nullopt, ""},
    {11, 0, 24, IVT_DATE, IVST_NONE, CONVERTER(KnxConverterDate), std::nullopt, ""},
    {12, 0, 32, IVT_UINT32, IVST_NONE, CONVERTER(KnxConverterInteger32BitUnsigned), Bounds{0, U32Max, 0, U32Max, 1.0},
     "LongIntegerRange(0, 4294967295, 0, 4294967295)"},
    {13, 0, 32, IVT_INT32, IVST_NONE, CONVERTER(KnxConverterInteger32BitSigned),
     Bounds{I32Min, I32Max, I32Min, I32Max, 1.0}, "IntegerRange(-2147483648, 2147483647, -2147483648, 2147483647)"},
    {13, 100, 32, IVT_TIMESPAN, IVST_NONE, CONVERTER(KnxConverterInteger32BitSigned),
     Bounds{I32Min, I32Max, I32Min, I32Max, 1.0}, "IntegerRange(-2147483648, 2147483647, -2147483648, 2147483647)"},
    {14, 0, 32, IVT_DOUBLE, IVST_NONE, CONVERTER(KnxConverterFloat32BitFloat),
     Bounds{-F32Max, F32Max, -F32Max, F32Max, 1.0}, "FloatRange(-3.40282e+38, 3.40282e+38, -3.40282e+38, 3.40282e+38)"},
    {15, 0, 32, IVT_UINT32, IVST_NONE, CONVERTER(KnxConverterInteger32BitUnsigned), Bounds{0, U32Max, 0, U32Max, 1.0},
     "LongIntegerRange(0, 4294967295, 0, 4294967295)"},
    {16, 0, 112, IVT_STRING, IVST_ASCII, CONVERTER(KnxConverter14ByteString), Bounds{0, 127, 0, 127, 1.0},
     "IntegerRange(0, 127, 0, 127)"},
    {16, 1, 112, IVT_STRING, IVST_ISO8859_1, CONVERTER(KnxConverter14ByteString), Bounds{0, 255, 0, 255, 1.0},
     "IntegerRange(0, 255, 0, 255)"},
    {17, 0, 8, IVT_INT32, IVST_SCENE, CONVERTER(KnxConverterSceneNumber), Bounds{1, 64, 0, 63, 1.0},
     "IntegerRange(1, 64, 0, 63)"},
    {18, 0, 8, IVT_INT32, IVST_SCENE, CONVERTER(KnxConverterSceneControl), Bounds{-64, 64, 0, 255, 255.0 / 128.0},
     "IntegerRange(-64, 64, 0, 255)"},
    {19, 0, 64, IVT_DATETIME, IVST_NONE, CONVERTER(KnxConverterDateTime), std::nullopt, ""},
    {20, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {21, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {22, 0, 16, IVT_UINT16, IVST_NONE, CONVERTER(KnxConverterInteger16BitUnsigned), Bounds{0, 65535, 0, 65535, 1.0},
     "IntegerRange(0, 65535, 0, 65535)"},
    {23, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {26, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {27, 0, 32, IVT_UINT32, IVST_NONE, CONVERTER(KnxConverterInteger32BitUnsigned), Bounds{0, U32Max, 0, U32Max, 1.0},
     "LongIntegerRange(0, 4294967295, 0, 4294967295)"},
    {232, 0, 24, IVT_UINT32, IVST_NONE, CONVERTER(KnxConverterInteger24BitUnsigned), Bounds{0, U24Max, 0, U24Max, 1.0},
     "LongIntegerRange(0, 16777215, 0, 16777215)"},
    {236, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {238, 0, 8, IVT_BYTE, IVST_NONE, CONVERTER(KnxConverterByte8BitUnsigned), std::nullopt, ""},
    {242, 0, 48, IVT_UINT64, IVST_NONE, CONVERTER(KnxConverterInteger48BitUnsigned), Bounds{0, U48Max, 0, U48Max, 1.0},
     "UnsignedLongIntegerRange(0, 281474976710655, 0, 281474976710655)"},
    {250, 0, 24, IVT_UINT32, IVST_NONE, CONVERTER(KnxConverterInteger24BitUnsigned), Bounds{0, U24Max, 0, U24Max, 1.0},
     "LongIntegerRange(0, 16777215, 0, 16777215)"},
};

#undef CONVERTER

constexpr std::size_t StandardRowCount = 48;
constexpr std::size_t StandardMainNumberCount = 30;
static_assert(std::size(StandardRows) == StandardRowCount, "one test row per table row");

std::string RowName(const Row& row) {
  return std::to_string(row.mainNumber) + "." + std::to_string(row.subNumber);
}

KNXDPT Dpt(std::uint16_t mainNumber, std::uint16_t subNumber) {
  KNXDPT dpt;
  dpt.mainNumber = mainNumber;
  dpt.subNumber = subNumber;
  return dpt;
}

// Every row of the facade's table as (main, sub).
std::vector<std::pair<std::uint16_t, std::uint16_t>> RowKeys(const KnxValueConverter& converter) {
  std::vector<std::pair<std::uint16_t, std::uint16_t>> keys;
  for (const auto& [mainNumber, rows] : converter.GetDptValueMap().GetEntries()) {
    for (const auto& [subNumber, entry] : rows) {
      keys.emplace_back(mainNumber, subNumber);
    }
  }
  return keys;
}

void ExpectRow(const KnxValueConverter& converter, const Row& row) {
  SCOPED_TRACE(RowName(row));
  const DptValueEntry& entry = converter.GetEntry(Dpt(row.mainNumber, row.subNumber));
  EXPECT_EQ(entry.dpt.mainNumber, row.mainNumber);
  EXPECT_EQ(entry.dpt.subNumber, row.subNumber);
  EXPECT_EQ(entry.dpt.bitSize, row.bitSize);
  EXPECT_EQ(entry.valueType, row.valueType);
  EXPECT_EQ(entry.subType, row.subType);
  const Inspection inspection = row.inspect(entry.GetConverter());
  EXPECT_TRUE(inspection.isClass) << "expected " << row.converterClass;
  EXPECT_EQ(inspection.hasRange, row.range.has_value());
  if (row.range && inspection.hasRange) {
    EXPECT_EQ(inspection.bounds[0], row.range->internalMinimum);
    EXPECT_EQ(inspection.bounds[1], row.range->internalMaximum);
    EXPECT_EQ(inspection.bounds[2], row.range->externalMinimum);
    EXPECT_EQ(inspection.bounds[3], row.range->externalMaximum);
    EXPECT_DOUBLE_EQ(inspection.scaleFactor, row.range->scaleFactor);
    EXPECT_EQ(inspection.rangeText, row.rangeText);
  }
}

class StandardDptTableRow : public ::testing::TestWithParam<Row> {};

TEST_P(StandardDptTableRow, HasTheTablesFields) {
  const KnxValueConverter converter;
  ExpectRow(converter, GetParam());
}

INSTANTIATE_TEST_SUITE_P(AllRows, StandardDptTableRow, ::testing::ValuesIn(StandardRows),
                         [](const ::testing::TestParamInfo<Row>& info) {
                           return "Dpt" + std::to_string(info.param.mainNumber) + "_" +
                                  std::to_string(info.param.subNumber);
                         });

TEST(StandardDptTable, HoldsFortyEightRowsUnderThirtyMainNumbers) {
  const KnxValueConverter converter;
  const auto keys = RowKeys(converter);
  EXPECT_EQ(keys.size(), StandardRowCount);
  EXPECT_EQ(converter.GetDptValueMap().GetEntries().size(), StandardMainNumberCount);
  using Keys = std::set<std::pair<std::uint16_t, std::uint16_t>>;
  Keys expected;
  for (const Row& row : StandardRows) {
    expected.emplace(row.mainNumber, row.subNumber);
  }
  EXPECT_EQ(Keys(keys.begin(), keys.end()), expected);
}

TEST(StandardDptTable, FillsWithoutAnyMessage) {
  const LogCapture capture;
  const KnxValueConverter converter;
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardDptTable, Temperature9001HasItsSubtypeAndRange) {
  const KnxValueConverter converter;
  const DptValueEntry& entry = converter.GetEntry(Dpt(9, 1));
  EXPECT_EQ(entry.subType, IVST_TEMPERATURE);
  const auto* typed = dynamic_cast<const KnxConverterFloat16BitFloat*>(entry.GetConverter());
  ASSERT_NE(typed, nullptr);
  EXPECT_EQ(typed->GetRange().internalMinimum, -273.0);
  EXPECT_EQ(typed->GetRange().internalMaximum, 670760.0);
}

TEST(StandardDptTable, FillingAgainClearsFirstAndGivesTheSameRows) {
  KnxValueConverter converter;
  const auto before = RowKeys(converter);
  ASSERT_TRUE(converter.AddDptValueMapEntry(99, 1, 8, IVT_BYTE, IVST_NONE, KnxConverterByte8BitUnsigned()));
  ASSERT_EQ(RowKeys(converter).size(), StandardRowCount + 1);

  EXPECT_TRUE(converter.FillDptValueMap());

  EXPECT_EQ(RowKeys(converter), before);
  for (const Row& row : StandardRows) {
    ExpectRow(converter, row);
  }
}

TEST(StandardDptTable, FillingAgainReplacesTheConverters) {
  KnxValueConverter converter;
  const KnxConverter* first = converter.GetEntry(Dpt(9, 1)).GetConverter();
  const std::set<const KnxConverter*> firstClones = {first, converter.GetEntry(Dpt(1, 0)).GetConverter()};

  EXPECT_TRUE(converter.FillDptValueMap());

  // The rows were rebuilt: every converter is a new clone.
  EXPECT_EQ(firstClones.count(converter.GetEntry(Dpt(9, 1)).GetConverter()), 0U);
  EXPECT_NE(dynamic_cast<const KnxConverterFloat16BitFloat*>(converter.GetEntry(Dpt(9, 1)).GetConverter()), nullptr);
}

// Sub numbers without a row of their own reach their main number's row.
struct Fallback {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  UloValueType valueType;
  const char* converterClass;
  Inspector inspect;
};

const Fallback Fallbacks[] = {
    {5, 10, IVT_BYTE, "KnxConverterByte8BitUnsigned", &Inspect<KnxConverterByte8BitUnsigned>},
    {3, 7, IVT_DOUBLE, "KnxConverter4Bit", &Inspect<KnxConverter4Bit>},
    {9, 10, IVT_DOUBLE, "KnxConverterFloat16BitFloat", &Inspect<KnxConverterFloat16BitFloat>},
    {250, 600, IVT_UINT32, "KnxConverterInteger24BitUnsigned", &Inspect<KnxConverterInteger24BitUnsigned>},
    {1, 1, IVT_BOOL, "KnxConverter1Bit", &Inspect<KnxConverter1Bit>},
    {16, 2, IVT_STRING, "KnxConverter14ByteString", &Inspect<KnxConverter14ByteString>},
};

class StandardDptTableFallback : public ::testing::TestWithParam<Fallback> {};

TEST_P(StandardDptTableFallback, ReachesTheMainRow) {
  const Fallback& fallback = GetParam();
  const LogCapture capture;
  const KnxValueConverter converter;
  const DptValueEntry& entry = converter.GetEntry(Dpt(fallback.mainNumber, fallback.subNumber));
  EXPECT_EQ(entry.dpt.mainNumber, fallback.mainNumber);
  EXPECT_EQ(entry.dpt.subNumber, 0);
  EXPECT_EQ(entry.valueType, fallback.valueType);
  EXPECT_TRUE(fallback.inspect(entry.GetConverter()).isClass) << "expected " << fallback.converterClass;
  EXPECT_TRUE(capture.Lines().empty());
}

INSTANTIATE_TEST_SUITE_P(SubNumbersWithoutRow, StandardDptTableFallback, ::testing::ValuesIn(Fallbacks),
                         [](const ::testing::TestParamInfo<Fallback>& info) {
                           return "Dpt" + std::to_string(info.param.mainNumber) + "_" +
                                  std::to_string(info.param.subNumber);
                         });

TEST(StandardDptTable, Dpt5010IsTheByteRow) {
  const KnxValueConverter converter;
  const DptValueEntry& entry = converter.GetEntry(Dpt(5, 10));
  EXPECT_EQ(&entry, &converter.GetEntry(Dpt(5, 0)));
  EXPECT_EQ(entry.subType, IVST_NONE);
}

// The default mapping proposes 218.000 and 219.001 for 40 and 48 bits, but
// the table has no rows for them.
struct MissingMain {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* message;
};

const MissingMain MissingMains[] = {
    {218, 0, "No Entry found for DPT = 218.0"},
    {219, 1, "No Entry found for DPT = 219.1"},
};

class StandardDptTableMissing : public ::testing::TestWithParam<MissingMain> {};

TEST_P(StandardDptTableMissing, YieldsTheEmptyEntry) {
  const KnxValueConverter converter;
  const LogCapture capture;
  const DptValueEntry& entry = converter.GetEntry(Dpt(GetParam().mainNumber, GetParam().subNumber));
  EXPECT_EQ(&entry, &DptValueMap::GetEmptyEntry());
  EXPECT_EQ(entry.valueType, IVT_ANY);
  EXPECT_NE(dynamic_cast<const KnxConverterDefault*>(entry.GetConverter()), nullptr);
  EXPECT_EQ(capture.Lines(), (std::vector<LogLine>{FacadeLine("GetEntry", GetParam().message)}));
}

INSTANTIATE_TEST_SUITE_P(DefaultMappingTargets, StandardDptTableMissing, ::testing::ValuesIn(MissingMains));

TEST(StandardDptTable, SendingA64BitValueWithoutDptIsRefusedFor218) {
  const KnxValueConverter converter;
  KNXDPT dpt;
  KnxStack::GroupValue groupValue;
  const LogCapture capture(ULO_LOG_ERROR);
  EXPECT_FALSE(converter.ToKnxValue(dpt, ULOVALUE::UInt64(5), groupValue));
  EXPECT_EQ(dpt.mainNumber, 218);
  EXPECT_EQ(dpt.subNumber, 0);
  EXPECT_EQ(capture.Lines(), (std::vector<LogLine>{
                                 FacadeLine("GetEntry", "No Entry found for DPT = 218.0"),
                                 FacadeLine("ToKnxValue", "No Entry found for DPT = 218.0"),
                             }));
}

TEST(StandardDptTable, ReceivingA48BitValueWithoutDptIsRefusedFor219) {
  const KnxValueConverter converter;
  const unsigned char bytes[] = {1, 2, 3, 4, 5, 6};
  const KnxStack::GroupValue groupValue(KnxStack::BinaryData(bytes, sizeof bytes), 48);
  KNXDPT dpt;
  ULOVALUE value(IVT_UINT64);
  const LogCapture capture(ULO_LOG_ERROR);
  EXPECT_FALSE(converter.FromKnxValue(dpt, groupValue, value));
  EXPECT_EQ(dpt.mainNumber, 219);
  EXPECT_EQ(dpt.subNumber, 1);
  EXPECT_EQ(capture.Lines(), (std::vector<LogLine>{
                                 FacadeLine("GetEntry", "No Entry found for DPT = 219.1"),
                                 FacadeLine("FromKnxValue", "No Entry found for DPT = 219.1"),
                             }));
}

TEST(StandardDptTable, ARefusedRowIsReportedWithItsLabel) {
  const LogCapture capture;
  StandardDptTable::ReportRow(false, "250.x", 7);
  StandardDptTable::ReportRow(false, "10.1", 8);
  EXPECT_EQ(capture.Lines(), (std::vector<LogLine>{
                                 FacadeLine("FillDptValueMap", "Add DPT value map entry failed. DPT=250.x"),
                                 FacadeLine("FillDptValueMap", "Add DPT value map entry failed. DPT=10.1"),
                             }));
}

TEST(StandardDptTable, AnAddedRowIsNotReported) {
  const LogCapture capture;
  StandardDptTable::ReportRow(true, "1.x", 7);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardDptTable, ARefusedRowIsNotComposedWhenErrorsAreOff) {
  const LogCapture capture(ULO_LOG_OFF);
  StandardDptTable::ReportRow(false, "1.x", 7);
  EXPECT_TRUE(capture.Lines().empty());
}

}  // namespace

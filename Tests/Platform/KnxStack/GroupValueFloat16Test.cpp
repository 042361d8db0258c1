#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "KnxStack.h"
#include "KnxTestBytes.h"

namespace {

using KnxStack::GroupValue;
using KnxStack::GroupValueException;
using KnxTest::ExpectRefused;
using KnxTest::Received;

// value written, bytes on the bus, value read back from those bytes
struct EncodeRow {
  double value;
  const char* bytes;
  double read;
};

class Float16Encode : public testing::TestWithParam<EncodeRow> {};

TEST_P(Float16Encode, WritesTheBytesThatReadBack) {
  GroupValue written;
  written.SetAsFloat16(GetParam().value);
  EXPECT_EQ(written.GetRawData().ToString(), GetParam().bytes);
  EXPECT_EQ(written.GetDefinedSize(), 16u);
  EXPECT_EQ(written.GetAsFloat16(), GetParam().read);
  EXPECT_EQ(Received(GetParam().bytes, 16).GetAsFloat16(), GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(Examples, Float16Encode,
                         testing::Values(EncodeRow{21.5, "0C 33", 21.5}, EncodeRow{-30.0, "8A 24", -30.0},
                                         EncodeRow{20.47, "07 FF", 20.47}, EncodeRow{20.48, "0C 00", 20.48},
                                         EncodeRow{-0.005, "87 FF", -0.01},
                                         EncodeRow{-671088.64, "F8 00", -671088.64}));

INSTANTIATE_TEST_SUITE_P(OwnVectors, Float16Encode,
                         testing::Values(EncodeRow{0.0, "00 00", 0.0}, EncodeRow{-0.0, "00 00", 0.0},
                                         EncodeRow{0.01, "00 01", 0.01}, EncodeRow{-0.01, "87 FF", -0.01},
                                         EncodeRow{0.06, "00 06", 0.06}, EncodeRow{0.004, "00 00", 0.0},
                                         EncodeRow{-0.004, "00 00", 0.0}, EncodeRow{100.0, "1C E2", 100.0},
                                         EncodeRow{-100.0, "9B 1E", -100.0}, EncodeRow{1000.0, "36 1B", 1000.32},
                                         EncodeRow{-20.48, "80 00", -20.48},
                                         EncodeRow{-670760.96, "F8 01", -670760.96}));

// Exact halves round away from zero, also after the exponent has grown.
INSTANTIATE_TEST_SUITE_P(Ties, Float16Encode,
                         testing::Values(EncodeRow{0.005, "00 01", 0.01}, EncodeRow{0.125, "00 0D", 0.13},
                                         EncodeRow{-0.125, "87 F3", -0.13}, EncodeRow{0.375, "00 26", 0.38},
                                         EncodeRow{20.49, "0C 01", 20.5}, EncodeRow{-20.49, "8B FF", -20.5}));

// Values on both sides of a step to the next exponent.
INSTANTIATE_TEST_SUITE_P(ExponentSteps, Float16Encode,
                         testing::Values(EncodeRow{20.474, "07 FF", 20.47}, EncodeRow{20.476, "0C 00", 20.48},
                                         EncodeRow{40.94, "0F FF", 40.94}, EncodeRow{40.95, "14 00", 40.96},
                                         EncodeRow{335380.48, "77 FF", 335380.48},
                                         EncodeRow{335462.39, "77 FF", 335380.48},
                                         EncodeRow{335462.41, "7C 00", 335544.32}));

// 7F FF is the invalid value, so the top of the range is written as 7F FE.
INSTANTIATE_TEST_SUITE_P(TopOfRange, Float16Encode,
                         testing::Values(EncodeRow{670433.28, "7F FE", 670433.28},
                                         EncodeRow{670700.0, "7F FE", 670433.28},
                                         EncodeRow{670760.96, "7F FE", 670433.28}));

TEST(Float16, NaNIsWrittenAsTheInvalidValue) {
  GroupValue written;
  written.SetAsFloat16(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(written.GetRawData().ToString(), "7F FF");
  EXPECT_EQ(written.GetDefinedSize(), 16u);
}

TEST(Float16, TheInvalidValueReadsAsNaN) {
  EXPECT_TRUE(std::isnan(Received("7F FF", 16).GetAsFloat16()));
}

struct DecodeRow {
  const char* bytes;
  double value;
};

class Float16Decode : public testing::TestWithParam<DecodeRow> {};

TEST_P(Float16Decode, ReadsMantissaTimesPowerOfTwoInHundredths) {
  EXPECT_EQ(Received(GetParam().bytes, 16).GetAsFloat16(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(LargestMantissaOfEachExponent, Float16Decode,
                         testing::Values(DecodeRow{"07 FF", 20.47}, DecodeRow{"0F FF", 40.94},
                                         DecodeRow{"17 FF", 81.88}, DecodeRow{"1F FF", 163.76},
                                         DecodeRow{"27 FF", 327.52}, DecodeRow{"2F FF", 655.04},
                                         DecodeRow{"37 FF", 1310.08}, DecodeRow{"3F FF", 2620.16},
                                         DecodeRow{"47 FF", 5240.32}, DecodeRow{"4F FF", 10480.64},
                                         DecodeRow{"57 FF", 20961.28}, DecodeRow{"5F FF", 41922.56},
                                         DecodeRow{"67 FF", 83845.12}, DecodeRow{"6F FF", 167690.24},
                                         DecodeRow{"77 FF", 335380.48}, DecodeRow{"7F FE", 670433.28}));

INSTANTIATE_TEST_SUITE_P(SmallestMantissaOfEachExponent, Float16Decode,
                         testing::Values(DecodeRow{"80 00", -20.48}, DecodeRow{"88 00", -40.96},
                                         DecodeRow{"90 00", -81.92}, DecodeRow{"98 00", -163.84},
                                         DecodeRow{"A0 00", -327.68}, DecodeRow{"A8 00", -655.36},
                                         DecodeRow{"B0 00", -1310.72}, DecodeRow{"B8 00", -2621.44},
                                         DecodeRow{"C0 00", -5242.88}, DecodeRow{"C8 00", -10485.76},
                                         DecodeRow{"D0 00", -20971.52}, DecodeRow{"D8 00", -41943.04},
                                         DecodeRow{"E0 00", -83886.08}, DecodeRow{"E8 00", -167772.16},
                                         DecodeRow{"F0 00", -335544.32}, DecodeRow{"F8 00", -671088.64}));

INSTANTIATE_TEST_SUITE_P(MinusOneAtTheTopExponent, Float16Decode, testing::Values(DecodeRow{"FF FF", -327.68}));

struct RangeErrorRow {
  double value;
  const char* what;
};

class Float16RangeError : public testing::TestWithParam<RangeErrorRow> {};

TEST_P(Float16RangeError, ThrowsAndKeepsTheValue) {
  ExpectRefused([](GroupValue& value) { value.SetAsFloat16(GetParam().value); }, GetParam().what);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Float16RangeError,
    testing::Values(
        RangeErrorRow{670760.97,
                      "GroupValue: value 670760.97 is outside the 2-octet float range -671088.64 to 670760.96"},
        RangeErrorRow{-671088.65,
                      "GroupValue: value -671088.65 is outside the 2-octet float range -671088.64 to 670760.96"},
        RangeErrorRow{1e300, "GroupValue: value 1e+300 is outside the 2-octet float range -671088.64 to 670760.96"},
        RangeErrorRow{std::numeric_limits<double>::infinity(),
                      "GroupValue: value inf is outside the 2-octet float range -671088.64 to 670760.96"},
        RangeErrorRow{-std::numeric_limits<double>::infinity(),
                      "GroupValue: value -inf is outside the 2-octet float range -671088.64 to 670760.96"}));

}  // namespace

#include <gtest/gtest.h>

#include <string>

#include "DptText.h"
#include "HexText.h"
#include "PayloadSize.h"

namespace {

using namespace Knxconv;

struct SizeCase {
  const char* dpt;
  unsigned int bits;
  const char* payload;
  // Empty when the payload fits.
  const char* error;
};

const SizeCase SizeCases[] = {
    {"9.001", 0, "0C 33", ""},
    {"9.001", 16, "0C 33", ""},
    {"9.001", 0, "0C", "the payload 0C has 1 byte, DPT 9.001 needs 2 bytes"},
    {"9.001", 16, "0C", "the payload 0C has 1 byte, DPT 9.001 needs 2 bytes"},
    {"14.000", 32, "0C", "the payload 0C has 1 byte, DPT 14.000 needs 4 bytes"},
    {"14", 0, "00 00 00", "the payload 00 00 00 has 3 bytes, DPT 14.000 needs 4 bytes"},
    {"16.000", 112, "41", "the payload 41 has 1 byte, DPT 16.000 needs 14 bytes"},
    {"242.600", 0, "01 02 03 04 05", "the payload 01 02 03 04 05 has 5 bytes, DPT 242.600 needs 6 bytes"},
    {"10.001", 0, "0C 22 38", ""},
    {"19.001", 0, "7C 03 04 27 1E 0F", "the payload 7C 03 04 27 1E 0F has 6 bytes, DPT 19.001 needs 8 bytes"},
    // Longer than a format of more than 6 bits: the library refuses it.
    {"9.001", 0, "0C 33 00", ""},
    // ... but given a smaller bit size it would read the front only.
    {"9.001", 16, "0C 33 00", "the payload 0C 33 00 has 3 bytes, --bits 16 takes 2 bytes"},
    {"1.001", 16, "01", "the payload 01 has 1 byte, --bits 16 needs 2 bytes"},
    {"1.001", 8, "01", ""},
    {"1.001", 1, "01", ""},
    {"1.001", 0, "01", ""},
    {"1.001", 0, "01 00", "the payload 01 00 has 2 bytes, DPT 1.001 takes 1 byte"},
    {"1.001", 1, "01 00", "the payload 01 00 has 2 bytes, --bits 1 takes 1 byte"},
    {"3.007", 0, "0F", ""},
    {"5.001", 0, "80", ""},
    // No DPT, or one whose format the library does not know: its business.
    {"0", 0, "0C", ""},
    {"0", 16, "0C", "the payload 0C has 1 byte, --bits 16 needs 2 bytes"},
    {"0", 24, "0C 33 00", ""},
    {"99.001", 0, "0C", ""},
};

class PayloadSize : public ::testing::TestWithParam<SizeCase> {};

TEST_P(PayloadSize, RefusesPayloadsThatCannotHoldTheFormat) {
  const SizeCase& row = GetParam();
  const auto error = PayloadSizeError(ParseDpt(row.dpt), row.bits, ParseHex(row.payload));
  EXPECT_EQ(error.value_or(""), row.error) << row.dpt << " " << row.payload;
}

INSTANTIATE_TEST_SUITE_P(Payloads, PayloadSize, ::testing::ValuesIn(SizeCases));

}  // namespace

// What the four date and time converters have in common: clones, no trace,
// no DPT or value type checks, silence and no heap use with logging off, and
// only the stack's exception is caught.

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include <gtest/gtest.h>

#include "CountedAllocations.h"
#include "DateAndTimeTestSupport.h"
#include "KnxConverterDateAndTime.h"

namespace {

using namespace DateAndTimeTest;
using TestSupport::LogCapture;
using W = ULO::Weekdays;

Nelmo::KnxConverterDate date;
Nelmo::KnxConverterTime time;
Nelmo::KnxConverterTimeOfDay timeOfDay;
Nelmo::KnxConverterDateTime dateTime;

struct Row {
  const char* name;
  Nelmo::KnxConverter* converter;
  KNXDPT dpt;
  UloValueType type;
  ULOTIME accepted;
  Bytes acceptedBytes;
  ULOTIME refused;     // refused on send, with a message
  Bytes invalidBytes;  // refused on receive, with a message
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

const Row rows[] = {
    {"Date",
     &date,
     {24, 11, 1},
     IVT_DATE,
     {2024, 5, 30, 0, 0, 0, NoWeekday, 0, true},
     {0x1E, 0x05, 0x18},
     {1989, 12, 31, 0, 0, 0, NoWeekday, 0, true},
     {0x1E, 0x02, 0x18}},
    {"Time",
     &time,
     {24, 10, 0},
     IVT_TIME,
     {0, 0, 0, 12, 30, 15, W::Monday, 0, true},
     {0x0C, 0x1E, 0x0F},
     {0, 0, 0, 24, 0, 0, NoWeekday, 0, true},
     {0x18, 0x00, 0x00}},
    {"TimeOfDay",
     &timeOfDay,
     {24, 10, 1},
     IVT_TIME,
     {0, 0, 0, 12, 30, 15, W::Monday, 0, true},
     {0x2C, 0x1E, 0x0F},
     {0, 0, 0, 24, 0, 0, W::Monday, 0, true},
     {0x38, 0x00, 0x00}},
    {"DateTime",
     &dateTime,
     {64, 19, 1},
     IVT_DATETIME,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x20, 0x00},
     {1899, 12, 31, 12, 30, 15, W::Thursday, 0, true},
     {0x7C, 0x05, 0x1E, 0x99, 0x1E, 0x0F, 0x00, 0x00}},
};

unsigned int BitsOf(const Row& row) {
  return row.dpt.bitSize;
}

class KnxConverterDateAndTime : public testing::TestWithParam<Row> {};

TEST_P(KnxConverterDateAndTime, CloneIsOfTheSameClassAndIndependent) {
  const Row& row = GetParam();
  std::unique_ptr<Nelmo::KnxConverter> clone(row.converter->Clone());
  ASSERT_NE(clone, nullptr);
  EXPECT_NE(clone.get(), row.converter);
  const Nelmo::KnxConverter& cloned = *clone;
  EXPECT_EQ(typeid(cloned), typeid(*row.converter));

  KnxStack::GroupValue fromClone;
  EXPECT_TRUE(clone->ToKnxValue(row.dpt, ValueOf(row.type, row.accepted), fromClone));
  EXPECT_EQ(BytesOf(fromClone), row.acceptedBytes);
  clone.reset();

  KnxStack::GroupValue fromPrototype;
  EXPECT_TRUE(row.converter->ToKnxValue(row.dpt, ValueOf(row.type, row.accepted), fromPrototype));
  EXPECT_EQ(BytesOf(fromPrototype), row.acceptedBytes);
}

TEST_P(KnxConverterDateAndTime, WritesNoTrace) {
  const Row& row = GetParam();
  LogCapture capture(ULO_LOG_TRACE);
  KnxStack::GroupValue groupValue;
  ULOVALUE received(row.type);

  EXPECT_TRUE(row.converter->ToKnxValue(row.dpt, ValueOf(row.type, row.accepted), groupValue));
  EXPECT_TRUE(row.converter->FromKnxValue(row.dpt, groupValue, received));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{});
}

// The facade has matched DPT and value type already; the converters read
// the date/time payload whatever the DPT and tag say.
TEST_P(KnxConverterDateAndTime, ChecksNeitherMainNumberNorValueType) {
  const Row& row = GetParam();
  LogCapture capture;
  KnxStack::GroupValue groupValue;
  ULOVALUE sent(IVT_BOOL);
  sent.SetTime(row.accepted);
  ULOVALUE received(IVT_BOOL);

  EXPECT_TRUE(row.converter->ToKnxValue(KNXDPT{1, 1, 1}, sent, groupValue));
  EXPECT_EQ(BytesOf(groupValue), row.acceptedBytes);
  EXPECT_TRUE(row.converter->FromKnxValue(KNXDPT{0, 0, 0}, groupValue, received));
  EXPECT_TRUE(received.GetTime().isSet);
  EXPECT_EQ(received.GetType(), IVT_BOOL);
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{});
}

TEST_P(KnxConverterDateAndTime, LogsNothingAndAllocatesNothingWithLoggingOff) {
  const Row& row = GetParam();
  LogCapture capture(ULO_LOG_OFF);
  const ULOVALUE accepted = ValueOf(row.type, row.accepted);
  const ULOVALUE refused = ValueOf(row.type, row.refused);
  const KnxStack::GroupValue invalid = GroupOf(row.invalidBytes, BitsOf(row));
  const KnxStack::GroupValue valid = GroupOf(row.acceptedBytes, BitsOf(row));
  KnxStack::GroupValue groupValue;
  ULOVALUE received(row.type);

  const std::uint64_t allocationsBefore = CountedAllocations::Total();
  const bool sentAccepted = row.converter->ToKnxValue(row.dpt, accepted, groupValue);
  const bool sentRefused = row.converter->ToKnxValue(row.dpt, refused, groupValue);
  const bool receivedValid = row.converter->FromKnxValue(row.dpt, valid, received);
  const bool receivedInvalid = row.converter->FromKnxValue(row.dpt, invalid, received);
  const std::uint64_t allocations = CountedAllocations::Total() - allocationsBefore;

  EXPECT_TRUE(sentAccepted);
  EXPECT_FALSE(sentRefused);
  EXPECT_TRUE(receivedValid);
  EXPECT_FALSE(receivedInvalid);
  EXPECT_EQ(allocations, 0u);
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{});
}

// Only the stack's exception is the converters' business; anything else,
// here from the log sink, reaches the caller.
TEST_P(KnxConverterDateAndTime, LetsOtherExceptionsPass) {
  const Row& row = GetParam();
  LogCapture capture(ULO_LOG_ERROR);
  UloLogSetSink([](UloLogLevel, std::string_view, std::string_view, std::string_view, int) {
    throw std::runtime_error("sink failed");
  });
  KnxStack::GroupValue groupValue;
  ULOVALUE received(row.type);

  EXPECT_THROW(row.converter->ToKnxValue(row.dpt, ValueOf(row.type, row.refused), groupValue), std::runtime_error);
  EXPECT_THROW(row.converter->FromKnxValue(row.dpt, GroupOf(row.invalidBytes, BitsOf(row)), received),
               std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Converters, KnxConverterDateAndTime, testing::ValuesIn(rows), RowName());

}  // namespace

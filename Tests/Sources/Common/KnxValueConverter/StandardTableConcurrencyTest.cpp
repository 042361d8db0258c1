// Several threads convert every standard row in both directions through one
// converter; built with ThreadSanitizer by `make tsan`.

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "KnxValueConverterApi.h"
#include "StandardRowSamples.h"

namespace {

using TestSupport::RowSample;

constexpr int ThreadCount = 4;
constexpr int ConversionsPerThread = 100000;

struct Expected {
  const RowSample* sample;
  KnxStack::BinaryData bytes;
  std::string received;  // the value's text after FromKnxValue of the bytes
  UloValueType receivedType;
};

std::vector<Expected> ExpectedResults(const Nelmo::KnxValueConverter& converter) {
  std::vector<Expected> expected;
  for (const RowSample& sample : TestSupport::StandardRowSamples()) {
    KNXDPT dpt = sample.dpt;
    const KnxStack::BinaryData bytes(sample.bytes.data(), static_cast<unsigned int>(sample.bytes.size()));
    const KnxStack::GroupValue groupValue(bytes, sample.dpt.bitSize);
    ULOVALUE value;
    EXPECT_TRUE(converter.FromKnxValue(dpt, groupValue, value)) << sample.name;
    expected.push_back(Expected{&sample, bytes, value.ToString(), value.GetType()});
  }
  return expected;
}

// Counts results that differ from the single-threaded ones; no assertion
// runs inside the threads.
int ConvertRepeatedly(const Nelmo::KnxValueConverter& converter, const std::vector<Expected>& expected, int offset) {
  int mismatches = 0;
  for (int i = 0; i < ConversionsPerThread; ++i) {
    const Expected& row = expected[static_cast<std::size_t>(i + offset) % expected.size()];
    KNXDPT dpt = row.sample->dpt;
    if (i % 2 == 0) {
      KnxStack::GroupValue groupValue;
      const bool converted = converter.ToKnxValue(dpt, row.sample->value, groupValue);
      mismatches += (!converted || groupValue.GetRawData() != row.bytes) ? 1 : 0;
    } else {
      const KnxStack::GroupValue groupValue(row.bytes, row.sample->dpt.bitSize);
      ULOVALUE value;
      const bool converted = converter.FromKnxValue(dpt, groupValue, value);
      mismatches += (!converted || value.GetType() != row.receivedType || value.ToString() != row.received) ? 1 : 0;
    }
  }
  return mismatches;
}

TEST(StandardTableConcurrency, SamplesEncodeToTheirBytesOnOneThread) {
  const Nelmo::KnxValueConverter converter;
  for (const RowSample& sample : TestSupport::StandardRowSamples()) {
    KNXDPT dpt = sample.dpt;
    KnxStack::GroupValue groupValue;
    ASSERT_TRUE(converter.ToKnxValue(dpt, sample.value, groupValue)) << sample.name;
    const KnxStack::BinaryData bytes(sample.bytes.data(), static_cast<unsigned int>(sample.bytes.size()));
    EXPECT_EQ(groupValue.GetRawData().ToString(), bytes.ToString()) << sample.name;
  }
}

TEST(StandardTableConcurrency, FourThreadsConvertEveryRowBothWays) {
  const Nelmo::KnxValueConverter converter;
  const std::vector<Expected> expected = ExpectedResults(converter);
  ASSERT_EQ(expected.size(), 48u);
  std::vector<int> mismatches(ThreadCount, -1);
  std::vector<std::thread> threads;
  threads.reserve(ThreadCount);
  for (int t = 0; t < ThreadCount; ++t) {
    threads.emplace_back(
        [&, t] { mismatches[static_cast<std::size_t>(t)] = ConvertRepeatedly(converter, expected, t); });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(mismatches, std::vector<int>(ThreadCount, 0));
}

}  // namespace

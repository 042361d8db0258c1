#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include "DptText.h"
#include "KnxValueConverterApi.h"
#include "LogForwarder.h"
#include "TraceReader.h"

// The example trace is meant to show every row of the standard table at
// work, and some telegrams that are refused.

namespace {

using namespace Knxconv;

TEST(ExampleTrace, UsesEveryRowOfTheStandardTable) {
  std::ifstream file(KNXCONV_EXAMPLE_TRACE);
  ASSERT_TRUE(file) << KNXCONV_EXAMPLE_TRACE;
  TraceReader reader(file);
  const Nelmo::KnxValueConverter converter;
  const QuietLog quiet;
  std::set<const Nelmo::DptValueEntry*> used;
  std::size_t withoutRow = 0;
  Telegram telegram;
  while (reader.Next(telegram)) {
    ASSERT_EQ(telegram.error, "") << "line " << telegram.lineNumber;
    const Nelmo::DptValueEntry& entry = converter.GetEntry(ParseDpt(telegram.dpt));
    if (entry.valueType == IVT_ANY) {
      ++withoutRow;
    } else {
      used.insert(&entry);
    }
  }
  for (const auto& [mainNumber, rows] : converter.GetDptValueMap().GetEntries()) {
    for (const auto& [subNumber, entry] : rows) {
      EXPECT_EQ(used.count(&entry), 1U) << "no telegram for " << mainNumber << "." << subNumber;
    }
  }
  EXPECT_EQ(used.size(), 48U);
  EXPECT_GE(withoutRow, 2U);
}

}  // namespace

#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "CountedAllocations.h"
#include "KnxConverter.h"
#include "LogCapture.h"

// Checks that the converter tests make of every converter family.
namespace TestSupport {

// The clone is of the source's own class and carries an equal range.
template <typename Converter>
void ExpectCloneKeepsRange(const Converter& source) {
  std::unique_ptr<Nelmo::KnxConverter> clone(source.Clone());
  const auto* copy = dynamic_cast<const Converter*>(clone.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_NE(copy, &source);
  EXPECT_EQ(copy->GetRange().internalMinimum, source.GetRange().internalMinimum);
  EXPECT_EQ(copy->GetRange().internalMaximum, source.GetRange().internalMaximum);
  EXPECT_EQ(copy->GetRange().externalMinimum, source.GetRange().externalMinimum);
  EXPECT_EQ(copy->GetRange().externalMaximum, source.GetRange().externalMaximum);
  EXPECT_EQ(copy->GetRange().scaleFactor, source.GetRange().scaleFactor);
}

// Sending the value and receiving it back, both accepted, allocate nothing
// while logging is off.
inline void ExpectRoundTripAllocatesNothing(Nelmo::KnxConverter& converter, const KNXDPT& dpt, const ULOVALUE& value) {
  KnxStack::GroupValue groupValue;
  ULOVALUE received(value.GetType());
  LogCapture capture(ULO_LOG_OFF);
  EXPECT_EQ(CountedAllocations::During([&] {
              EXPECT_TRUE(converter.ToKnxValue(dpt, value, groupValue));
              EXPECT_TRUE(converter.FromKnxValue(dpt, groupValue, received));
            }),
            0);
}

}  // namespace TestSupport

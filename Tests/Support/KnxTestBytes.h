#pragma once

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "KnxStack.h"

// Bus bytes for the tests of the stack, the converters and the facade:
// group values built from bytes and compared as bytes, so that tables of
// values and bus bytes read like the bus format.
namespace KnxTest {

using Bytes = std::vector<unsigned char>;

// Bytes written the way BinaryData::ToString writes them ("0C 33").
inline Bytes HexBytes(const std::string& hex) {
  Bytes bytes;
  std::istringstream stream(hex);
  unsigned int byte = 0;
  while (stream >> std::hex >> byte) {
    bytes.push_back(static_cast<unsigned char>(byte));
  }
  return bytes;
}

inline KnxStack::BinaryData DataOf(const Bytes& bytes) {
  return KnxStack::BinaryData(bytes.data(), static_cast<unsigned int>(bytes.size()));
}

inline KnxStack::BinaryData Hex(const std::string& hex) {
  return DataOf(HexBytes(hex));
}

// A group value as it arrives from the bus.
inline KnxStack::GroupValue GroupOf(const Bytes& bytes, unsigned int bits) {
  return KnxStack::GroupValue(DataOf(bytes), bits);
}

inline KnxStack::GroupValue Received(const std::string& hex, unsigned int bits) {
  return GroupOf(HexBytes(hex), bits);
}

inline Bytes BytesOf(const KnxStack::GroupValue& groupValue) {
  const KnxStack::BinaryData& data = groupValue.GetRawData();
  return Bytes(data.GetData(), data.GetData() + data.GetLength());
}

// The group value's bytes and defined size, as the bus would carry them.
inline ::testing::AssertionResult Holds(const KnxStack::GroupValue& groupValue, const Bytes& bytes, unsigned int bits) {
  const KnxStack::BinaryData expected = DataOf(bytes);
  if (groupValue.GetRawData() == expected && groupValue.GetDefinedSize() == bits) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "holds [" << groupValue.GetRawData().ToString() << "] of "
                                       << groupValue.GetDefinedSize() << " bits, expected [" << expected.ToString()
                                       << "] of " << bits << " bits";
}

// Runs call, which must throw GroupValueException; gives its text, or ""
// after a failure when it does not throw.
template <typename Call>
std::string GroupValueExceptionText(Call&& call) {
  try {
    call();
  } catch (const KnxStack::GroupValueException& exception) {
    return exception.what();
  }
  ADD_FAILURE() << "no GroupValueException";
  return "";
}

// Runs a setter that must refuse what it is given, and checks the reason and
// that the value it was called on is unchanged.
template <typename Set>
void ExpectRefused(Set&& set, const char* what) {
  KnxStack::GroupValue value = Received("0C 33", 16);
  EXPECT_EQ(GroupValueExceptionText([&] { set(value); }), what);
  EXPECT_EQ(value.GetRawData().ToString(), "0C 33");
  EXPECT_EQ(value.GetDefinedSize(), 16u);
}

}  // namespace KnxTest

#pragma once

#include <string_view>

#include "KnxStack.h"
#include "UloPlatform.h"

namespace Floor {

// One standard row converted by hand, straight through the platform's value
// and group value accessors and the row's range arithmetic, with the
// platform's own checks the row's converter asks (a received date or time is
// valid): what a conversion costs at the least, to measure the facade
// against.
struct Conversion {
  std::string_view row;  // the sample's name, "9.001"
  void (*toKnx)(const ULOVALUE& value, KnxStack::GroupValue& groupValue);
  void (*fromKnx)(const KnxStack::GroupValue& groupValue, ULOVALUE& value);
};

// The hand-written conversion of a sample row; null for an unknown name.
const Conversion* Find(std::string_view row);

}  // namespace Floor

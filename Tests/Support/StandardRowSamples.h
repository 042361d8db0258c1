#pragma once

#include <string>
#include <vector>

#include "UloPlatform.h"

namespace TestSupport {

// One ordinary value per standard DPT row and the bytes it becomes on the
// bus: shared by the benchmark, the concurrency test and the fuzz seeds.
struct RowSample {
  std::string name;  // "9.001": main number and three-digit sub number
  KNXDPT dpt;
  ULOVALUE value;
  std::vector<unsigned char> bytes;
};

const std::vector<RowSample>& StandardRowSamples();

}  // namespace TestSupport

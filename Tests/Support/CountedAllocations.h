#pragma once

#include <cstdint>

// Heap allocations made through the global operator new, which every test
// and benchmark program replaces by linking CountedAllocations.cpp, so that
// a test can show a conversion to allocate nothing while logging is off.
namespace CountedAllocations {

std::uint64_t Total();

// The number of allocations that call() makes.
template <typename Call>
long During(Call&& call) {
  const std::uint64_t before = Total();
  call();
  return static_cast<long>(Total() - before);
}

}  // namespace CountedAllocations

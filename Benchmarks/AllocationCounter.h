#pragma once

#include <cstdint>

// Heap allocations made through the global operator new since the program
// started; the benchmark program replaces operator new to count them.
std::uint64_t AllocationCount();

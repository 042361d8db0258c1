#pragma once

// Replaces the global operator new of the test program that includes this
// header, so that a test can show a conversion to allocate nothing while
// logging is off. Include it in exactly one source file of a program.

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace CountedAllocations {
inline std::atomic<long> count{0};
}  // namespace CountedAllocations

void* operator new(std::size_t size) {
  ++CountedAllocations::count;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace CountedAllocations {

// The number of allocations that call() makes.
template <typename Call>
long During(Call&& call) {
  const long before = count.load();
  call();
  return count.load() - before;
}

}  // namespace CountedAllocations

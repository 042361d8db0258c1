#include "CountedAllocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

// Kept out of line in a file of their own: the compiler must not see these
// replacements next to the new-expressions they serve.

namespace {

std::atomic<std::uint64_t> g_total{0};

void* Allocate(std::size_t size) {
  g_total.fetch_add(1, std::memory_order_relaxed);
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}

}  // namespace

namespace CountedAllocations {

std::uint64_t Total() {
  return g_total.load(std::memory_order_relaxed);
}

}  // namespace CountedAllocations

void* operator new(std::size_t size) {
  return Allocate(size);
}

void* operator new[](std::size_t size) {
  return Allocate(size);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete[](void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

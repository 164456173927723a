#include "tests/support/AllocationCounter.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

}  // namespace

std::size_t tactix::tests::Allocations() { return count; }

void* operator new(std::size_t size) {
  ++count;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
// Sanitizers have one of their own, whose memory is not for free().
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++count;
  return std::malloc(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {
// A count that threads share would go from processor to processor at each call, and be measured too.
thread_local std::int64_t allocations = 0;
}  // namespace

std::int64_t bench::Allocations() { return allocations; }

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

#include "tests/support/Allocations.h"
#include "tests/support/Heap.h"

#include <cstdlib>
#include <malloc.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define STRAKE_ADDRESS_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define STRAKE_ADDRESS_SANITIZED
#endif

namespace strake::tests {

Heap HeapNow() {
#ifdef STRAKE_ADDRESS_SANITIZED
  return {.blocks = Allocations::Live(), .bytes = 0};
#else
  return {.blocks = Allocations::Live(), .bytes = mallinfo2().uordblks};
#endif
}

// Its header included.
std::size_t HeapBytesOf(std::size_t size) {
  void* const block = std::malloc(size);
  const std::size_t taken = malloc_usable_size(block) + sizeof(std::size_t);
  std::free(block);
  return taken;
}

}  // namespace strake::tests

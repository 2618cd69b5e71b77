#include "os/AddressSanitized_posix.h"
#include "tests/support/Allocations.h"
#include "tests/support/Heap.h"

#include <cstdlib>
#include <malloc.h>

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

#include "tests/support/Heap.h"

#include <cstdlib>
#include <malloc.h>

namespace strake::tests {

// Every library has the operators new and delete of the shared one, which takes
// from the C library's heap.
Heap HeapNow() {
  Heap heap;
  _HEAPINFO entry{};
  while (::_heapwalk(&entry) == _HEAPOK) {
    if (entry._useflag == _USEDENTRY) {
      ++heap.blocks;
      heap.bytes += entry._size;
    }
  }
  return heap;
}

std::size_t HeapBytesOf(std::size_t size) {
  void* const block = std::malloc(size);
  const std::size_t taken = ::_msize(block);
  std::free(block);
  return taken;
}

}  // namespace strake::tests

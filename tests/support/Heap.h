// What this process has of the heap.
#pragma once

#include <cstddef>

namespace strake::tests {

struct Heap {
  long blocks = 0;        // allocated and not yet freed, by operator new at least
  std::size_t bytes = 0;  // of all that is allocated; 0: nobody counts them
};

Heap HeapNow();

// What an object of the size takes of these bytes.
std::size_t HeapBytesOf(std::size_t size);

}  // namespace strake::tests

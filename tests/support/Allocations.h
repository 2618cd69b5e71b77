// Counts every operator new of the process and can make one of them fail. A
// program that links this replaces operator new and delete.
#pragma once

#include <cstddef>

namespace strake::tests {

struct Allocations {
  static long Live();       // blocks that are allocated and not yet freed
  static long Made();       // since Count() began
  static long MadeBytes();  // their sizes as asked for
  static void Count();      // counts from 0
  // Told when the first allocation fails; must not allocate.
  using Witness = void (*)(void* context);
  // The k-th allocation from now on throws std::bad_alloc; with `all`, those
  // behind it too. Counts from 0.
  static void FailAt(long k, bool all, Witness witness = nullptr, void* context = nullptr);
  static void FailNever();
  static long Failed();  // since FailAt
};

}  // namespace strake::tests

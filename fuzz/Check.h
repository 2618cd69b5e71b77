// What must hold whatever the input is.
#pragma once

#include <iostream>

namespace strake::fuzz {

// Traps, which a fuzzer counts as a crash and a debugger stops at.
inline void Check(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "broken: " << what << std::endl;
  __builtin_trap();
}

}  // namespace strake::fuzz

// What libFuzzer calls. Compiled once for each harness; STRAKE_FUZZ_HARNESS
// names it.
#include "fuzz/Harnesses.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return strake::fuzz::STRAKE_FUZZ_HARNESS(data, size);
}

// What libFuzzer calls. Compiled once for each harness; STRAKE_FUZZ_HARNESS is
// its name.
#include "fuzz/Harnesses.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const strake::fuzz::Harness* kHarness = strake::fuzz::FindHarness(STRAKE_FUZZ_HARNESS);
  static_assert(kHarness != nullptr, "a folder of seeds has no harness");
  return kHarness->run(data, size);
}

// The fuzz harnesses. Each takes any bytes, returns 0 and traps when something
// is broken. Entry.cpp makes one of them what libFuzzer calls; the tests replay
// the corpus through all of them in one program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace strake::fuzz {

// The bytes are the text of a server description; one that is accepted is queried.
int FuzzDescription(const std::uint8_t* data, std::size_t size);
// The bytes are a server and queries (ServerBytes.h), run through the module's code.
int FuzzQuery(const std::uint8_t* data, std::size_t size);
// The bytes are the text of a trace; one that is accepted is written as a
// description, as it is and scrubbed, and read again.
int FuzzReplay(const std::uint8_t* data, std::size_t size);
// The bytes are a finished collection (ReportBytes.h), written in every format.
int FuzzReport(const std::uint8_t* data, std::size_t size);
// The bytes are a reply, given to the element walk and to every decoder.
int FuzzWalk(const std::uint8_t* data, std::size_t size);

struct Harness {
  std::string_view name;  // its seeds are fuzz/corpus/NAME, its program is fuzz_NAME
  int (*run)(const std::uint8_t* data, std::size_t size);
};

// CMake and scripts/fuzz know them by their folders of seeds.
inline constexpr Harness kHarnesses[] = {
    {"description", FuzzDescription}, {"query", FuzzQuery}, {"replay", FuzzReplay},
    {"report", FuzzReport},           {"walk", FuzzWalk},
};

// Null when there is none of the name.
constexpr const Harness* FindHarness(std::string_view name) {
  for (const Harness& harness : kHarnesses) {
    if (harness.name == name) return &harness;
  }
  return nullptr;
}

}  // namespace strake::fuzz

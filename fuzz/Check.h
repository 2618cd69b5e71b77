// What must hold whatever the input is.
#pragma once

#include <algorithm>
#include <iostream>
#include <string_view>

namespace strake::fuzz {

// Traps, which a fuzzer counts as a crash and a debugger stops at.
inline void Check(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "broken: " << what << std::endl;
  __builtin_trap();
}

// Of an input: one short line that names it.
inline void CheckRefusal(std::string_view message, std::string_view source) {
  constexpr std::size_t kLongest = 1024;
  Check(message.starts_with(source), "a refusal names the file");
  Check(message.size() <= kLongest, "a refusal is short");
  Check(std::ranges::all_of(message, [](char byte) { return byte >= ' ' && byte <= '~'; }),
        "a refusal is one line of printable ASCII");
}

}  // namespace strake::fuzz

// The fuzz harnesses. Each takes any bytes, returns 0 and traps when something
// is broken. Entry.cpp makes one of them what libFuzzer calls; the tests replay
// the corpus through all of them in one program.
#pragma once

#include <cstddef>
#include <cstdint>

namespace strake::fuzz {

// The bytes are a server and queries (ServerBytes.h), run through the module's code.
int FuzzQuery(const std::uint8_t* data, std::size_t size);
// The bytes are a reply, given to the element walk and to every decoder.
int FuzzWalk(const std::uint8_t* data, std::size_t size);
// The bytes are the text of a server description; one that is accepted is queried.
int FuzzDescription(const std::uint8_t* data, std::size_t size);

}  // namespace strake::fuzz

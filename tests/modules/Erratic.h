// What the erratic module does to its process, as each system does it.
#pragma once

#include <string>

namespace strake::tests {

enum class Stream { Output, Errors };

// Past every buffer.
void WriteTo(Stream stream, const std::string& text);

// Ends the process as a fault does, and leaves nothing on the disk.
[[noreturn]] void EndByFault();

}  // namespace strake::tests

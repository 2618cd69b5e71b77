// Reads a whole input, without trusting its size or its kind.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>

namespace strake::os {

// Gives more than `most` bytes when there are more, but not many: a device that
// never ends and a huge file cost no more than the largest input. Throws
// text::InputError: "NAME: cannot be read: REASON", on one line.
std::string ReadInput(const std::filesystem::path& file, std::size_t most);
std::string ReadInput(std::FILE* stream, const std::string& name, std::size_t most);

}  // namespace strake::os

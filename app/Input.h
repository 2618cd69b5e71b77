// The inputs that a subcommand is given by name.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace strake::app {

inline constexpr const char* kStandardInput = "-";

// For messages: "standard input", or the file's own.
// "-", /dev/stdin and their like.
bool IsStandardInput(const std::filesystem::path& file);

std::string InputName(const std::filesystem::path& file);

// All of it, and a little more than the most where there is more. Throws
// text::InputError.
std::string ReadWholeInput(const std::filesystem::path& file, std::size_t most);

}  // namespace strake::app

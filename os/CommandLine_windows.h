// A command line as Windows' programs take it apart. For the sources of this folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace strake::os {

// A word whatever it holds: in double quotes.
std::wstring InQuotes(std::wstring_view word);

std::wstring CommandLine(const std::filesystem::path& program,
                         const std::vector<std::string>& words);

}  // namespace strake::os

// Where the plug-in module lies.
#pragma once

#include <filesystem>

namespace strake::app {

// Its file's name, "strake.so" or "strake.dll".
extern const char* const kModuleName;

// The module beside the command or in the folder of libraries that belongs to
// it. Throws RunError when there is none.
std::filesystem::path FindModule(const std::filesystem::path& commandFolder);

}  // namespace strake::app

// A file that is read, as each system opens it. For the sources of this folder.
#pragma once

#include <cstdio>
#include <filesystem>

namespace strake::os {

// For its bytes as they are; null, with errno: it cannot be read.
std::FILE* OpenInput(const std::filesystem::path& file);

}  // namespace strake::os

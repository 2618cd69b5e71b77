// The running command's file, and where it lies.
#pragma once

#include <filesystem>

namespace strake::os {

std::filesystem::path CommandFile();
std::filesystem::path CommandFolder();

}  // namespace strake::os

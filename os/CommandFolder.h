// Where the running command lies.
#pragma once

#include <filesystem>

namespace strake::os {

std::filesystem::path CommandFolder();

}  // namespace strake::os

#include "os/CommandFolder.h"

namespace strake::os {

std::filesystem::path CommandFile() { return std::filesystem::read_symlink("/proc/self/exe"); }

std::filesystem::path CommandFolder() { return CommandFile().parent_path(); }

}  // namespace strake::os

#include "os/CommandFolder.h"

namespace strake::os {

std::filesystem::path CommandFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

}  // namespace strake::os

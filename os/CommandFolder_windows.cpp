#include "os/CommandFolder.h"
#include "os/Handle_windows.h"

namespace strake::os {

std::filesystem::path CommandFile() { return NameOfModule(nullptr); }

std::filesystem::path CommandFolder() { return CommandFile().parent_path(); }

}  // namespace strake::os

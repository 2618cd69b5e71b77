#include "os/OpenedInput.h"

namespace strake::os {

std::FILE* OpenInput(const std::filesystem::path& file) { return std::fopen(file.c_str(), "rbe"); }

}  // namespace strake::os

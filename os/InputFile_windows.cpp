#include "os/OpenedInput.h"

#include <cerrno>
#include <system_error>

namespace strake::os {

std::FILE* OpenInput(const std::filesystem::path& file) {
  std::error_code ignored;
  if (std::filesystem::is_directory(file, ignored)) {
    errno = EISDIR;
    return nullptr;
  }
  return ::_wfopen(file.c_str(), L"rbN");
}

}  // namespace strake::os

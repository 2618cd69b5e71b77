// Reads a description out of a file.
#include "os/InputFile.h"
#include "platform/server/ServerDescription.h"

namespace strake::platform {
ServerDescription ReadServerDescription(const std::filesystem::path& file) {
  return ParseServerDescription(os::ReadInput(file, kMostDescriptionBytes), file.string());
}

ServerDescription ReadServerDescription(std::FILE* stream, const std::string& source) {
  return ParseServerDescription(os::ReadInput(stream, source, kMostDescriptionBytes), source);
}

}  // namespace strake::platform

// Reads a description out of a file.
#include "os/InputFile.h"
#include "platform/server/ServerDescription.h"

namespace strake::platform {
namespace {

// What cannot be read is refused like any other description.
template <typename Source, typename... Name>
std::string Read(const Source& source, const Name&... name) {
  try {
    return os::ReadInput(source, name..., kMostDescriptionBytes);
  } catch (const os::InputError& error) {
    throw DescriptionError(error.what());
  }
}

}  // namespace

ServerDescription ReadServerDescription(const std::filesystem::path& file) {
  return ParseServerDescription(Read(file), file.string());
}

ServerDescription ReadServerDescription(std::FILE* stream, const std::string& source) {
  return ParseServerDescription(Read(stream, source), source);
}

}  // namespace strake::platform

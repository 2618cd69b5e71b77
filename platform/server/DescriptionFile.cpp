// Reads a description out of a file, without trusting its size or its kind.
#include "platform/server/ServerDescription.h"
#include "text/TextEscape.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace strake::platform {
namespace {

struct Closer {
  // Nothing was written, so closing has nothing to say.
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

[[noreturn]] void Refuse(const std::string& name, int error) {
  throw DescriptionError(text::EscapeForPeople(name) +
                         ": cannot be read: " + std::generic_category().message(error));
}

// At most one byte more than a description may have, so that a device that
// never ends and a huge file cost no more than the largest description.
std::string ReadBytes(std::FILE* file, const std::string& name) {
  std::string text;
  constexpr std::size_t kChunk = std::size_t{64} * 1024;
  while (text.size() <= kMostDescriptionBytes) {
    const std::size_t filled = text.size();
    text.resize(filled + kChunk);
    const std::size_t count = std::fread(&text.at(filled), 1, kChunk, file);
    text.resize(filled + count);
    if (std::ferror(file) != 0) {
      Refuse(name, errno);
    }
    if (count == 0) {
      break;
    }
  }
  return text;
}

}  // namespace

ServerDescription ReadServerDescription(const std::filesystem::path& file) {
  const std::unique_ptr<std::FILE, Closer> stream(std::fopen(file.c_str(), "rbe"));
  if (stream == nullptr) {
    Refuse(file.string(), errno);
  }
  return ReadServerDescription(stream.get(), file.string());
}

ServerDescription ReadServerDescription(std::FILE* stream, const std::string& source) {
  return ParseServerDescription(ReadBytes(stream, source), source);
}

}  // namespace strake::platform

#include "os/InputFile.h"

#include "os/OpenedInput.h"
#include "text/InputError.h"
#include "text/TextEscape.h"

#include <cerrno>
#include <memory>
#include <system_error>

namespace strake::os {
namespace {

struct Closer {
  // Nothing was written, so closing has nothing to say.
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

[[noreturn]] void Refuse(const std::string& name, int error) {
  throw text::InputError(text::EscapeForPeople(name) +
                         ": cannot be read: " + std::generic_category().message(error));
}

}  // namespace

std::string ReadInput(const std::filesystem::path& file, std::size_t most) {
  const std::unique_ptr<std::FILE, Closer> stream(OpenInput(file));
  if (stream == nullptr) {
    Refuse(file.string(), errno);
  }
  return ReadInput(stream.get(), file.string(), most);
}

std::string ReadInput(std::FILE* stream, const std::string& name, std::size_t most) {
  std::string text;
  constexpr std::size_t kChunk = std::size_t{64} * 1024;
  while (text.size() <= most) {
    const std::size_t filled = text.size();
    text.resize(filled + kChunk);
    const std::size_t count = std::fread(&text.at(filled), 1, kChunk, stream);
    text.resize(filled + count);
    if (std::ferror(stream) != 0) {
      Refuse(name, errno);
    }
    if (count == 0) {
      break;
    }
  }
  return text;
}

}  // namespace strake::os

#include "app/Input.h"

#include "os/FileIdentity.h"
#include "os/InputFile.h"

#include <cstdio>

namespace strake::app {

bool IsStandardInput(const std::filesystem::path& file) {
  return file == kStandardInput || os::NamedDescriptor(file) == os::kStandardInput;
}

std::string InputName(const std::filesystem::path& file) {
  return file == kStandardInput ? "standard input" : file.string();
}

std::string ReadWholeInput(const std::filesystem::path& file, std::size_t most) {
  return file == kStandardInput ? os::ReadInput(stdin, InputName(file), most)
                                : os::ReadInput(file, most);
}

}  // namespace strake::app

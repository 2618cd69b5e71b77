#include "app/Output.h"

#include "os/FileIdentity.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace strake::app {

void WriteToStandardOutput(const WriteTo& write) {
  constexpr std::size_t kPiece = 65536;
  std::string pending;
  write([&pending](std::string_view text) {
    pending += text;
    if (pending.size() >= kPiece) {
      os::WriteStandardOutput(pending);
      pending.clear();
    }
  });
  os::WriteStandardOutput(pending);
}

void WriteToFile(os::OutputFile& file, const WriteTo& write) {
  write([&file](std::string_view text) { file.Write(text); });
  file.Complete();
}

void WriteOutput(const std::optional<std::filesystem::path>& name, const WriteTo& write) {
  if (!name || os::NamedDescriptor(*name) == os::kStandardOutput) {
    WriteToStandardOutput(write);
  } else {
    os::OutputFile file(*name, os::Privacy::Usual);
    WriteToFile(file, write);
  }
}

}  // namespace strake::app

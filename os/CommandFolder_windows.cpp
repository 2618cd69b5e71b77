#include "os/CommandFolder.h"
#include "os/Handle_windows.h"

#include <string>

namespace strake::os {

std::filesystem::path CommandFile() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        ::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length == 0) {
      FailBy();
    }
    if (length < name.size()) {
      name.resize(length);
      return name;
    }
    name.resize(name.size() * 2);
  }
}

std::filesystem::path CommandFolder() { return CommandFile().parent_path(); }

}  // namespace strake::os

#include "os/CommandWords.h"
#include "os/Handle_windows.h"

#include <memory>
#include <shellapi.h>
#include <span>

namespace strake::os {

// What main was given has lost what the code page lacks.
std::vector<std::string> CommandWords(int /*argc*/, const char* const* /*argv*/) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words(
      ::CommandLineToArgvW(::GetCommandLineW(), &count), &::LocalFree);
  if (words == nullptr) {
    FailBy();
  }
  std::vector<std::string> result;
  for (const wchar_t* const word : std::span(words.get(), static_cast<std::size_t>(count))) {
    result.push_back(ToUtf8(word));
  }
  return result;
}

}  // namespace strake::os

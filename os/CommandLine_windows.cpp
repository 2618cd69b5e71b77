#include "os/CommandLine_windows.h"

#include "os/Handle_windows.h"

namespace strake::os {

// A quote in it, and the backslashes before one, stand behind a backslash.
std::wstring InQuotes(std::wstring_view word) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t character : word) {
    if (character == L'"') {
      quoted.append(backslashes + 1, L'\\');
    }
    backslashes = character == L'\\' ? backslashes + 1 : 0;
    quoted += character;
  }
  quoted.append(backslashes, L'\\');
  return quoted + L'"';
}

std::wstring CommandLine(const std::filesystem::path& program,
                         const std::vector<std::string>& words) {
  std::wstring line = InQuotes(program.native());
  for (const std::string& word : words) {
    line += L' ' + InQuotes(ToWide(word));
  }
  return line;
}

}  // namespace strake::os

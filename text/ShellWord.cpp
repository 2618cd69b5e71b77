#include "text/ShellWord.h"

#include <algorithm>

namespace strake::text {

std::string ShellWord(std::string_view word) {
  const auto isPlain = [](char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') ||
           std::string_view("_-.,/+:=@").find(character) != std::string_view::npos;
  };
  if (!word.empty() && std::ranges::all_of(word, isPlain)) {
    return std::string(word);
  }
  std::string quoted(1, '\'');
  for (const char character : word) {
    if (character == '\'') {
      quoted += "'\\'";  // closed, one quote, opened
    }
    quoted += character;
  }
  quoted += '\'';
  return quoted;
}

}  // namespace strake::text

#include "text/QuoteForShell.h"

namespace strake::text {
namespace {

// No shell reads anything else in it.
bool IsPlain(std::string_view text) {
  constexpr std::string_view kPlain =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-./";
  return !text.empty() && text.find_first_not_of(kPlain) == std::string_view::npos;
}

}  // namespace

std::string QuotedForShell(std::string_view text) {
  if (IsPlain(text)) {
    return std::string(text);
  }
  std::string word = "'";
  for (const char character : text) {
    if (character == '\'') {
      word += R"('\'')";
    } else {
      word += character;
    }
  }
  return word += '\'';
}

std::string QuotedForFish(std::string_view text) {
  if (IsPlain(text)) {
    return std::string(text);
  }
  std::string word = "'";
  word += WithBackslashes(text, R"(\')");
  return word += '\'';
}

std::string WithBackslashes(std::string_view text, std::string_view characters) {
  std::string escaped;
  for (const char character : text) {
    if (characters.find(character) != std::string_view::npos) {
      escaped += '\\';
    }
    escaped += character;
  }
  return escaped;
}

}  // namespace strake::text

#include "text/EscapeCsv.h"

#include "text/TextEscape.h"

#include <algorithm>

namespace strake::text {
namespace {

constexpr std::string_view kFormulaFronts = "=+-@\t\r";
constexpr std::string_view kQuotedCharacters = ",\"\r\n";

bool IsOneOf(std::string_view characters, char character) {
  return characters.find(character) != std::string_view::npos;
}

void SkipSign(std::string_view& text) {
  if (!text.empty() && IsOneOf("+-", text.front())) {
    text.remove_prefix(1);
  }
}

// Gives how many there were.
std::size_t SkipDigits(std::string_view& text) {
  const auto end =
      std::ranges::find_if_not(text, [](char one) { return one >= '0' && one <= '9'; });
  const auto count = static_cast<std::size_t>(end - text.begin());
  text.remove_prefix(count);
  return count;
}

std::string InQuotes(std::string_view text) {
  std::string cell = "\"";
  cell.reserve(text.size() + 2);
  for (const char character : text) {
    if (character == '"') {
      cell += '"';
    }
    cell += character;
  }
  return cell += '"';
}

}  // namespace

bool IsDecimalNumber(std::string_view text) {
  SkipSign(text);
  if (SkipDigits(text) == 0) {
    return false;
  }
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    if (SkipDigits(text) == 0) {
      return false;
    }
  }
  if (!text.empty() && IsOneOf("eE", text.front())) {
    text.remove_prefix(1);
    SkipSign(text);
    if (SkipDigits(text) == 0) {
      return false;
    }
  }
  return text.empty();
}

std::string EscapeCsv(std::string_view text) {
  std::string cell = ToValidUtf8(text);
  if (!cell.empty() && IsOneOf(kFormulaFronts, cell.front()) && !IsDecimalNumber(cell)) {
    cell.insert(cell.begin(), '\'');
  }
  const bool isPlain =
      std::ranges::none_of(cell, [](char one) { return IsOneOf(kQuotedCharacters, one); });
  return isPlain ? cell : InQuotes(cell);
}

}  // namespace strake::text

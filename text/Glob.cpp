#include "text/Glob.h"

#include <cstddef>

namespace strake::text {
namespace {

char ToLower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}

bool MatchesOne(char pattern, char character) {
  return pattern == '?' || ToLower(pattern) == ToLower(character);
}

}  // namespace

// Only the last star is gone back to: whatever an earlier one could still take,
// a later one can take as well.
bool MatchesGlob(std::string_view pattern, std::string_view text) {
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t place = 0;
  std::size_t star = kNone;
  std::size_t taken = 0;  // where the text goes on behind what the star took
  for (std::size_t at = 0; at < text.size();) {
    if (place < pattern.size() && pattern[place] == '*') {
      star = place++;
      taken = at;
    } else if (place < pattern.size() && MatchesOne(pattern[place], text[at])) {
      ++place;
      ++at;
    } else if (star != kNone) {
      place = star + 1;
      at = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', place) == kNone;
}

}  // namespace strake::text

#include "os/CommandWords.h"

#include <cstddef>
#include <span>

namespace strake::os {

std::vector<std::string> CommandWords(int argc, const char* const* argv) {
  const std::span<const char* const> words(argv, static_cast<std::size_t>(argc));
  return {words.begin(), words.end()};
}

}  // namespace strake::os

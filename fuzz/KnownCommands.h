// The dot commands that the plug-in sends, so that an input names one with a
// single byte and not by chance.
#pragma once

#include "platform/server/ServerDescription.h"

#include <cstddef>
#include <vector>

namespace strake::fuzz {

// The place of the instance number in an identifier that has one.
inline constexpr std::size_t kInstancePlace = 3;

struct KnownCommand {
  platform::Identifier identifier;
  bool isNumbered;  // the byte at kInstancePlace is any instance's
};

// The presence test comes first.
const std::vector<KnownCommand>& KnownCommands();

}  // namespace strake::fuzz

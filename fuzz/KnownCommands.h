// The dot commands that the plug-in sends, so that an input names one with a
// single byte and not by chance.
#pragma once

#include "platform/server/Reply.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace strake::fuzz {

// The place of the instance number in an identifier that has one.
inline constexpr std::size_t kInstancePlace = 3;

struct KnownCommand {
  platform::Identifier identifier;
  bool isNumbered = false;  // the byte at kInstancePlace is any instance's
  // Names the command in an input, whatever else there is to name. A command
  // that has none yet is named by its identifier.
  std::optional<unsigned char> number = std::nullopt;
};

// A number has seven bits; this one stands before an identifier.
inline constexpr unsigned char kUnnumbered = 127;

// Every command of the plug-in.
const std::vector<KnownCommand>& KnownCommands();
// Null when no command has the number.
const KnownCommand* CommandNumbered(unsigned char number);

// The numbers, each beside its command in dot notation. They are kept for good:
// a new command takes the next one that was never used, at most 126.
struct CommandNumber {
  unsigned char number;
  std::string_view command;
};
std::span<const CommandNumber> CommandNumbers();

}  // namespace strake::fuzz

// A command's identifier and what it is answered with.
#pragma once

#include <string>
#include <vector>

namespace strake::platform {

struct Reply {
  std::string bytes;
  int length = 0;  // as reported; any number
  bool succeeds = true;

  bool operator==(const Reply&) const = default;
};

// The first send gets the first reply, and so on; the last one stays.
// Never empty.
using ReplySequence = std::vector<Reply>;

// An identifier's bytes, as a string so that it orders and compares as bytes.
using Identifier = std::string;

}  // namespace strake::platform

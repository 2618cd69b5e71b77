// What the three Kestle readers share.
#pragma once

#include "plugin/spaccess/KestleReply.h"

#include <array>

namespace strake {

// A list that a Tavit processor is asked for. Code and checksum add up to 0
// modulo 256.
struct KestleRequest {
  const char* name;  // as the messages call it
  unsigned char code;
  unsigned char checksum;
};

using KestleReply = std::array<unsigned char, kKestleReplySize>;

}  // namespace strake

// A dot command as people write it.
#pragma once

#include "plugin/frame/Text.h"

#include <span>

namespace strake {

// An identifier as a part of a log line: each byte in decimal followed by "."
// (4, 4, 1 reads 4.4.1. with the trailing point).
inline ByteListText DotCommandText(std::span<const unsigned char> identifier) {
  return {.bytes = identifier, .behind = '.'};
}

}  // namespace strake

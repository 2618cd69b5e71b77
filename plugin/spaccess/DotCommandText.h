// A dot command as people write it.
#pragma once

#include "plugin/frame/LogLine.h"

#include <span>
#include <string>

namespace strake {

// An identifier as a part of a log line: each byte in decimal followed by "."
// (4, 4, 1 reads 4.4.1. with the trailing point).
struct DotCommandText {
  std::span<const unsigned char> identifier;
};

void AppendPart(std::string& text, const DotCommandText& dotCommand);

}  // namespace strake

// Printed status addresses, which differ from run to run.
#pragma once

#include <string>
#include <string_view>

namespace strake::tests {

// With ADDR in place of each, in the lines of a trace.
inline std::string MaskAddresses(const std::string& text) {
  static constexpr std::string_view kBefore = " Status: 0x";
  std::string masked;
  std::size_t from = 0;
  for (auto at = text.find(kBefore); at != std::string::npos; at = text.find(kBefore, from)) {
    masked += text.substr(from, at - from) + " Status: ADDR";
    from = text.find('.', at);
  }
  return masked + text.substr(from);
}

}  // namespace strake::tests

// One line of the trace under construction.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace strake::platform {

class TraceLine {
 public:
  explicit TraceLine(std::string_view event);

  // Keys are plain words and need no escape.
  TraceLine& Text(std::string_view key, std::string_view bytes);
  TraceLine& Texts(std::string_view key, const std::vector<std::string>& texts);
  TraceLine& Number(std::string_view key, long number);
  TraceLine& Flag(std::string_view key, bool flag);
  // As upper-case hexadecimal pairs without blanks.
  TraceLine& Hex(std::string_view key, std::span<const unsigned char> bytes);

  void WriteTo(std::ostream& out);

 private:
  void Key(std::string_view key);
  void Quote(std::string_view bytes);

  std::string fLine;
};

}  // namespace strake::platform

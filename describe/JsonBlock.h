// JSON as people write it: a member or an item a line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace strake::describe {

// A finished value on one line, in valid UTF-8 or not.
std::string JsonText(std::string_view text);

// Members or items one a line, between a pair of brackets.
class JsonBlock {
 public:
  // `depth` counts the blocks around it.
  JsonBlock(std::string& out, std::size_t depth, std::string_view brackets);
  JsonBlock(const JsonBlock&) = delete;
  JsonBlock& operator=(const JsonBlock&) = delete;
  ~JsonBlock();

  // The item's text follows.
  void Item();
  // The member's value follows.
  void Key(std::string_view key);
  void Member(std::string_view key, const std::string& json);

 private:
  std::string& fOut;
  std::size_t fIndent;
  char fClosing;
  bool fIsEmpty = true;
};

}  // namespace strake::describe

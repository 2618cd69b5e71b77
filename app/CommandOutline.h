// What the command line is defined to take, for whoever writes it down.
#pragma once

#include <string>
#include <vector>

namespace strake::app {

// An option, or the place of a word.
struct OptionOutline {
  std::vector<std::string> names;  // "-h", "--help"; of a word: none
  std::string text;
  std::string type;  // "FILE"; empty: it takes no value
  bool isFile = false;
  std::vector<std::string> offered;  // values that it takes; empty: they are not known
  bool isRepeatable = false;         // of a word: it stands for all that follow
};

struct CommandOutline {
  std::string name;
  std::string text;
  std::vector<OptionOutline> options;
  std::vector<OptionOutline> words;  // in their order
  std::vector<CommandOutline> subcommands;
};

}  // namespace strake::app

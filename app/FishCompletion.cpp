#include "app/CompletionShells.h"
#include "text/QuoteForShell.h"

namespace strake::app {
namespace {

using text::QuotedForFish;

constexpr const char* kHead = R"(# Completion of strake for fish, written by: strake completion fish

# Whether this is the subcommand, "" when none is given yet, and, where a number is
# given, so many words stand between it and the cursor.
function __strake_is
    set -l words
    for word in (commandline -opc)
        string match -q -- '-?*' $word; or set -a words $word
    end
    set -l subcommand ''
    set -q words[2]; and set subcommand $words[2]
    test "$subcommand" = "$argv[1]"; or return
    not set -q argv[2]; or test (count $words) -eq (math $argv[2] + 2)
end

complete -c strake -f
)";

// How every line of a subcommand begins.
std::string Begin(const std::string& condition) {
  return "complete -c strake -n " + QuotedForFish("__strake_is " + condition);
}

// The values are read once more when they are asked for.
std::string Values(const std::vector<std::string>& values) {
  std::string list;
  for (const std::string& value : values) {
    list.append(list.empty() ? "" : " ").append(QuotedForFish(value));
  }
  return " -a " + QuotedForFish(list);
}

std::string Taken(const OptionOutline& option) {
  if (option.isFile) {
    return " -r -F";
  }
  return option.offered.empty() ? " -x" : " -x" + Values(option.offered);
}

std::string OptionLine(const OptionOutline& option, const std::string& begin) {
  std::string line = begin;
  for (const std::string& name : option.names) {
    line += name.rfind("--", 0) == 0 ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  line += option.type.empty() ? "" : Taken(option);
  return line + " -d " + QuotedForFish(option.text) + "\n";
}

// Files may stand anywhere: which of several words it is does not matter to them.
std::string WordLines(const CommandOutline& command) {
  const std::string condition = QuotedForFish(command.name);
  std::string lines;
  int number = 0;
  for (const OptionOutline& word : command.words) {
    const std::string files = Begin(condition) + " -F\n";
    if (word.isFile && lines.find(files) == std::string::npos) {
      lines += files;
    } else if (!word.offered.empty()) {
      lines += Begin(condition + ' ' + std::to_string(number)) + Values(word.offered) + "\n";
    }
    ++number;
  }
  return lines;
}

}  // namespace

std::string FishCompletion(const CommandOutline& command) {
  std::string script = kHead;
  const auto options = [&script](const CommandOutline& owner, const std::string& condition) {
    for (const OptionOutline& option : owner.options) {
      script += OptionLine(option, Begin(condition));
    }
  };
  const std::string none = "''";
  for (const CommandOutline& subcommand : command.subcommands) {
    script +=
        Begin(none) + Values({subcommand.name}) + " -d " + QuotedForFish(subcommand.text) + "\n";
  }
  options(command, none);
  for (const CommandOutline& subcommand : command.subcommands) {
    const std::string condition = QuotedForFish(subcommand.name);
    script += "\n";
    options(subcommand, condition);
    script += WordLines(subcommand);
  }
  return script;
}

}  // namespace strake::app

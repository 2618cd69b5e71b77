#include "app/CompletionShells.h"
#include "text/QuoteForShell.h"

namespace strake::app {
namespace {

using text::QuotedForShell;
using text::WithBackslashes;

constexpr const char* kHead = R"(#compdef strake
# Completion of strake for zsh, written by: strake completion zsh

_strake() {
  local curcontext=$curcontext state line result=1
  typeset -A opt_args
  _arguments -C)";

constexpr const char* kSubcommands = R"( \
    '1: :->subcommand' \
    '*:: :->words' && result=0
  case $state in
    subcommand)
      local -a subcommands=(
)";

constexpr const char* kWords = R"(      )
      _describe -t subcommands subcommand subcommands && result=0
      ;;
    words)
      curcontext=${curcontext%:*:*}:strake-$words[1]:
      case $words[1] in
)";

// Loaded as a function it is called at once; sourced it only says what it is for.
constexpr const char* kTail = R"(      esac
      ;;
  esac
  return result
}

if [[ $funcstack[1] == _strake ]]; then
  _strake "$@"
else
  compdef _strake strake
fi
)";

// The last two parts of an entry: what is awaited, and where it comes from.
std::string Awaited(const OptionOutline& option) {
  std::string part = ":";
  part.append(WithBackslashes(option.type, "\\:")).append(":");
  if (option.isFile) {
    return part + "_files";
  }
  if (option.offered.empty()) {
    return part + " ";
  }
  std::string values;  // the shell reads them once more
  for (const std::string& value : option.offered) {
    values.append(values.empty() ? "" : " ");
    values += QuotedForShell(value);
  }
  return part + "(" + WithBackslashes(values, ":") + ")";
}

std::string Line(const std::string& entry, const char* indent) {
  return std::string(" \\\n").append(indent).append(QuotedForShell(entry));
}

// As _arguments takes them.
std::string OptionLines(const OptionOutline& option, const char* indent) {
  std::string names;
  for (const std::string& name : option.names) {
    names.append(names.empty() ? "" : " ").append(name);
  }
  std::string lines;
  for (const std::string& name : option.names) {
    std::string entry;
    if (option.isRepeatable) {
      entry = "*";
    } else if (option.names.size() > 1) {
      entry.append("(").append(names).append(")");
    }
    entry += name;
    entry += option.type.empty() ? "" : "=";
    entry.append("[").append(WithBackslashes(option.text, R"([]\:)")).append("]");
    entry += option.type.empty() ? "" : Awaited(option);
    lines += Line(entry, indent);
  }
  return lines;
}

std::string Lines(const CommandOutline& command, const char* indent) {
  std::string lines;
  for (const OptionOutline& option : command.options) {
    lines += OptionLines(option, indent);
  }
  int number = 0;
  for (const OptionOutline& word : command.words) {
    const std::string place = word.isRepeatable ? "*" : std::to_string(++number);
    lines += Line(place + Awaited(word), indent);
  }
  return lines;
}

std::string SubcommandList(const CommandOutline& command) {
  std::string list;
  for (const CommandOutline& subcommand : command.subcommands) {
    const std::string name = WithBackslashes(subcommand.name, R"(\:)");
    list += "        " + QuotedForShell(name + ':' + subcommand.text) + "\n";
  }
  return list;
}

std::string SubcommandCases(const CommandOutline& command) {
  std::string cases;
  for (const CommandOutline& subcommand : command.subcommands) {
    cases += "        " + QuotedForShell(subcommand.name) + ")\n          _arguments" +
             Lines(subcommand, "            ") + " && result=0\n          ;;\n";
  }
  return cases;
}

}  // namespace

std::string ZshCompletion(const CommandOutline& command) {
  return kHead + Lines(command, "    ") + kSubcommands + SubcommandList(command) + kWords +
         SubcommandCases(command) + kTail;
}

}  // namespace strake::app

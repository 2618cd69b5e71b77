#include "tests/app/Command.h"
#include "tests/app/Completion.h"

#include <algorithm>
#include <sstream>

namespace strake::tests {
namespace {

// Arguments: the script, the breaks, the line, its words.
constexpr const char* kDriver = R"(
set -eu
source "$1"
COMP_WORDBREAKS=$2 COMP_LINE=$3 COMP_POINT=${#3}
shift 3
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
compopt() { [[ $* == '-o default' ]] && COMPREPLY=('(files)') || :; }
_strake
((${#COMPREPLY[@]} == 0)) || printf '%s\n' "${COMPREPLY[@]}"
)";

Lines Replies(const ToolEnd& end) { return end.status == 0 ? LinesOf(end.text) : Lines{end.text}; }

}  // namespace

Lines LinesOf(const std::string& text) {
  std::istringstream stream(text);
  Lines lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

CompletionScripts::CompletionScripts()
    : CompletionScripts(Strake({"completion", "bash"}).out, Strake({"completion", "fish"}).out) {}

CompletionScripts::CompletionScripts(const std::string& bash, const std::string& fish) {
  (void)fFolder.Write("strake.bash", bash);
  (void)fFolder.Write("strake.fish", fish);
}

Lines CompletionScripts::InBash(const std::string& line, const Lines& words,
                                const std::string& breaks) const {
  std::string arguments = "--norc -c " + InShellQuotes(kDriver) + " driver " +
                          InShellQuotes(fFolder / "strake.bash") + ' ' + InShellQuotes(breaks) +
                          ' ' + InShellQuotes(line);
  for (const std::string& word : words) {
    arguments += ' ' + InShellQuotes(word);
  }
  return Replies(RunTool(Bash(), arguments));
}

Lines CompletionScripts::InFish(const std::string& line) const {
  const std::string command = R"(source $argv[1]; complete -C $argv[2])";
  Lines replies =
      Replies(RunTool(Fish(),
                      "--no-config -c " + InShellQuotes(command) + ' ' +
                          InShellQuotes(fFolder / "strake.fish") + ' ' + InShellQuotes(line),
                      "HOME=" + InShellQuotes(fFolder.Path().string())));
  for (std::string& reply : replies) {
    reply.erase(std::min(reply.find('\t'), reply.size()));
  }
  std::ranges::sort(replies);
  return replies;
}

}  // namespace strake::tests

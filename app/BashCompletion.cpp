#include "app/CompletionShells.h"
#include "text/QuoteForShell.h"

namespace strake::app {
namespace {

using text::QuotedForShell;

constexpr const char* kHead = R"(# Completion of strake for bash, written by: strake completion bash
# Needs bash 4.3; what the package bash-completion offers is not used.

)";

constexpr const char* kTail = R"(
_strake() {
  local rest=${COMP_LINE:0:COMP_POINT} index piece space word
  local -a words=()
  # What readline splits at = and : is one word.
  for ((index = 0; index <= COMP_CWORD; ++index)); do
    piece=${COMP_WORDS[index]}
    space=${rest%%[![:space:]]*}
    rest=${rest#"$space"}
    [[ -z $space && $index -gt 0 ]] || words+=('')
    ((index < COMP_CWORD)) || piece=$rest
    words[-1]+=$piece
    rest=${rest#"$piece"}
  done

  # kind: empty, value or files; offered: what may stand there
  local subcommand='' awaited='' count=0 kind='' typed=${words[-1]} lead=''
  local -a offered=()
  for word in "${words[@]:1:${#words[@]}-2}"; do
    if [[ -n $awaited ]]; then
      awaited=''
    elif [[ $word == -?* ]]; then
      ! _strake_takes "$subcommand" "$word" || awaited=$word
    elif [[ -z $subcommand ]]; then
      subcommand=$word
    else
      ((++count))
    fi
  done

  kind='' offered=()
  if [[ -n $awaited ]]; then
    _strake_takes "$subcommand" "$awaited"
  elif [[ $typed == --*=* ]]; then
    lead=${typed%%=*}=
    typed=${typed#*=}
    _strake_takes "$subcommand" "${lead%=}"
  elif [[ $typed == -* ]] || ! _strake_takes "$subcommand" $((count + 1)); then
    _strake_offers "$subcommand"
  fi

  # Readline replaces what stands behind the last of its breaks.
  local quote='' before=$lead breaks=${COMP_WORDBREAKS//[!:=]/} value shown
  if [[ $typed == [\"\']* ]]; then
    quote=${typed:0:1} typed=${typed:1}
  elif [[ -z $breaks ]]; then
    before=''
  else
    before=$lead$typed
    before=${before%"${before##*["$breaks"]}"}
  fi

  COMPREPLY=()
  if [[ $kind == files && $before == "$lead" ]]; then
    compopt -o default # readline's own names of files
    return
  elif [[ $kind == files ]]; then
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -P "$lead" -f -- "$typed")
    COMPREPLY=("${COMPREPLY[@]#"$before"}")
    return
  fi
  for value in "${offered[@]}"; do
    shown=$value
    [[ -n $quote ]] || printf -v shown %q "$value"
    if [[ $value == "$typed"* || $shown == "$typed"* ]]; then
      value=$lead$shown
      COMPREPLY+=("${value#"$before"}")
    fi
  done
}

complete -F _strake strake
)";

std::string Array(const std::vector<std::string>& words) {
  std::string array = "offered=(";
  for (const std::string& word : words) {
    array.append(array.back() == '(' ? "" : " ").append(QuotedForShell(word));
  }
  return array += ')';
}

// What may begin the next word when nothing else is awaited.
std::string OffersOf(const CommandOutline& command, const std::string& place) {
  std::vector<std::string> words;
  for (const CommandOutline& subcommand : command.subcommands) {
    words.push_back(subcommand.name);
  }
  for (const OptionOutline& option : command.options) {
    words.insert(words.end(), option.names.begin(), option.names.end());
  }
  return "    " + QuotedForShell(place) + ") " + Array(words) + " ;;\n";
}

std::string Case(const std::string& pattern, const OptionOutline& option) {
  std::string row = "    " + pattern + ") kind=" + (option.isFile ? "files" : "value");
  if (!option.offered.empty()) {
    row.append(1, ' ').append(Array(option.offered));
  }
  return row += " ;;\n";
}

std::string TakenBy(const CommandOutline& command) {
  std::string cases;
  for (const OptionOutline& option : command.options) {
    for (const std::string& name : option.names) {
      if (!option.type.empty()) {
        cases += Case(QuotedForShell(command.name + ' ' + name), option);
      }
    }
  }
  int number = 0;
  for (const OptionOutline& word : command.words) {
    const std::string place = command.name + ' ';
    cases += word.isRepeatable ? Case(QuotedForShell(place) + "[0-9]*", word)
                               : Case(QuotedForShell(place + std::to_string(++number)), word);
  }
  return cases;
}

}  // namespace

std::string BashCompletion(const CommandOutline& command) {
  std::string script = kHead;
  script += "# With nothing before it but the subcommand.\n";
  script += "_strake_offers() {\n  case $1 in\n" + OffersOf(command, "");
  for (const CommandOutline& subcommand : command.subcommands) {
    script += OffersOf(subcommand, subcommand.name);
  }
  script += "  esac\n}\n\n";
  script += "# Of a subcommand, what an option takes, or the word with a number; false: nothing.\n";
  script += "_strake_takes() {\n  case \"$1 $2\" in\n";
  for (const CommandOutline& subcommand : command.subcommands) {
    script += TakenBy(subcommand);
  }
  script += "    *) return 1 ;;\n  esac\n}\n";
  return script + kTail;
}

}  // namespace strake::app

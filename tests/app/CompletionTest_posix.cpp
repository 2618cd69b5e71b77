// Completion in real shells.
#include "app/CompletionShells.h"
#include "tests/app/Command.h"
#include "tests/app/Completion.h"
#include "tests/support/Conversation.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

constexpr const char* kPrompt = "ready> ";
constexpr std::string_view kBegin = "args:";
constexpr std::string_view kEnd = ":end";

TEST(Completion, OffersInBashWhatMayStandThere) {
  const CompletionScripts scripts;
  const struct {
    std::string line;
    Lines words;  // as readline splits the line
    Lines expected;
  } cases[] = {
      {"strake dif", {"strake", "dif"}, {"diff"}},
      {"strake co", {"strake", "co"}, {"collect", "completion"}},
      {"strake --ver", {"strake", "--ver"}, {"--version"}},
      {"strake collect --cl", {"strake", "collect", "--cl"}, {"--class"}},
      {"strake  collect   --cl", {"strake", "collect", "--cl"}, {"--class"}},
      {"strake collect --show", {"strake", "collect", "--show"}, {"--show-secrets"}},
      {"strake collect --class sen", {"strake", "collect", "--class", "sen"}, {"sensors"}},
      {"strake collect --class=sen", {"strake", "collect", "--class", "=", "sen"}, {"sensors"}},
      {"strake collect --class VELKSG_SP_C",
       {"strake", "collect", "--class", "VELKSG_SP_C"},
       {"VELKSG_SP_ComputerSystem"}},
      {"strake collect --demo ", {"strake", "collect", "--demo", ""}, {"demo-orlo", "demo-tavit"}},
      {"strake collect --sort=",
       {"strake", "collect", "--sort", "="},
       {"name", "reading", "state"}},
      {"strake collect --fail-on ",
       {"strake", "collect", "--fail-on", ""},
       {"warning", "critical"}},
      {"strake collect --log-level ",
       {"strake", "collect", "--log-level", ""},
       {"0", "1", "2", "3", "4"}},
      {"strake collect --quiet --sort r",
       {"strake", "collect", "--quiet", "--sort", "r"},
       {"reading"}},
      {"strake collect --server a:b --sort n",
       {"strake", "collect", "--server", "a", ":", "b", "--sort", "n"},
       {"name"}},
      {"strake collect --sensor=--sort --sort n",
       {"strake", "collect", "--sensor", "=", "--sort", "--sort", "n"},
       {"name"}},
      {"strake collect --format \"h", {"strake", "collect", "--format", "\"h"}, {"html"}},
      {"strake collect --node ", {"strake", "collect", "--node", ""}, {}},
      {"strake collect --server ", {"strake", "collect", "--server", ""}, {kFiles}},
      {"strake collect --server=a", {"strake", "collect", "--server", "=", "a"}, {kFiles}},
      {"strake check a b", {"strake", "check", "a", "b"}, {kFiles}},
      {"strake diff --tolerance 5 a ", {"strake", "diff", "--tolerance", "5", "a", ""}, {kFiles}},
      {"strake diff a b ",
       {"strake", "diff", "a", "b", ""},
       {"-h", "--help", "--tolerance", "--format", "--output"}},
      {"strake diff - --format j", {"strake", "diff", "-", "--format", "j"}, {"json"}},
      {"strake schema --format m", {"strake", "schema", "--format", "m"}, {"mof", "markdown"}},
      {"strake help sch", {"strake", "help", "sch"}, {"schema"}},
      {"strake help diff ", {"strake", "help", "diff", ""}, {"-h", "--help"}},
      {"strake completion ", {"strake", "completion", ""}, {"bash", "zsh", "fish"}},
      {"strake nonsense --f", {"strake", "nonsense", "--f"}, {}},
      {"strake collect --nonsense --cl", {"strake", "collect", "--nonsense", "--cl"}, {"--class"}},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(scripts.InBash(one.line, one.words), one.expected) << one.line;
  }
}

TEST(Completion, OffersWholeWordsWhereBashDoesNotSplitThemAtTheEqualsSign) {
  const CompletionScripts scripts;
  const std::string blanks = " \t\n";
  const std::string file = scripts.Folder().Write("rack7.server.json", "");
  const std::string word = "--server=" + scripts.Folder() / "ra";
  EXPECT_EQ(scripts.InBash("strake collect --sort=re", {"strake", "collect", "--sort=re"}, blanks),
            Lines{"--sort=reading"});
  EXPECT_EQ(scripts.InBash("strake collect " + word, {"strake", "collect", word}, blanks),
            Lines{"--server=" + file});
  EXPECT_EQ(scripts.InBash("strake collect --sort re", {"strake", "collect", "--sort", "re"}, ""),
            Lines{"reading"});
}

TEST(Completion, OffersInFishWhatMayStandThere) {
  const CompletionScripts scripts;
  const std::string file = scripts.Folder().Write("rack7.server.json", "");
  const struct {
    std::string line;
    Lines expected;
  } cases[] = {
      {"strake co", {"collect", "completion"}},
      {"strake collect --cl", {"--class"}},
      {"strake collect --class sen", {"sensors"}},
      {"strake collect --class=VELKSG_SP_C", {"--class=VELKSG_SP_ComputerSystem"}},
      {"strake collect --sort=re", {"--sort=reading"}},
      {"strake collect --fail-on ", {"critical", "warning"}},
      {"strake collect --node ", {}},
      {"strake collect ", {}},
      {"strake help sch", {"schema"}},
      {"strake help schema ", {}},
      {"strake help collect --cl", {}},
      {"strake completion ", {"bash", "fish", "zsh"}},
      {"strake collect --server " + scripts.Folder() / "ra", {file}},
      {"strake check " + scripts.Folder() / "ra", {file}},
      {"strake diff a " + scripts.Folder() / "ra", {file}},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(scripts.InFish(one.line), one.expected) << one.line;
  }
}

TEST(Completion, IsForThreeShellsAndRefusesOthersByName) {
  for (const app::CompletionShell& shell : app::CompletionShells()) {
    const Outcome outcome = Strake({"completion", std::string(shell.name)});
    EXPECT_EQ(outcome.status, 0) << shell.name;
    EXPECT_EQ(outcome.err, "") << shell.name;
    EXPECT_NE(outcome.out.find("written by: strake completion " + std::string(shell.name)),
              std::string::npos);
  }
  EXPECT_EQ(Strake({"completion", "tcsh"}),
            (Outcome{2, "",
                     "strake: shell: there is no shell 'tcsh', expected bash, zsh or fish "
                     "(see strake completion --help)\n"}));
  EXPECT_EQ(Strake({"completion"}),
            (Outcome{2, "", "strake: shell is required (see strake completion --help)\n"}));
}

// A shell in which `strake` says how it was called.
class InteractiveShell {
 public:
  InteractiveShell(const std::vector<std::string>& words, const std::string& folder,
                   const std::string& start)
      : fShell(words, {"PATH=" + std::string(std::getenv("PATH")), "HOME=" + folder, "TERM=vt100",
                       "INPUTRC=/dev/null", std::string("PS1=") + kPrompt,
                       "BASH_COMPLETION_USER_DIR=" + folder, "LC_ALL=C.UTF-8"}) {
    fShell.Hear(kPrompt);
    fShell.Say("cd " + InShellQuotes(folder) + " && " + start + " && strake() { printf '%s' " +
               std::string(kBegin) + "; printf '<%s>' \"$@\"; printf '%s\\n' " + std::string(kEnd) +
               "; }\n");
    fShell.Hear(kPrompt);
  }

  // What the command is given when this is typed.
  std::string Type(const std::string& keys) {
    fShell.Say(keys + "\n");
    const std::string heard = fShell.Hear(std::string(kEnd));
    const auto begin = heard.rfind(kBegin);
    const bool isRun = begin != std::string::npos && heard.ends_with(kEnd);
    if (!isRun) {
      fShell.Say("\x03");  // away from a line that is not complete
    }
    fShell.Hear(kPrompt);
    return isRun ? heard.substr(begin + kBegin.size(),
                                heard.size() - begin - kBegin.size() - kEnd.size())
                 : "not run: " + heard;
  }

 private:
  Conversation fShell;
};

// Values that no option of the command has.
app::CommandOutline AwkwardCommand() {
  app::OptionOutline option;
  option.names = {"--pick"};
  option.text = R"(It's a [thing]: "\n" or `x` and $y)";
  option.type = "ONE:OF=";
  option.offered = {"two words", "x:y", "it's", "[z]", "$HOME"};
  app::CommandOutline subcommand;
  subcommand.name = "take";
  subcommand.text = "Don't: [take] it";
  subcommand.options = {option};
  app::CommandOutline command;
  command.name = "strake";
  command.subcommands = {subcommand};
  return command;
}

constexpr const char* kAwkwardWords[][2] = {
    {"tw", "two words"}, {"x", "x:y"}, {"it", "it's"}, {"\\[", "[z]"}, {"\\$", "$HOME"},
};

// Loaded as the installed one is: from a folder of completions, at the first try.
InteractiveShell StartBash(const TemporaryFolder& folder, const std::string& script) {
  std::filesystem::create_directory(folder / "completions");
  (void)folder.Write("completions/strake", script);
  return {{Bash().path, "--norc", "--noprofile", "-i"},
          folder.Path().string(),
          "source /usr/share/bash-completion/bash_completion"};
}

InteractiveShell StartZsh(const TemporaryFolder& folder, const std::string& script) {
  (void)folder.Write("_strake", script);
  return {{Zsh().path, "-f", "-i"},
          folder.Path().string(),
          "fpath=($PWD $fpath) && autoload -U compinit && compinit -u -D"};
}

TEST(Completion, CompletesInBashOnATerminal) {
  const TemporaryFolder folder;
  InteractiveShell bash = StartBash(folder, Strake({"completion", "bash"}).out);
  (void)folder.Write("my rack.server.json", "");
  (void)folder.Write("with:colon.json", "");
  std::filesystem::create_directory(folder / "inner");
  (void)folder.Write("inner/deep.json", "");
  const struct {
    std::string keys;
    std::string given;
  } cases[] = {
      {"strake collect --cl\tsen\t", "<collect><--class><sensors>"},
      {"strake collect --class=sen\t", "<collect><--class=sensors>"},
      {"strake collect --class=VELKSG_SP_N\t", "<collect><--class=VELKSG_SP_NumericSensor>"},
      {"strake dif\tmy\twith\t", "<diff><my rack.server.json><with:colon.json>"},
      {"strake collect --server=my\t--so\tre\t",
       "<collect><--server=my rack.server.json><--sort><reading>"},
      {"strake check 'my\t", "<check><my rack.server.json>"},
      {"strake check with:co\t", "<check><with:colon.json>"},
      {"strake check inn\tde\t", "<check><inner/deep.json>"},
      {"strake collect --format \"cs\t", "<collect><--format><csv>"},
      {"strake help sch\t", "<help><schema>"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(bash.Type(one.keys), one.given) << one.keys;
  }
}

TEST(Completion, CompletesInZshOnATerminal) {
  const TemporaryFolder folder;
  InteractiveShell zsh = StartZsh(folder, Strake({"completion", "zsh"}).out);
  (void)folder.Write("my rack.server.json", "");
  (void)folder.Write("with:colon.json", "");
  const struct {
    std::string keys;
    std::string given;
  } cases[] = {
      {"strake collect --cl\tsen\t", "<collect><--class=sensors>"},
      {"strake collect --class sen\t", "<collect><--class><sensors>"},
      {"strake collect --class sensors --cl\tsys\t", "<collect><--class><sensors><--class=system>"},
      {"strake dif\tmy\twith\t", "<diff><my rack.server.json><with:colon.json>"},
      {"strake collect --server=my\t--so\tre\t",
       "<collect><--server=my rack.server.json><--sort=reading>"},
      {"strake check my\twith\t", "<check><my rack.server.json><with:colon.json>"},
      {"strake help sch\t", "<help><schema>"},
      {"strake completion z\t", "<completion><zsh>"},
      {"strake --ver\t", "<--version>"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(zsh.Type(one.keys), one.given) << one.keys;
  }
}

TEST(Completion, QuotesInEveryShellWhatTheShellWouldReadOtherwise) {
  const app::CommandOutline command = AwkwardCommand();
  const TemporaryFolder ofBash;
  InteractiveShell bash = StartBash(ofBash, app::BashCompletion(command));
  const TemporaryFolder ofZsh;
  InteractiveShell zsh = StartZsh(ofZsh, app::ZshCompletion(command));
  const CompletionScripts scripts("", app::FishCompletion(command));
  for (const auto& [begin, value] : kAwkwardWords) {
    const std::string keys = std::string("strake take --pick ") + begin + "\t";
    const std::string given = std::string("<take><--pick><") + value + ">";
    EXPECT_EQ(bash.Type(keys), given) << keys;
    EXPECT_EQ(zsh.Type(keys), given) << keys;
  }
  EXPECT_EQ(scripts.InFish("strake take --pick "),
            (Lines{"$HOME", "[z]", "it's", "two words", "x:y"}));
}

}  // namespace
}  // namespace strake::tests

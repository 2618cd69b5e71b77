// The manual pages, and what help, manual and completion say beside each other.
#include "tests/app/Command.h"
#include "tests/app/Completion.h"
#include "tests/support/Places.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>

namespace strake::tests {
namespace {

using Names = std::set<std::string>;

Tool Mandoc() { return {STRAKE_MANDOC, "mandoc"}; }
Tool MakeWhatIs() { return {STRAKE_MAKEWHATIS, "mandoc"}; }
Tool Man() { return {STRAKE_MAN, "man-db"}; }

std::filesystem::path ManualFolder() { return SourceFolder() + "/man"; }

// The pages of a section.
Names Pages(const std::string& ending) {
  Names pages;
  for (const auto& entry : std::filesystem::directory_iterator(ManualFolder())) {
    if (entry.path().extension() == ending) {
      pages.insert(entry.path().filename().string());
    }
  }
  return pages;
}

Names AllPages() {
  Names pages = Pages(".1");
  pages.merge(Pages(".5"));
  return pages;
}

std::string Page(const std::string& name) { return ReadFile(ManualFolder() / name); }

// As a terminal of 80 columns shows it.
ToolEnd Shown(const std::string& page) {
  return RunTool(Man(), "--warnings -l - < " + InShellQuotes(ManualFolder() / page),
                 "LC_ALL=C.UTF-8 MANWIDTH=80 MAN_KEEP_FORMATTING= TERM=dumb");
}

std::string SectionOf(const std::string& page, const std::string& title) {
  const auto begin = page.find("\n.Sh " + title + "\n");
  if (begin == std::string::npos) return "";
  return page.substr(begin, page.find("\n.Sh ", begin + 1) - begin);
}

// The first group of every match.
Names Matches(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern, std::regex::ECMAScript | std::regex::multiline);
  Names names;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at) {
    names.insert((*at)[1]);
  }
  return names;
}

// Options with the name of their value, none when they take none.
using Options = std::map<std::string, std::string>;

Options OptionsOfHelp(const std::string& help) {
  static const std::regex kLine(R"(^  (-\S+)(?: ([A-Z][A-Z.=]*))?(?: .*)?$)");
  Options options;
  for (const std::string& line : LinesOf(help)) {
    std::smatch match;
    if (!std::regex_match(line, match, kLine)) continue;
    const std::string names = match[1];
    const auto comma = names.find(',');
    options[names.substr(0, comma)] = match[2];
    if (comma != std::string::npos) options[names.substr(comma + 1)] = match[2];
  }
  return options;
}

// Of the lines ".It Fl h , Fl -help" and ".It Fl -server Ar FILE".
Options OptionsOfManual(const std::string& page) {
  Options options;
  for (const std::string& line : LinesOf(page)) {
    if (!line.starts_with(".It Fl ")) continue;
    std::istringstream words(line);
    std::string option;
    for (std::string word; words >> word;) {
      if (word == "Fl" && words >> word) options[option = "-" + word] = "";
      if (word == "Ar" && words >> word) options[option] = word;
    }
  }
  return options;
}

Names NamesOf(const Options& options) {
  Names names;
  for (const auto& [name, type] : options) names.insert(name);
  return names;
}

Names OptionsAmong(const Lines& replies) {
  Names names;
  std::ranges::copy_if(replies, std::inserter(names, names.end()),
                       [](const std::string& reply) { return reply.starts_with('-'); });
  return names;
}

Names WordsAmong(const Lines& replies) {
  Names names;
  std::ranges::remove_copy_if(replies, std::inserter(names, names.end()),
                              [](const std::string& reply) { return reply.starts_with('-'); });
  return names;
}

std::string OwnPage(const std::string& subcommand) { return "strake-" + subcommand + ".1"; }

bool HasOwnPage(const std::string& subcommand) { return Pages(".1").contains(OwnPage(subcommand)); }

class Manual : public testing::Test {
 protected:
  [[nodiscard]] static Names Subcommands() {
    const std::string help = Strake({"--help"}).out;
    const auto begin = help.find("\nSubcommands:\n");
    return Matches(help.substr(begin, help.find("\n\n", begin) - begin), "^  ([a-z]+) ");
  }

  [[nodiscard]] Names OptionsInZsh(const std::string& subcommand) const {
    const std::string title = "\n        " + subcommand + ")\n";
    const auto begin = fZsh.find(title);
    return begin == std::string::npos ? Names()
                                      : Matches(fZsh.substr(begin, fZsh.find(";;", begin) - begin),
                                                R"(^ +'(?:\([^)]*\)|\*)?(-[-a-z]+)=?\[)");
  }

  [[nodiscard]] Lines ValuesInBash(const std::string& subcommand, const std::string& option) const {
    return fScripts.InBash("strake " + subcommand + ' ' + option + ' ',
                           {"strake", subcommand, option, ""});
  }

  CompletionScripts fScripts;
  std::string fZsh = Strake({"completion", "zsh"}).out;
};

TEST_F(Manual, HasTheSubcommandsOfHelpAndCompletionHasThemToo) {
  const Names subcommands = Subcommands();
  EXPECT_GT(subcommands.size(), 5U);
  EXPECT_EQ(Matches(Page("strake.1"), R"(^\.It Cm ([a-z]+))"), subcommands);
  EXPECT_EQ(WordsAmong(fScripts.InBash("strake ", {"strake", ""})), subcommands);
  EXPECT_EQ(WordsAmong(fScripts.InFish("strake ")), subcommands);
  EXPECT_EQ(Matches(fZsh, "^        '?([a-z]+):"), subcommands);
  EXPECT_EQ(Matches(fZsh, R"(^        ([a-z]+)\)$)"), subcommands);
}

TEST_F(Manual, HasAPageOfASubcommandForEachThatHasMoreThanHelp) {
  Names own = {"strake.1"};
  for (const std::string& subcommand : Subcommands()) {
    const Options options = OptionsOfHelp(Strake({subcommand, "--help"}).out);
    if (NamesOf(options) != Names{"-h", "--help"}) {
      own.insert(OwnPage(subcommand));
    }
  }
  EXPECT_EQ(Pages(".1"), own);
}

TEST_F(Manual, HasTheOptionsOfHelpAndCompletionHasThemToo) {
  const Options top = OptionsOfHelp(Strake({"--help"}).out);
  EXPECT_EQ(OptionsOfManual(Page("strake.1")), top);
  EXPECT_EQ(OptionsAmong(fScripts.InBash("strake -", {"strake", "-"})), NamesOf(top));
  EXPECT_EQ(OptionsAmong(fScripts.InFish("strake -")), NamesOf(top));
  for (const std::string& subcommand : Subcommands()) {
    SCOPED_TRACE(subcommand);
    const Options options = OptionsOfHelp(Strake({subcommand, "--help"}).out);
    if (HasOwnPage(subcommand)) {
      EXPECT_EQ(OptionsOfManual(Page(OwnPage(subcommand))), options);
    }
    EXPECT_EQ(
        OptionsAmong(fScripts.InBash("strake " + subcommand + " -", {"strake", subcommand, "-"})),
        NamesOf(options));
    EXPECT_EQ(OptionsAmong(fScripts.InFish("strake " + subcommand + " -")), NamesOf(options));
    EXPECT_EQ(OptionsInZsh(subcommand), NamesOf(options));
  }
}

TEST_F(Manual, ShowsEveryOptionOfASubcommandInItsSynopsis) {
  for (const std::string& subcommand : Subcommands()) {
    if (!HasOwnPage(subcommand)) continue;
    SCOPED_TRACE(subcommand);
    Names options = NamesOf(OptionsOfHelp(Strake({subcommand, "--help"}).out));
    options.erase("-h");
    options.erase("--help");
    Names shown;
    for (const std::string& name :
         Matches(SectionOf(Page(OwnPage(subcommand)), "SYNOPSIS"), "Fl (-[-a-z]+)")) {
      shown.insert("-" + name);
    }
    EXPECT_EQ(shown, options);
  }
}

TEST_F(Manual, NamesEveryValueThatCompletionOffersWhichOffersFilesWhereHelpSaysFile) {
  int offered = 0;
  for (const std::string& subcommand : Subcommands()) {
    const Options options = OptionsOfHelp(Strake({subcommand, "--help"}).out);
    for (const auto& [option, type] : options) {
      if (type.empty()) continue;
      SCOPED_TRACE(subcommand + ' ' + option);
      const Lines values = ValuesInBash(subcommand, option);
      EXPECT_EQ(values == Lines{kFiles}, type == "FILE");
      if (type == "FILE") continue;
      // What the classes are is told once.
      const std::string& owner = option == "--class" ? "collect" : subcommand;
      const Names named = Matches(Page(OwnPage(owner)), R"(Cm (\S+))");
      for (const std::string& value : values) {
        const bool isInside = option == "--log-level" && value > "0" && value < "4";
        EXPECT_TRUE(named.contains(value) || isInside) << value;
        ++offered;
      }
    }
  }
  EXPECT_GT(offered, 30);
}

TEST_F(Manual, IsCleanInEveryPage) {
  const TemporaryFolder folder;  // where references to other pages are looked up
  for (const std::string section : {"1", "5"}) {
    std::filesystem::create_directory(folder / ("man" + section));
    for (const std::string& page : Pages("." + section)) {
      (void)folder.Write("man" + section + "/" + page, Page(page));
    }
  }
  const std::string path = InShellQuotes(folder.Path().string());
  ASSERT_EQ(RunTool(MakeWhatIs(), path), (ToolEnd{0, ""}));
  for (const std::string& page : AllPages()) {
    EXPECT_EQ(RunTool(Mandoc(), "-T lint -W style < " + InShellQuotes(ManualFolder() / page),
                      "MANPATH=" + path),
              (ToolEnd{0, ""}))
        << page;
  }
}

TEST_F(Manual, IsShownInEveryPage) {
  for (const std::string& page : AllPages()) {
    SCOPED_TRACE(page);
    const ToolEnd shown = Shown(page);
    EXPECT_EQ(shown.status, 0);
    EXPECT_EQ(shown.text.find("warning:"), std::string::npos) << shown.text;
    const std::string name = page.substr(0, page.find('.'));
    EXPECT_NE(shown.text.find("     " + name + " "), std::string::npos) << shown.text;
    EXPECT_NE(shown.text.find("\nSEE ALSO\n"), std::string::npos) << shown.text;
  }
}

TEST_F(Manual, ShowsJsonWithItsQuotes) {
  const std::map<std::string, Names> pages = {
      {"strake-server.5",
       {R"({"hex": BYTES, "length": N, "succeeds": BOOL})", R"({"text": TEXT})",
        R"({"elements": [E, ...]})", R"({"id": N, "header": N, "data": BYTES})",
        R"({"id": N, "header": N, "text": TEXT, "max": M})"}},
      {"strake-trace.5",
       {R"({"event":"query","classes":[NAME,...]})", R"({"event":"query_end"})",
        R"({"event":"query_end","throws":TEXT})", R"({"event":"log","level":N,"message":TEXT})"}},
  };
  for (const auto& [page, forms] : pages) {
    const std::string shown = Shown(page).text;
    for (const std::string& form : forms) {
      EXPECT_NE(shown.find("     " + form + "\n"), std::string::npos) << form << "\n" << shown;
    }
  }
}

// A macro takes a quote that stands before a word as its own.
TEST_F(Manual, WritesNoBareQuoteInALineOfAMacro) {
  for (const std::string& page : AllPages()) {
    EXPECT_EQ(Matches(Page(page), R"(^(\..*".*)$)"), Names()) << page;
  }
}

TEST_F(Manual, HasTheSectionsOfItsKindInTheirOrder) {
  const Lines ofCommands = {"NAME",  "SYNOPSIS",    "DESCRIPTION", "ENVIRONMENT",
                            "FILES", "EXIT STATUS", "EXAMPLES",    "SEE ALSO"};
  for (const std::string& page : AllPages()) {
    Lines titles;
    for (const std::string& line : LinesOf(Page(page))) {
      if (line.starts_with(".Sh ")) titles.push_back(line.substr(4));
    }
    Lines expected =
        page.ends_with(".1") ? ofCommands : Lines{"NAME", "DESCRIPTION", "EXAMPLES", "SEE ALSO"};
    std::erase_if(expected, [&](const std::string& title) {
      const bool mayMiss = title == "ENVIRONMENT" || title == "FILES";
      return mayMiss && std::ranges::find(titles, title) == titles.end();
    });
    EXPECT_EQ(titles, expected) << page;
  }
}

}  // namespace
}  // namespace strake::tests

// What a command line asks for.
#include "app/BuiltInServers.h"
#include "app/CommandLine.h"
#include "app/Errors.h"
#include "app/ModulePath.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <variant>

namespace strake::tests {
namespace {

using app::CollectOptions;
using app::CommandLine;
using Words = std::vector<const char*>;

CommandLine Parse(Words words) {
  words.insert(words.begin(), "strake");
  return app::ParseCommandLine(static_cast<int>(words.size()), words.data());
}

CollectOptions Collect(Words words) {
  words.insert(words.begin(), "collect");
  return std::get<CollectOptions>(Parse(words));
}

std::string RefusalOf(const Words& words) {
  try {
    Parse(words);
  } catch (const app::UsageError& error) {
    return error.what();
  }
  return "no refusal";
}

TEST(CommandLine, HasTheDefaultsOfItsHelp) {
  const CollectOptions options = Collect({});
  EXPECT_FALSE(options.server || options.output || options.trace || options.log || options.plugin);
  EXPECT_EQ(options.demo, "demo-orlo");
  EXPECT_TRUE(options.classes.empty());
  EXPECT_TRUE(options.queries.empty());
  EXPECT_EQ(options.format, app::ReportFormat::Table);
  EXPECT_EQ(options.logLevel, 2);
  EXPECT_FALSE(options.showSecrets);
}

TEST(CommandLine, TakesEveryOption) {
  const CollectOptions options =
      Collect({"--server", "s", "--query", "A,B", "--format", "json", "--output", "o", "--trace",
               "t", "--log", "l", "--log-level", "0", "--show-secrets", "--plugin", "p"});
  EXPECT_EQ(options.server, "s");
  EXPECT_EQ(options.queries, std::vector<std::string>{"A,B"});
  EXPECT_EQ(options.format, app::ReportFormat::Json);
  EXPECT_EQ(options.output, "o");
  EXPECT_EQ(options.trace, "t");
  EXPECT_EQ(options.log, "l");
  EXPECT_EQ(options.logLevel, 0);
  EXPECT_TRUE(options.showSecrets);
  EXPECT_EQ(options.plugin, "p");
  EXPECT_EQ(Collect({"--demo", "demo-tavit"}).demo, "demo-tavit");
}

TEST(CommandLine, LogsEverythingToALogFileUnlessALevelIsGiven) {
  EXPECT_EQ(Collect({"--log", "l"}).logLevel, 4);
  EXPECT_EQ(Collect({"--log", "l", "--log-level", "1"}).logLevel, 1);
  EXPECT_EQ(Collect({"--log-level", "3"}).logLevel, 3);
}

TEST(CommandLine, KeepsQueriesInOrderAsTheyWereTyped) {
  using Lists = std::vector<std::string>;
  EXPECT_EQ(Collect({"--query", "B,A", "--query", "", "--query", "B,A"}).queries,
            (Lists{"B,A", "", "B,A"}));
  EXPECT_EQ(Collect({"--query", ""}).queries, Lists{""});
  EXPECT_EQ(Collect({"--query=", "--show-secrets"}).queries, Lists{""});
  EXPECT_EQ(Collect({"--query=A,B"}).queries, Lists{"A,B"});
  EXPECT_EQ(Collect({"--query", "{}", "--query", "[a,b]", "--query", "%%"}).queries,
            (Lists{"{}", "[a,b]", "%%"}));
}

TEST(CommandLine, TakesOneValueAClassOption) {
  EXPECT_EQ(Collect({"--class", "VELKSG_SP_NumericSensor", "--class", "VELKSG_SP_ComputerSystem"})
                .classes,
            (std::vector<std::string>{"VELKSG_SP_NumericSensor", "VELKSG_SP_ComputerSystem"}));
  EXPECT_EQ(RefusalOf({"collect", "--class", "VELKSG_SP_NumericSensor", "VELKSG_SP_NumericSensor"}),
            "The following argument was not expected: VELKSG_SP_NumericSensor (see strake --help)");
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  const std::string known =
      "expected one of VELKSG_ServProc_IPProtocolEndpoint, VELKSG_ServProc_IPProtocolEndpoint2, "
      "VELKSG_ServProc_DialProtocolEndpoint1, VELKSG_ServProc_DialProtocolEndpoint2, "
      "VELKSG_ServProc_DialProtocolEndpoint3, VELKSG_ServProc_DialProtocolEndpoint4, "
      "VELKSG_SP_NumericSensor, VELKSG_SP_ComputerSystem";
  struct Case {
    Words words;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {{}, "A subcommand is required"},
      {{"gather"}, "A subcommand is required"},
      {{"collect", "--nonsense"}, "The following argument was not expected: --nonsense"},
      {{"collect", "more"}, "The following argument was not expected: more"},
      {{"collect", "--class", "X"}, "--class: there is no class 'X', " + known},
      {{"collect", "--class", ""}, "--class: there is no class '', " + known},
      {{"collect", "--class="}, "--class: there is no class '', " + known},
      {{"collect", "--demo", "x"},
       "--demo: there is no built-in server 'x', expected one of demo-orlo, demo-tavit"},
      {{"collect", "--format", "xml"},
       "--format: there is no format 'xml', expected table or json"},
      {{"collect", "--log-level", "5"}, "--log-level: '5' is no level, expected 0 to 4"},
      {{"collect", "--log-level", "-1"}, "--log-level: '-1' is no level, expected 0 to 4"},
      {{"collect", "--log-level", "2x"}, "--log-level: '2x' is no level, expected 0 to 4"},
      {{"collect", "--log-level", ""}, "--log-level: '' is no level, expected 0 to 4"},
      {{"collect", "--output", ""}, "--output: the name of a file was expected"},
      {{"collect", "--server="}, "--server: the name of a file was expected"},
      {{"check", ""}, "file: the name of a file was expected"},
      {{"check"}, "file is required"},
      {{"check", "a", "b"}, "The following argument was not expected: b"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(RefusalOf(one.words), one.expected + " (see strake --help)");
  }
}

TEST(CommandLine, RefusesOptionsThatContradictEachOther) {
  for (const Words& words :
       {Words{"collect", "--server", "s", "--demo", "demo-orlo"},
        Words{"collect", "--query", "", "--class", "VELKSG_SP_NumericSensor"},
        Words{"collect", "--format", "json", "--format", "table"},
        Words{"collect", "--output", "a", "--output", "b"}, Words{"collect", "--trace"}}) {
    EXPECT_NE(RefusalOf(words), "no refusal");
  }
}

TEST(CommandLine, ChecksAFile) {
  EXPECT_EQ(std::get<app::CheckOptions>(Parse({"check", "file"})).file, "file");
}

TEST(CommandLine, AnswersHelpAndVersionWithText) {
  for (const Words& words :
       {Words{"--help"}, Words{"-h"}, Words{"collect", "--help"}, Words{"check", "--help"}}) {
    const std::string text = std::get<app::TextAnswer>(Parse(words)).text;
    EXPECT_NE(text.find("Usage: strake"), std::string::npos);
    EXPECT_NE(text.find("Example"), std::string::npos);
    EXPECT_EQ(text.back(), '\n');
  }
  EXPECT_EQ(std::get<app::TextAnswer>(Parse({"--version"})).text.substr(0, 7), "strake ");
}

TEST(BuiltInServers, AreTheFilesByteForByte) {
  ASSERT_EQ(app::BuiltInServers().size(), 2U);
  for (const app::BuiltInServer& server : app::BuiltInServers()) {
    EXPECT_EQ(server.text,
              ReadFile(SourceFolder() + "/servers/" + std::string(server.name) + ".server.json"));
  }
  EXPECT_EQ(app::BuiltInServerNames(), "demo-orlo, demo-tavit");
  EXPECT_EQ(app::FindBuiltInServer("demo"), nullptr);
}

TEST(ModulePath, LooksBesideTheCommandAndThenInTheFolderOfLibraries) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "bin");
  std::filesystem::create_directory(folder / "lib");
  const std::filesystem::path bin = folder / "bin";
  EXPECT_THROW(app::FindModule(bin), app::RunError);
  const std::string library = folder.Write("lib/strake.so", "");
  EXPECT_EQ(app::FindModule(bin), library);
  const std::string beside = folder.Write("bin/strake.so", "");
  EXPECT_EQ(app::FindModule(bin), beside);
}

}  // namespace
}  // namespace strake::tests

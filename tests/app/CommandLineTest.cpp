// What a command line asks for.
#include "app/BuiltInServers.h"
#include "app/CommandLine.h"
#include "app/Errors.h"
#include "app/ModulePath.h"
#include "cim/Catalogue.h"
#include "tests/app/Command.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
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
  EXPECT_EQ(options.format->name, "table");
  EXPECT_EQ(options.logLevel, 1);
  EXPECT_FALSE(options.showSecrets);
  EXPECT_FALSE(options.quiet);
}

TEST(CommandLine, TakesEveryOption) {
  const CollectOptions options = Collect(
      {"--server", "s", "--query", "A,B", "--format", "json", "--output", "o", "--trace", "t",
       "--log", "l", "--log-level", "0", "--show-secrets", "--quiet", "--plugin", "p"});
  EXPECT_EQ(options.server, "s");
  EXPECT_EQ(options.queries, std::vector<std::string>{"A,B"});
  EXPECT_EQ(options.format->name, "json");
  EXPECT_EQ(options.output, "o");
  EXPECT_EQ(options.trace, "t");
  EXPECT_EQ(options.log, "l");
  EXPECT_EQ(options.logLevel, 0);
  EXPECT_TRUE(options.showSecrets);
  EXPECT_TRUE(options.quiet);
  EXPECT_EQ(options.plugin, "p");
  EXPECT_EQ(Collect({"--demo", "demo-tavit"}).demo, "demo-tavit");
}

TEST(CommandLine, TakesTheFormatOfTheOutputsEndingWhenNoneIsGiven) {
  const struct {
    Words words;
    std::string format;
  } cases[] = {
      {{"--output", "a.json"}, "json"},      {{"--output", "a.json", "--format", "json"}, "json"},
      {{"--output", "a.txt"}, "table"},      {{"--output", "a.log", "--format", "json"}, "json"},
      {{"--output", "a.json.bak"}, "table"}, {{"--output", "json"}, "table"},
      {{"--trace", "a.json"}, "table"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(Collect(one.words).format->name, one.format) << one.words[1];
  }
}

TEST(CommandLine, TakesEveryFormatOfTheTableAndNamesItInHelpAndRefusal) {
  const std::string help = std::get<app::TextAnswer>(Parse({"collect", "--help"})).text;
  const std::string refusal = RefusalOf({"collect", "--format", "xml"});
  EXPECT_NE(help.find(report::FormatNames()), std::string::npos) << help;
  for (const report::Format& format : report::Formats()) {
    const std::string name(format.name);
    EXPECT_EQ(Collect({"--format", name.c_str(), "--class", "sensors"}).format, &format);
    EXPECT_NE(help.find(name), std::string::npos) << name;
    EXPECT_NE(refusal.find(name), std::string::npos) << name;
  }
}

TEST(CommandLine, NamesOnlyClassesOfTheCatalogueInItsHelp) {
  int named = 0;
  for (const Words& words : {Words{"--help"}, Words{"collect", "--help"}}) {
    const std::string help = std::get<app::TextAnswer>(Parse(words)).text;
    for (auto at = help.find("VELKSG_"); at != std::string::npos; at = help.find("VELKSG_", at)) {
      const auto end = std::min(help.find_first_of(", \n", at), help.size());
      const std::string name = help.substr(at, end - at);
      EXPECT_NE(cim::FindSchemaClass(name), nullptr) << name;
      ++named;
      at = end;
    }
  }
  EXPECT_GT(named, 0);
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

TEST(CommandLine, TakesClassesByTheirShortNames) {
  EXPECT_EQ(Collect({"--class", "sensors", "--class", "VELKSG_SP_ComputerSystem"}).classes,
            (std::vector<std::string>{"VELKSG_SP_NumericSensor", "VELKSG_SP_ComputerSystem"}));
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    const std::string name(one.shortName);
    EXPECT_EQ(Collect({"--class", name.c_str()}).classes,
              std::vector<std::string>{std::string(one.name)});
  }
}

TEST(CommandLine, AsksForSensorsAloneWhenOnlySomeOfThemAreWanted) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(Collect({"--sensor", "fan*"}).classes, Names{"VELKSG_SP_NumericSensor"});
  EXPECT_EQ(Collect({"--sensor", "fan*"}).selection.sensor, "fan*");
  EXPECT_EQ(Collect({"--sensor", "fan*", "--class", "system", "--class", "sensors"}).classes,
            (Names{"VELKSG_SP_ComputerSystem", "VELKSG_SP_NumericSensor"}));
  EXPECT_EQ(Collect({"--sensor", "fan*", "--query", "VELKSG_SP_NumericSensor"}).classes, Names{});
}

TEST(CommandLine, TakesWhatIsSelectedAndHowItIsLaidOut) {
  const CollectOptions options =
      Collect({"--node", "255", "--filter", "network.HostName=a=b.c*", "--filter",
               "VELKSG_ServProc_DialProtocolEndpoint1.PagerPIN=", "--show-secrets", "--limits", "l",
               "--fail-on", "warning", "--sort", "reading", "--no-header"});
  EXPECT_EQ(options.selection.node, 255);
  ASSERT_EQ(options.selection.filters.size(), 2U);
  EXPECT_EQ(options.selection.filters[0].schema->name, "VELKSG_ServProc_IPProtocolEndpoint");
  EXPECT_EQ(options.selection.filters[0].property->name, "HostName");
  EXPECT_EQ(options.selection.filters[0].glob, "a=b.c*");
  EXPECT_EQ(options.selection.filters[1].property->name, "PagerPIN");
  EXPECT_EQ(options.selection.filters[1].glob, "");
  EXPECT_EQ(options.limits, "l");
  EXPECT_EQ(options.failOn, report::Severity::Warning);
  EXPECT_EQ(options.order, report::SensorOrder::ByReading);
  EXPECT_FALSE(options.header);
  EXPECT_EQ(Collect({"--fail-on", "critical"}).failOn, report::Severity::Critical);
}

TEST(CommandLine, RefusesAFormatOfOneClassUnlessExactlyOneIsAskedFor) {
  for (const report::Format& format : report::Formats()) {
    if (format.classes != report::Classes::ExactlyOne) {
      continue;
    }
    const std::string name(format.name);
    const std::string refusal =
        "--format " + name +
        " holds one class: ask for it with --class, one of system, network, snmp-dns, dial-out, "
        "dial-in, serial, alerts, sensors (see strake collect --help)";
    const char* const text = name.c_str();
    EXPECT_EQ(RefusalOf({"collect", "--format", text}), refusal);
    EXPECT_EQ(RefusalOf({"collect", "--format", text, "--class", "system", "--class", "sensors"}),
              refusal);
    EXPECT_EQ(RefusalOf({"collect", "--format", text, "--query", "Unheard"}), refusal);
    EXPECT_EQ(Collect({"--format", text, "--class", "system", "--class", "system"}).format,
              &format);
    EXPECT_EQ(Collect({"--format", text, "--sensor", "*"}).format, &format);
    EXPECT_EQ(Collect({"--format", text, "--query", "VELKSG_SP_ComputerSystem"}).format, &format);
  }
}

TEST(CommandLine, TakesOneValueAClassOption) {
  EXPECT_EQ(Collect({"--class", "VELKSG_SP_NumericSensor", "--class", "VELKSG_SP_ComputerSystem"})
                .classes,
            (std::vector<std::string>{"VELKSG_SP_NumericSensor", "VELKSG_SP_ComputerSystem"}));
  EXPECT_EQ(RefusalOf({"collect", "--class", "VELKSG_SP_NumericSensor", "VELKSG_SP_NumericSensor"}),
            "nothing takes the word 'VELKSG_SP_NumericSensor' (see strake collect --help)");
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  const std::string known =
      "expected one of system, network, snmp-dns, dial-out, dial-in, serial, alerts, sensors or a "
      "full name (see strake classes)";
  struct Case {
    Words words;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {{},
       "a subcommand was expected: collect, watch, check, diff, schema, replay, init, classes, "
       "completion, help or version"},
      {{"gather"}, "there is no subcommand 'gather'"},
      {{""}, "there is no subcommand ''"},
      {{"colect", "--server", "s"}, "there is no subcommand 'colect', did you mean 'collect'?"},
      {{"--verison"}, "there is no option '--verison', did you mean '--version'?"},
      {{"--sever", "s", "collect"}, "there is no option '--sever'"},
      {{"help", "chekc"}, "there is no subcommand 'chekc', did you mean 'check'?"},
      {{"help", "nothing"}, "there is no subcommand 'nothing'"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(RefusalOf(one.words), one.expected + " (see strake --help)");
  }
  const std::vector<Case> collectCases = {
      {{"--nonsense"}, "there is no option '--nonsense'"},
      {{"--fromat", "json"}, "there is no option '--fromat', did you mean '--format'?"},
      {{"--fromat=json"}, "there is no option '--fromat', did you mean '--format'?"},
      {{"-x"}, "there is no option '-x'"},
      {{"more"}, "nothing takes the word 'more'"},
      {{"check"}, "nothing takes the word 'check'"},
      {{"-"}, "nothing takes the word '-'"},
      {{"--class", "X"}, "--class: there is no class 'X', " + known},
      {{"--class", ""}, "--class: there is no class '', " + known},
      {{"--class="}, "--class: there is no class '', " + known},
      {{"--demo", "x"},
       "--demo: there is no built-in server 'x', expected demo-orlo or demo-tavit"},
      {{"--format", "xml"},
       "--format: there is no format 'xml', expected " + report::FormatNames()},
      {{"--log-level", "5"}, "--log-level: '5' is no level, expected 0 to 4"},
      {{"--log-level", "-1"}, "--log-level: '-1' is no level, expected 0 to 4"},
      {{"--log-level", "2x"}, "--log-level: '2x' is no level, expected 0 to 4"},
      {{"--log-level", ""}, "--log-level: '' is no level, expected 0 to 4"},
      {{"--node", "0"}, "--node: '0' is no service processor, expected 1 to 255"},
      {{"--node", "256"}, "--node: '256' is no service processor, expected 1 to 255"},
      {{"--node", "1x"}, "--node: '1x' is no service processor, expected 1 to 255"},
      {{"--node="}, "--node: '' is no service processor, expected 1 to 255"},
      {{"--fail-on", "info"}, "--fail-on: 'info' is none, expected warning or critical"},
      {{"--fail-on", "3"}, "--fail-on: '3' is none, expected warning or critical"},
      {{"--sort", "size"}, "--sort: 'size' is none, expected name, reading or state"},
      {{"--filter", "x"}, "--filter: 'x' is no filter, expected CLASS.PROPERTY=GLOB"},
      {{"--filter", "system=a.b"},
       "--filter: 'system=a.b' is no filter, expected CLASS.PROPERTY=GLOB"},
      {{"--filter", "X.Name=a"}, "--filter: there is no class 'X', " + known},
      {{"--filter", "network.enabled=a"},
       "--filter: VELKSG_ServProc_IPProtocolEndpoint has no property 'enabled', did you mean "
       "'Enabled'?"},
      {{"--filter", "dial-out.PagerPIN=1*"},
       "--filter: PagerPIN is a secret, which a filter could guess; expected --show-secrets beside "
       "it"},
      {{"--output", "a.json", "--format", "table"},
       "--format says table, but the ending of --output a.json says json"},
      {{"--output", "a.txt", "--format", "json"},
       "--format says json, but the ending of --output a.txt says table"},
      {{"--format", "json", "--sort", "name"},
       "--sort: the format json has no layout to choose, expected --format table"},
      {{"--output", "a.json", "--no-header"},
       "--no-header: the format json has no layout to choose, expected --format table"},
      {{"--sensor", "fan*", "--class", "system"},
       "--sensor: VELKSG_SP_NumericSensor is not asked for"},
      {{"--sensor", "fan*", "--query", ""}, "--sensor: VELKSG_SP_NumericSensor is not asked for"},
      {{"--filter", "dial-in.LoginID=*", "--class", "system"},
       "--filter: VELKSG_ServProc_DialProtocolEndpoint2 is not asked for"},
      {{"--server", "-", "--limits", "-"}, "--server and --limits: both are standard input"},
      {{"--limits="}, "--limits: the name of a file was expected"},
      {{"--output", ""}, "--output: the name of a file was expected"},
      {{"--server="}, "--server: the name of a file was expected"},
  };
  for (Case one : collectCases) {
    one.words.insert(one.words.begin(), "collect");
    EXPECT_EQ(RefusalOf(one.words), one.expected + " (see strake collect --help)");
  }
  const std::vector<Case> checkCases = {
      {{""}, "file: the name of a file was expected"},
      {{"a", ""}, "file: the name of a file was expected"},
      {{}, "file is required"},
      {{"--format", "json"}, "there is no option '--format'"},
      {{"a", "--halp"}, "there is no option '--halp', did you mean '--help'?"},
  };
  for (Case one : checkCases) {
    one.words.insert(one.words.begin(), "check");
    EXPECT_EQ(RefusalOf(one.words), one.expected + " (see strake check --help)");
  }
}

TEST(CommandLine, TakesTwoReportsToCompare) {
  const auto options = std::get<app::DiffOptions>(Parse({"diff", "a", "-"}));
  EXPECT_EQ(options.before, "a");
  EXPECT_EQ(options.after, "-");
  EXPECT_EQ(options.tolerancePercent, 0);
  EXPECT_EQ(options.write, compare::WriteDiffTable);
  EXPECT_FALSE(options.output);
  const auto more = std::get<app::DiffOptions>(
      Parse({"diff", "--tolerance", "2.5", "a", "b", "--format", "json", "--output", "o"}));
  EXPECT_EQ(more.tolerancePercent, 2.5);
  EXPECT_EQ(more.write, compare::WriteDiffJson);
  EXPECT_EQ(more.output, "o");
  const struct {
    Words words;
    std::string expected;
  } cases[] = {
      {{}, "before is required"},
      {{"a"}, "after is required"},
      {{"a", "b", "c"}, "nothing takes the word 'c'"},
      {{"-", "-"}, "both reports are standard input"},
      {{"a", ""}, "after: the name of a file was expected"},
      {{"a", "b", "--format", "csv"}, "--format: there is no format 'csv', expected table or json"},
      {{"a", "b", "--tolerance", "-1"},
       "--tolerance: '-1' is no percentage, expected a number from 0"},
      {{"a", "b", "--tolerance", "5%"},
       "--tolerance: '5%' is no percentage, expected a number from 0"},
      {{"a", "b", "--tolerance", "inf"},
       "--tolerance: 'inf' is no percentage, expected a number from 0"},
  };
  for (const auto& one : cases) {
    Words words = one.words;
    words.insert(words.begin(), "diff");
    EXPECT_EQ(RefusalOf(words), one.expected + " (see strake diff --help)");
  }
}

TEST(CommandLine, TakesEveryFormOfTheSchema) {
  EXPECT_EQ(std::get<app::SchemaOptions>(Parse({"schema"})).format->name, "mof");
  const std::string help = std::get<app::TextAnswer>(Parse({"schema", "--help"})).text;
  for (const schema::Format& format : schema::Formats()) {
    const std::string name(format.name);
    const auto options =
        std::get<app::SchemaOptions>(Parse({"schema", "--format", name.c_str(), "--output", "o"}));
    EXPECT_EQ(options.format, &format);
    EXPECT_EQ(options.output, "o");
    EXPECT_NE(help.find(name), std::string::npos);
  }
  EXPECT_EQ(RefusalOf({"schema", "--format", "json"}),
            "--format: there is no format 'json', expected " + schema::FormatNames() +
                " (see strake schema --help)");
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

TEST(CommandLine, ChecksFilesInTheirOrder) {
  using Files = std::vector<std::filesystem::path>;
  EXPECT_EQ(std::get<app::CheckOptions>(Parse({"check", "file"})).files, Files{"file"});
  EXPECT_EQ(std::get<app::CheckOptions>(Parse({"check", "b", "-", "a", "b"})).files,
            (Files{"b", "-", "a", "b"}));
}

TEST(CommandLine, TakesADashForStandardInputOrOutput) {
  const CollectOptions options =
      Collect({"--server", "-", "--output", "-", "--trace", "-", "--log", "-"});
  EXPECT_EQ(options.server, "-");
  EXPECT_EQ(options.output, "-");
  EXPECT_EQ(options.trace, "-");
  EXPECT_EQ(options.log, "-");
  EXPECT_EQ(options.logLevel, 4);
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

TEST(CommandLine, ListsTheClassesOfTheCatalogue) {
  const std::string list = std::get<app::TextAnswer>(Parse({"classes"})).text;
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), std::ssize(cim::SchemaClasses()));
  EXPECT_EQ(list.substr(0, list.find('\n')),
            "system    VELKSG_SP_ComputerSystem               A service processor and its clock.");
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    EXPECT_NE(list.find(std::string(one.shortName) + " "), std::string::npos);
    EXPECT_NE(list.find(" " + std::string(one.name) + " "), std::string::npos);
  }
}

TEST(CommandLine, TakesHelpAndVersionAsWords) {
  const auto text = [](const Words& words) { return std::get<app::TextAnswer>(Parse(words)).text; };
  EXPECT_EQ(text({"help"}), text({"--help"}));
  EXPECT_EQ(text({"version"}), text({"--version"}));
  for (const char* const subject :
       {"collect", "check", "diff", "schema", "replay", "classes", "help", "version"}) {
    EXPECT_EQ(text({"help", subject}), text({subject, "--help"}));
    EXPECT_NE(text({"help", subject}), text({"help"}));
    EXPECT_NE(text({"help", subject}).find(std::string("Usage: strake ") + subject),
              std::string::npos);
  }
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
  const std::string library = folder.Write("lib/" + ModuleFile("strake"), "");
  EXPECT_EQ(app::FindModule(bin), library);
  const std::string beside = folder.Write("bin/" + ModuleFile("strake"), "");
  EXPECT_EQ(app::FindModule(bin), beside);
}

}  // namespace
}  // namespace strake::tests

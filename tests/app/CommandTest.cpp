// The command from outside: what it prints and how it ends.
#include "tests/app/CommandTest.h"

#include "report/Formats.h"
#include "schema/Formats.h"
#include "tests/support/Places.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kServerJson =
    "{\n  \"format\": \"strake-report/1\",\n  \"strake\": \"" STRAKE_VERSION
    "\",\n  \"collected_at\": \"TIME\",\n"
    "  \"server\": {\"name\":\"rack7.server.json\",\"description\":\"One card\","
    "\"kind\":\"orlo\"},\n  \"findings\": [],\n  \"instances\": [";

const std::string kSystemJson =
    kServerJson +
    "\n    {\"class\":\"VELKSG_SP_ComputerSystem\",\"properties\":"
    "{\"CreationClassName\":\"VELKSG_SP_ComputerSystem\",\"SourceNode\":1,"
    "\"Name\":\"SRV1:Node1\",\"SPClock\":\"20100615134530.000000-120\"}}\n  ]\n}\n";

const std::string kNoInstancesJson = kServerJson + "]\n}\n";

TEST_F(CommandTest, PrintsATableOfWhatItCollected) {
  EXPECT_EQ(Collect({"--class", "VELKSG_SP_ComputerSystem"}), (Outcome{0, kSystemTable, ""}));
}

TEST_F(CommandTest, PrintsJsonOfWhatItCollected) {
  EXPECT_EQ(CollectJson({"--class", "VELKSG_SP_ComputerSystem"}), (Outcome{0, kSystemJson, ""}));
}

TEST_F(CommandTest, AsksForAllClassesInFourQueries) {
  EXPECT_EQ(
      QueriesOf({}),
      "[\"VELKSG_ServProc_IPProtocolEndpoint\",\"VELKSG_ServProc_IPProtocolEndpoint2\"]}\n"
      "[\"VELKSG_ServProc_DialProtocolEndpoint1\",\"VELKSG_ServProc_DialProtocolEndpoint2\","
      "\"VELKSG_ServProc_DialProtocolEndpoint3\",\"VELKSG_ServProc_DialProtocolEndpoint4\"]}\n"
      "[\"VELKSG_SP_NumericSensor\"]}\n[\"VELKSG_SP_ComputerSystem\"]}\n");
}

TEST_F(CommandTest, AsksForClassesInTheSystemsOrderAndForListsInTheirs) {
  EXPECT_EQ(QueriesOf({"--class", "VELKSG_SP_ComputerSystem", "--class", "VELKSG_SP_NumericSensor",
                       "--class", "VELKSG_SP_ComputerSystem"}),
            "[\"VELKSG_SP_NumericSensor\"]}\n[\"VELKSG_SP_ComputerSystem\"]}\n");
  EXPECT_EQ(QueriesOf({"--query", "VELKSG_SP_ComputerSystem,Unheard", "--query", "", "--query",
                       "VELKSG_SP_ComputerSystem,Unheard"}),
            "[\"VELKSG_SP_ComputerSystem\",\"Unheard\"]}\n[]}\n"
            "[\"VELKSG_SP_ComputerSystem\",\"Unheard\"]}\n");
}

TEST_F(CommandTest, ReportsThatAQueryForNothingBroughtNothing) {
  EXPECT_EQ(CollectJson({"--query", ""}), (Outcome{0, kNoInstancesJson, ""}));
  EXPECT_EQ(Collect({"--query", ""}).out,
            "rack7.server.json (orlo): One card\n\nSP 1  answered\n\nFindings: none\n\n"
            "No instances were collected.\n0 instances, 1 query, 1 service processor\n");
}

TEST_F(CommandTest, WarnsOfEqualKeysBesideTheReport) {
  const std::string warning =
      "2 instances of VELKSG_SP_ComputerSystem have equal keys: "
      "CreationClassName=VELKSG_SP_ComputerSystem, SourceNode=1, Name=SRV1:Node1\n";
  const std::vector<std::string> twice = {"--query", "VELKSG_SP_ComputerSystem", "--query",
                                          "VELKSG_SP_ComputerSystem"};
  const Outcome table = Collect(twice);
  EXPECT_EQ(table.status, 0);
  EXPECT_EQ(table.err, "");
  EXPECT_EQ(
      table.out.substr(table.out.find("\nFindings\n")),
      "\nFindings\n  warning  " + warning + "\n2 instances, 2 queries, 1 service processor\n");
  const Outcome json = Collect({twice[0], twice[1], twice[2], twice[3], "--format", "json"});
  EXPECT_EQ(json.status, 0);
  EXPECT_EQ(json.err, "");
}

TEST_F(CommandTest, MasksSecretsUnlessAskedNotTo) {
  for (const std::string format : {"table", "json"}) {
    const std::vector<std::string> words = {"--class", "VELKSG_ServProc_DialProtocolEndpoint1",
                                            "--format", format};
    const Outcome masked = Collect(words);
    EXPECT_EQ(masked.status, 0);
    EXPECT_EQ(masked.out.find("hunter2"), std::string::npos);
    EXPECT_EQ(masked.out.find("1234"), std::string::npos);
    EXPECT_NE(masked.out.find("********"), std::string::npos);
    const Outcome clear = Collect({words[0], words[1], words[2], words[3], "--show-secrets"});
    EXPECT_NE(clear.out.find("hunter2"), std::string::npos);
    EXPECT_NE(clear.out.find("1234"), std::string::npos);
    EXPECT_EQ(clear.out.find("********"), std::string::npos);
  }
}

TEST_F(CommandTest, WritesLogLinesUpToTheirLevel) {
  const std::vector<std::string> words = {"--query", "", "--output", NullDevice(), "--log-level"};
  const auto logOf = [&](const std::string& level) {
    std::vector<std::string> all = {"collect", "--plugin", HostileModule(), "--log-level", level};
    all.insert(all.end(), words.begin(), words.end() - 1);
    return Strake(all).err;
  };
  EXPECT_EQ(logOf("0"), "");
  EXPECT_EQ(logOf("1"), "[1] hello\\nsecond line\\x1B\n");
  EXPECT_EQ(logOf("2"), "[1] hello\\nsecond line\\x1B\n[2] goodbye\n");
}

TEST_F(CommandTest, WritesAllLogLinesToALogFile) {
  EXPECT_EQ(Collect({"--query", "", "--log", fFolder / "log"}).err, "");
  const std::string log = ReadFile(fFolder / "log");
  EXPECT_NE(log.find("[3] Strake plugin begin execution.\n"), std::string::npos);
  EXPECT_NE(log.find("[4] TSPEnviron destructor entered.\n"), std::string::npos);
  EXPECT_NE(log.find("[3] fSP_ComputerSystem = 0\\nfServProc_IPProtocolEndpoint2 = 0\\n"),
            std::string::npos);
}

TEST_F(CommandTest, TracesInitializeAndDeinitializeAroundTheQueries) {
  EXPECT_EQ(CollectHostile({"--query", "", "--trace", fFolder / "trace", "--output", NullDevice(),
                            "--log-level", "0"}),
            (Outcome{0, "", ""}));
  EXPECT_EQ(ReadFile(fFolder / "trace"),
            "{\"event\":\"log\",\"level\":1,\"message\":\"hello\\u000Asecond line\\u001B\"}\n"
            "{\"event\":\"query\",\"classes\":[]}\n{\"event\":\"query_end\"}\n"
            "{\"event\":\"log\",\"level\":2,\"message\":\"goodbye\"}\n");
}

TEST_F(CommandTest, ShowsNothingThatATerminalWouldObey) {
  const Outcome outcome =
      CollectHostile({"--class", "VELKSG_SP_ComputerSystem", "--log-level", "0"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("    Name  \\x1B[31mred\\n\\xFF\n"), std::string::npos);
}

TEST_F(CommandTest, CollectsBothDemonstrationServers) {
  for (const std::string demo : {"demo-orlo", "demo-tavit"}) {
    const Outcome outcome = Strake({"collect", "--demo", demo, "--log-level", "0"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out.substr(0, demo.size()), demo);
  }
  EXPECT_EQ(Strake({"collect"}).out, Strake({"collect", "--demo", "demo-orlo"}).out);
}

// A line of the README may end with ", ..." and stand for a longer one.
TEST_F(CommandTest, PrintsWhatTheReadmeShows) {
  const std::string readme = ReadFile(SourceFolder() + "/README.md");
  const std::string command = "$ ./scripts/demo\n";
  const std::size_t begin = readme.find(command) + command.size();
  std::istringstream sample(readme.substr(begin, readme.find("```", begin) - begin));
  const std::string out = "\n" + Strake({"collect"}).out;
  int lines = 0;
  for (std::string line; std::getline(sample, line); ++lines) {
    if (line == "...") {
      continue;
    }
    const std::string more = ", ...";
    const bool isCut = line.ends_with(more);
    const std::string shown = "\n" + (isCut ? line.substr(0, line.size() - more.size()) : line);
    EXPECT_NE(out.find(isCut ? shown + ", " : shown + "\n"), std::string::npos) << line;
  }
  EXPECT_GT(lines, 30);
}

TEST_F(CommandTest, FindsAServiceProcessorThatDoesNotAnswerNoError) {
  const std::string silent = fFolder.Write(
      "silent", R"({"format": "strake-server/1", "sp": {"kind": "orlo", "communicates": false}})");
  const Outcome outcome =
      Strake({"collect", "--server", silent, "--class", "VELKSG_SP_ComputerSystem"});
  EXPECT_EQ(outcome, (Outcome{0,
                              "silent (orlo)\n\nFindings: 1 critical\n"
                              "  critical  could not communicate with the Orlo card\n\n"
                              "No instances were collected.\n"
                              "0 instances, 1 query, 0 service processors\n",
                              "[0] Could not communicate with Orlo card.\n"}));
}

TEST_F(CommandTest, EndsWithThreeWhenAFindingIsAsGraveAsItIsToldToFailOn) {
  const std::string silent = fFolder.Write(
      "silent", R"({"format": "strake-server/1", "sp": {"kind": "orlo", "communicates": false}})");
  const std::string hot = fFolder.Write("hot.toml", "[[limit]]\nupper_warning = -1000\n");
  const struct {
    std::vector<std::string> words;
    int status;
  } cases[] = {
      {{"--server", silent}, 0},
      {{"--server", silent, "--fail-on", "warning"}, 3},
      {{"--server", silent, "--fail-on", "critical"}, 3},
      {{"--sensor", "12 Voltage", "--demo", "demo-tavit", "--fail-on", "warning"}, 0},
      {{"--sensor", "12 Voltage", "--demo", "demo-tavit", "--limits", hot}, 0},
      {{"--sensor", "12 Voltage", "--demo", "demo-tavit", "--limits", hot, "--fail-on", "warning"},
       3},
      {{"--sensor", "12 Voltage", "--demo", "demo-tavit", "--limits", hot, "--fail-on", "critical"},
       0},
  };
  for (const auto& one : cases) {
    std::filesystem::remove(fFolder / "report");
    std::vector<std::string> words = {"collect", "--output", fFolder / "report", "--quiet"};
    words.insert(words.end(), one.words.begin(), one.words.end());
    EXPECT_EQ(Strake(words).status, one.status) << testing::PrintToString(one.words);
    // It is written all the same.
    EXPECT_NE(ReadFile(fFolder / "report"), "");
  }
}

TEST_F(CommandTest, SelectsAndJudgesBeforeItReports) {
  const std::string limits =
      fFolder.Write("limits.toml", "[[limit]]\nsensor = \"fan 1\"\nlower_critical = 4000.5\n");
  EXPECT_EQ(Strake({"collect", "--demo", "demo-tavit", "--sensor", "fan ?", "--filter",
                    "sensors.CurrentReading=4*", "--limits", limits, "--no-header"}),
            (Outcome{0,
                     "SP 1  fan  Fan 1  4000 RPM  critical\n"
                     "SP 1  fan  Fan 2  4050 RPM  ok\nSP 1  fan  Fan 4  4020 RPM  ok\n"
                     "SP 1  finding  critical  Fan 1 is 4000 RPM, below 4000.5 RPM\n",
                     ""}));
}

TEST_F(CommandTest, WarnsWhenNoSensorIsCalledSo) {
  EXPECT_EQ(Strake({"collect", "--sensor", "nosuch*"}).err,
            "strake: warning: --sensor: no sensor is called 'nosuch*'\n");
  EXPECT_EQ(Strake({"collect", "--sensor", "nosuch*", "--quiet"}).err, "");
  EXPECT_EQ(Strake({"collect", "--sensor", "fan 16*", "--node", "1"}).err, "");
}

TEST_F(CommandTest, TellsFindingsOnStandardErrorWhereTheFormatHasNoPlaceForThem) {
  const std::vector<std::string> words = {"collect", "--sensor", "Fan 16*",
                                          "--node",  "1",        "--format"};
  for (const report::Format& format : report::Formats()) {
    std::vector<std::string> all = words;
    all.emplace_back(format.name);
    const std::string expected =
        format.findings == report::FindingsGo::InReport
            ? ""
            : "strake: warning: SP 1: 5 of 42 sensors on SP 1 did not answer: Planar Voltage -5v, "
              "CPU 3 "
              "temperature, CPU 4 temperature, DASD Sensor 2 Temperature, Fan 16 speed\n";
    EXPECT_EQ(Strake(all).err, expected) << format.name;
    all.emplace_back("--quiet");
    EXPECT_EQ(Strake(all).err, "") << format.name;
  }
}

TEST_F(CommandTest, ReadsAServerFromStandardInput) {
  const Outcome outcome =
      Command({"collect", "--server", "-", "--class", "VELKSG_SP_ComputerSystem"})
          .StandardInput(fServer)
          .Run();
  std::string table = kSystemTable;
  table.replace(0, std::string("rack7.server.json").size(), "standard input");
  EXPECT_EQ(outcome, (Outcome{0, table, ""}));
  EXPECT_EQ(Command({"collect", "--server", "-"}).StandardInput(NullDevice()).Run(),
            (Outcome{2, "",
                     "strake: standard input: line 1, column 1: syntax error while parsing value "
                     "- unexpected end of input; expected '[', '{', or a literal\n"}));
}

TEST_F(CommandTest, WritesToStandardOutputForADash) {
  const std::vector<std::string> words = {"--class", "VELKSG_SP_ComputerSystem", "--output"};
  EXPECT_EQ(Collect({words[0], words[1], words[2], "-"}), (Outcome{0, kSystemTable, ""}));
  const Outcome trace = Collect({words[0], words[1], words[2], fFolder / "report", "--trace", "-"});
  EXPECT_EQ(trace.out.substr(0, 16), R"({"event":"log",")");
  EXPECT_EQ(trace.err, "");
  EXPECT_EQ(ReadFile(fFolder / "report"), kSystemTable);
  const Outcome log = Collect({words[0], words[1], words[2], fFolder / "report", "--log", "-"});
  EXPECT_EQ(log.out.substr(0, 4), "[3] ");
  EXPECT_EQ(Collect({"--trace", "-"}),
            (Outcome{2, "", "strake: the report and --trace: both are the file -\n"}));
}

TEST_F(CommandTest, WarnsOnceOfAClassThatTheSchemaLacksAndHandsItOn) {
  const std::vector<std::string> words = {"--query",  "VELKSG_SP_ComputerSytem, Unheard",
                                          "--query",  "Unheard",
                                          "--trace",  fFolder / "trace",
                                          "--output", NullDevice()};
  EXPECT_EQ(Collect(words),
            (Outcome{0, "",
                     "strake: warning: --query: no class of the schema is called "
                     "'VELKSG_SP_ComputerSytem', did you mean 'VELKSG_SP_ComputerSystem'?\n"
                     "strake: warning: --query: no class of the schema is called 'Unheard'\n"}));
  EXPECT_NE(ReadFile(fFolder / "trace").find(R"("classes":["VELKSG_SP_ComputerSytem","Unheard"]})"),
            std::string::npos);
  std::vector<std::string> quiet = words;
  quiet.emplace_back("--quiet");
  EXPECT_EQ(Collect(quiet), (Outcome{0, "", ""}));
}

TEST_F(CommandTest, AsksEachOfAHundredAndThirtyServiceProcessorsWithoutACount) {
  std::string instances;
  for (int i = 0; i < 130; ++i) {
    instances += std::string(i == 0 ? "" : ",") + R"({"dot_commands": {"1.1": "01"}})";
  }
  const std::string server = fFolder.Write(
      "many",
      R"({"format": "strake-server/1", "sp": {"kind": "orlo", "instances": [)" + instances + "]}}");
  const Outcome outcome = Strake(
      {"collect", "--server", server, "--class", "VELKSG_SP_ComputerSystem", "--log-level", "0"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_NE(outcome.out.find("SRV1:Node130\n"), std::string::npos);
  EXPECT_NE(outcome.out.find("\n130 instances, 1 query, 130 service processors\n"),
            std::string::npos);
}

TEST_F(CommandTest, HoldsTheClockOfAServiceProcessorBesideTheHosts) {
  const auto page = [this](const std::string& localTime) {
    std::string text = kSmallServer;
    text.insert(1, "\"local_time\": \"" + localTime + "\", ");
    return Strake({"collect", "--class", "system", "--format", "html", "--server",
                   fFolder.Write("clock", text)})
        .out;
  };
  EXPECT_NE(page("20100615154533.000000+000").find("3 s behind"), std::string::npos);
  EXPECT_NE(page("20100615134525.000000-120").find("5 s ahead"), std::string::npos);
}

TEST_F(CommandTest, WritesEveryFormOfTheSchema) {
  for (const schema::Format& format : schema::Formats()) {
    const std::string name(format.name);
    EXPECT_EQ(Strake({"schema", "--format", name}), (Outcome{0, format.write(), ""}));
    EXPECT_EQ(Strake({"schema", "--format", name, "--output", fFolder / "schema"}),
              (Outcome{0, "", ""}));
    EXPECT_EQ(ReadFile(fFolder / "schema"), format.write());
  }
  const Outcome refused = Strake({"schema", "--output", fFolder / "none/schema"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.out, "");
  EXPECT_EQ(std::count(refused.err.begin(), refused.err.end(), '\n'), 1);
}

TEST_F(CommandTest, PrintsHelpAndVersionOnStandardOutput) {
  EXPECT_EQ(Strake({"--version"}).status, 0);
  EXPECT_EQ(Strake({"--version"}).err, "");
  EXPECT_EQ(Strake({"version"}), Strake({"--version"}));
  const Outcome help = Strake({"collect", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("Examples:\n"), std::string::npos);
  EXPECT_EQ(help.err, "");
}

}  // namespace
}  // namespace strake::tests

// What the command does to files, and how it refuses and fails.
#include "tests/app/CommandFilesTest.h"

#include "tests/support/Places.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

TEST_F(CommandFilesTest, RefusesADescriptionThatIsNoneAndTouchesNothing) {
  struct Case {
    const char* what;
    std::string text;
  };
  const std::vector<Case> cases = {
      {"empty", ""},
      {"truncated", kNoProcessor.substr(0, kNoProcessor.size() / 2)},
      {"no JSON", "format = strake-server/1\n"},
      {"wrong type", R"({"format": "strake-server/1", "sp": {"kind": "orlo", "count": "2"}})"},
      {"duplicate key", R"({"format": "strake-server/1", "sp": {"kind": "none", "kind": "none"}})"},
      {"control bytes", "{\"\x1b[31m\n\": 1}"},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.what);
    const std::string server = fFolder.Write("s", one.text);
    ExpectEnd(Collect({"--server", server}), 2, "strake: " + server + ":", {"s"});
    ExpectEnd(Strake({"check", server}), 2, "strake: " + server + ":", {"s"});
  }
}

TEST_F(CommandFilesTest, RefusesADescriptionThatCannotBeRead) {
  const std::string absent = fFolder / "absent";
  ExpectEnd(Collect({"--server", absent}), 2,
            "strake: " + absent + ": cannot be read: No such file or directory");
  ExpectEnd(Collect({"--server", fFolder.Path().string()}), 2,
            "strake: " + fFolder.Path().string() + ":");
  // A name that no system takes for none.
  ExpectEnd(Collect({"--server", " "}), 2, "strake:  : cannot be read: No such file or directory");
}

TEST_F(CommandFilesTest, RefusesADescriptionOfAHundredMegabytes) {
  const std::string huge = fFolder.Write("huge", kNoProcessor);
  fs::resize_file(huge, std::uintmax_t{100} * 1000 * 1000);
  ExpectEnd(Collect({"--server", huge}), 2, "strake: " + huge + ":", {"huge"});
  ExpectEnd(Strake({"check", huge}), 2, "strake: " + huge + ":", {"huge"});
}

TEST_F(CommandFilesTest, RefusesWrongUsageAndTouchesNothing) {
  ExpectEnd(Collect({"--class", "VELKSG_Unknown"}), 2,
            "strake: --class: there is no class 'VELKSG_Unknown', expected one of ");
  ExpectEnd(Collect({"--class", "two\nlines"}), 2,
            "strake: --class: there is no class 'two\\nlines'");
  ExpectEnd(Collect({"--format", "xml"}), 2, "strake: --format: there is no format 'xml'");
  ExpectEnd(Strake({}), 2,
            "strake: a subcommand was expected: collect, watch, check, diff, schema, replay, "
            "init, classes, completion, help or version");
}

TEST_F(CommandFilesTest, FailsOverAModuleThatCannotBeLoadedAndTouchesNothing) {
  const std::string text = fFolder.Write(ModuleFile("text"), "no module");
  const Names more = {ModuleFile("text")};
  const std::string absent = fFolder / ModuleFile("absent");
  ExpectEnd(Collect({"--plugin", absent}), 1, "strake: " + absent + ": there is no such", more);
  ExpectEnd(Collect({"--plugin", text}), 1, "strake: " + text + ": is not a loadable module", more);
  const std::string library = BuildFolder() + STRAKE_HOSTCORE;
  ExpectEnd(Collect({"--plugin", library}), 1,
            "strake: " + library + ": the module lacks the entry \"StrakeModuleEntry\"\n", more);
  ExpectEnd(Collect({"--plugin", RefusingModule()}), 1,
            "strake: the module's entry reports a failure\n", more);
}

TEST_F(CommandFilesTest, RefusesTheInputBeforeItLooksAtTheModule) {
  ExpectEnd(Collect({"--server", fFolder / "absent", "--plugin", fFolder / "absent"}), 2,
            "strake: " + (fFolder / "absent") + ": cannot be read");
}

TEST_F(CommandFilesTest, FailsOverAnOutputThatCannotBeWritten) {
  const std::string beyond = fFolder / "absent/file";
  for (const std::string option : {"--output", "--trace", "--log"}) {
    ExpectEnd(Strake({"collect", option, beyond}), 1,
              "strake: cannot write " + beyond + ": No such file or directory\n");
    const std::string folder = fFolder.Path().string();
    ExpectEnd(Strake({"collect", option, folder}), 1,
              "strake: cannot write " + folder + ": Is a directory\n");
  }
}

TEST_F(CommandFilesTest, EndsARunWhoseQueryThrowsAndKeepsItsTrail) {
  struct Case {
    std::string className;
    std::string message;
    std::string traced;
  };
  const std::vector<Case> cases = {
      {"text", "query 2 ended with an exception: two\\nlines", "two\\u000Alines"},
      {"own", "query 2 ended with an exception: the module's own", "the module's own"},
      {"memory", "query 2 ended with an exception: std::bad_alloc", "std::bad_alloc"},
      {"number", "query 2 ended with an exception that does not say what it is",
       "unknown exception"},
  };
  for (const Case& one : cases) {
    for (const std::string& output : fOutputs) {
      std::ofstream(output) << "old " + fs::path(output).filename().string();
    }
    const Outcome outcome =
        Collect({"--plugin", HostileModule(), "--query", "VELKSG_SP_ComputerSystem", "--query",
                 one.className, "--query", "", "--quiet"});
    EXPECT_EQ(outcome, (Outcome{1, "", "strake: " + one.message + "\n"}));
    EXPECT_EQ(ReadFile(fOutputs[0]), "old report");
    EXPECT_EQ(ReadFile(fOutputs[2]), "[1] hello\\nsecond line\\x1B\n");
    const std::string trace = ReadFile(fOutputs[1]);
    const std::string end = "{\"event\":\"query_end\",\"throws\":\"" + one.traced + "\"}\n";
    EXPECT_EQ(trace.substr(trace.size() - std::min(trace.size(), end.size())), end);
    EXPECT_EQ(fFolder.Names(), (Names{"report", "trace", "log"}));
  }
}

TEST_F(CommandFilesTest, EndsARunWhoseModuleFailsBesideItsQueries) {
  struct Case {
    std::string step;
    std::string thrown;
    std::string message;
    bool hasTrail;
  };
  const std::string nameless = " ended with an exception that does not say what it is";
  const std::string memory = " ended with an exception: std::bad_alloc";
  const std::vector<Case> cases = {
      {"attach", "int", "attaching" + nameless, false},
      {"attach", "memory", "attaching" + memory, false},
      {"initialize", "int", "Initialize" + nameless, true},
      {"initialize", "memory", "Initialize" + memory, true},
      {"deinitialize", "int", "Deinitialize" + nameless, true},
      {"deinitialize", "memory", "Deinitialize" + memory, true},
      {"destroy", "int", "detaching" + nameless, true},
      {"destroy", "memory", "detaching" + memory, true},
  };
  for (const Case& one : cases) {
    const Outcome outcome =
        Command({"collect", "--plugin", HostileModule(), "--query", "", "--output", fOutputs[0],
                 "--trace", fOutputs[1], "--log", fFolder / "new"})
            .Environment("STRAKE_HOSTILE=" + one.step + " " + one.thrown)
            .Run();
    EXPECT_EQ(outcome, (Outcome{1, "", "strake: " + one.message + "\n"}));
    EXPECT_EQ(ReadFile(fOutputs[0]), "old report");
    EXPECT_EQ(fs::exists(fFolder / "new"), one.hasTrail);
    EXPECT_EQ(ReadFile(fOutputs[1]) == "old trace", !one.hasTrail);
    EXPECT_EQ(fFolder.Write("trace", "old trace"), fOutputs[1]);
    fs::remove(fFolder / "new");
  }
}

TEST_F(CommandFilesTest, NamesTheHostsAssertionOfAModuleThatAttaches) {
  const Outcome outcome = Command({"collect", "--plugin", HostileModule()})
                              .Environment("STRAKE_HOSTILE=attach handle")
                              .Run();
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err.find("strake: attaching ended with an exception: px != 0 failed in "), 0U);
  EXPECT_NE(outcome.err.find(", line 315\n"), std::string::npos);
  EXPECT_TRUE(IsOneLine(outcome.err));
}

TEST_F(CommandFilesTest, NamesTheHostsAssertion) {
  const Outcome outcome =
      CollectHostile({"--query", "VELKSG_Unheard", "--log-level", "0", "--quiet"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err.find("strake: query 1 ended with an exception: px != 0 failed in "), 0U);
  EXPECT_NE(outcome.err.find(", line 315\n"), std::string::npos);
  EXPECT_TRUE(IsOneLine(outcome.err));
}

TEST_F(CommandFilesTest, WritesTheSameReportToAFileAsToStandardOutput) {
  const std::string server = fFolder.Write("s", kNoProcessor);
  const Outcome printed = Strake({"collect", "--server", server});
  EXPECT_EQ(printed.status, 0);
  EXPECT_EQ(Collect({"--server", server}), (Outcome{0, "", ""}));
  EXPECT_EQ(ReadFile(fOutputs[0]), printed.out);
}

}  // namespace
}  // namespace strake::tests

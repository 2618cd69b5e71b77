// The command among the descriptors that it is given: closed ones, pipes without
// a reader, outputs that meet each other by their names.
#include "tests/app/CommandDescriptorsTest.h"
#include "tests/app/Command_posix.h"

#include <csignal>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using Words = std::vector<std::string>;

// Every one of them is JSON.
std::size_t CountTraceLines(const std::string& trace) {
  std::istringstream lines(ReadFile(trace));
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    EXPECT_TRUE(nlohmann::json::accept(line)) << line;
  }
  return count;
}

TEST_F(CommandDescriptorsTest, RefusesOutputsThatAreOneFileByALinkOrADescriptorsName) {
  fs::create_symlink("new", fFolder / "link");
  const struct {
    Words words;
    std::string options;
    std::string file;
  } cases[] = {
      {{"--trace", fNew, "--log", fFolder / "link"}, "--trace and --log", fFolder / "link"},
      {{"--trace", "/dev/stdout"}, "the report and --trace", "/dev/stdout"},
      {{"--output", "-", "--log", "/dev/fd/1"}, "the report and --log", "/dev/fd/1"},
  };
  const Names before = fFolder.Names();
  for (const auto& one : cases) {
    EXPECT_EQ(Strake(Collecting(one.words)),
              Refusal(one.options + ": both are the file " + one.file));
  }
  EXPECT_EQ(fFolder.Names(), before);
}

TEST_F(CommandDescriptorsTest, RefusesAnOutputThatIsTheFileBehindAStandardDescriptor) {
  const std::string hard = fFolder / "hard";
  fs::create_hard_link(fOld, hard);
  for (const std::string option : {"--trace", "--log"}) {
    EXPECT_EQ(PosixCommand(Collecting({option, hard})).StandardOutput(fOld).Run(),
              Refusal("the report and " + option + ": both are the file " + hard));
    EXPECT_EQ(PosixCommand(Collecting({option, "/dev/stderr"}))
                  .StandardOutput(fOld)
                  .Writing(2, fOld)
                  .Run()
                  .status,
              2);
  }
  for (const std::string option : {"--output", "--trace", "--log"}) {
    Words words = {option, hard};
    if (option != "--output") {
      words.insert(words.begin(), {"--output", "/dev/null"});
    }
    EXPECT_EQ(PosixCommand(Collecting(words)).StandardOutput(fOld).Run(),
              Refusal("standard output and " + option + ": both are the file " + hard));
    EXPECT_EQ(PosixCommand(Collecting(words)).Writing(2, fOld).Run().status, 2);
    EXPECT_EQ(ReadFile(fOld),
              "strake: standard error and " + option + ": both are the file " + hard + "\n");
    EXPECT_EQ(fFolder.Write("old", "old"), fOld);
  }
}

TEST_F(CommandDescriptorsTest, WritesToTheDescriptorsThatItWasGivenAndToNoOther) {
  const auto refusal = [](const std::string& name, int descriptor) {
    return Refusal("--trace: " + name + ": descriptor " + std::to_string(descriptor) +
                   " is not open for writing");
  };
  for (const int descriptor : {3, 4, 5, 6, 7}) {
    const std::string name = "/dev/fd/" + std::to_string(descriptor);
    EXPECT_EQ(PosixCommand(Collecting({"--trace", name, "--log", fNew})).Run(),
              refusal(name, descriptor));
  }
  EXPECT_EQ(PosixCommand(Collecting({"--trace", "/dev/fd/3"})).Reading(3, fOld).Run(),
            refusal("/dev/fd/3", 3));
  EXPECT_EQ(PosixCommand(Collecting({"--trace", "/dev/stdin"})).Closed({0}).Run(),
            refusal("/dev/stdin", 0));
  EXPECT_EQ(PosixCommand(Collecting({"--output", fNew, "--trace", "-"})).Closed({1}).Run(),
            refusal("-", 1));
  EXPECT_FALSE(fs::exists(fNew));
  const Outcome plain = PosixCommand(Collecting({})).Run();
  EXPECT_EQ(PosixCommand(Collecting({"--trace", "/dev/fd/3"})).Writing(3, fOld).Run(), plain);
  EXPECT_EQ(ReadFile(fOld).substr(0, 9), "{\"event\":");
}

TEST_F(CommandDescriptorsTest, KeepsItsFilesApartFromClosedStandardDescriptors) {
  const std::string output = fFolder / "output";
  const std::string trace = fFolder / "trace";
  const Words words = {"collect", "--output", output,
                       "--trace", trace,      "--log-level",
                       "4",       "--class",  "VELKSG_SP_ComputerSystem"};
  ASSERT_EQ(PosixCommand(words).Run().status, 0);
  const std::string report = ReadFile(output);
  const std::size_t count = CountTraceLines(trace);
  EXPECT_GT(count, 50U);
  for (const std::vector<int>& closed :
       std::vector<std::vector<int>>{{0}, {1}, {2}, {0, 1}, {0, 2}, {1, 2}, {0, 1, 2}}) {
    for (const bool isNew : {true, false}) {
      SCOPED_TRACE(testing::PrintToString(closed));
      if (isNew) {
        fs::remove(output);
        fs::remove(trace);
      }
      EXPECT_EQ(PosixCommand(words).Closed(closed).Run().status, 0);
      EXPECT_EQ(ReadFile(output), report);
      EXPECT_EQ(CountTraceLines(trace), count);
    }
  }
}

TEST_F(CommandDescriptorsTest, LosesItsReportToAClosedStandardOutputAlone) {
  const std::string trace = fFolder / "trace";
  ASSERT_EQ(PosixCommand(Collecting({"--trace", trace})).Run().status, 0);
  const std::string traced = ReadFile(trace);
  for (const std::vector<int>& closed : std::vector<std::vector<int>>{{1}, {0, 1}}) {
    fs::remove(trace);
    EXPECT_EQ(PosixCommand(Collecting({"--trace", trace})).Closed(closed).Run(),
              (Outcome{1, "", "strake: cannot write to standard output: Bad file descriptor\n"}));
    EXPECT_EQ(ReadFile(trace), traced);
  }
}

TEST_F(CommandDescriptorsTest, NoticesThatStandardOutputTakesNothing) {
  for (const Words& words :
       {Words{"collect", "--server", fServer}, {"check", fServer}, {"--help"}, {"--version"}}) {
    EXPECT_EQ(
        PosixCommand(words).StandardOutput("/dev/full").Run(),
        (Outcome{1, "", "strake: cannot write to standard output: No space left on device\n"}));
    EXPECT_EQ(PosixCommand(words).Closed({1}).Run(),
              (Outcome{1, "", "strake: cannot write to standard output: Bad file descriptor\n"}));
  }
}

TEST_F(CommandDescriptorsTest, EndsQuietlyWhenItsReaderWentAway) {
  for (const Words& words :
       {Words{"collect", "--server", fServer}, {"check", fServer}, {"--help"}, {"--version"}}) {
    EXPECT_EQ(PosixCommand(words).NoReader().Run(), (Outcome{-SIGPIPE, "", ""}));
    EXPECT_EQ(PosixCommand(words).NoReader().Ignoring(SIGPIPE).Run(),
              (Outcome{1, "", "strake: cannot write to standard output: Broken pipe\n"}));
  }
  EXPECT_EQ(PosixCommand(Collecting({"--trace", "-", "--output", fNew})).NoReader().Run(),
            (Outcome{-SIGPIPE, "", ""}));
  EXPECT_FALSE(fs::exists(fNew));
  EXPECT_EQ(PosixCommand(Collecting({"--trace", fNew, "--log", fOld})).NoReader().Run(),
            (Outcome{-SIGPIPE, "", ""}));
  EXPECT_EQ(ReadFile(fNew).substr(0, 9), "{\"event\":");
  EXPECT_NE(ReadFile(fOld).find("[3] Strake plugin begin execution.\n"), std::string::npos);
  EXPECT_EQ(fFolder.Names(), (Names{"new", "old", "s"}));
}

}  // namespace
}  // namespace strake::tests

// Several servers, each collected in a process of its own.
#include "tests/app/Command.h"
#include "tests/support/Places.h"
#include "tests/support/Processes.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

namespace strake::tests {
namespace {

using nlohmann::json;
using Names = std::set<std::string>;
using Words = std::vector<std::string>;

// A process costs a sanitizer a hundred times as much.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t kMany = 30;
constexpr const char* kTimeout = "10s";
#else
constexpr std::size_t kMany = 300;
constexpr const char* kTimeout = "2s";
#endif

std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

// Without the one thing in which two collections of a server differ.
std::string WithoutTime(std::string text) {
  const std::string key = "\"collected_at\":\"";
  for (auto at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
    at += key.size();
    text.erase(at, text.find('"', at) - at);
  }
  return text;
}

class CommandManyServersTest : public testing::Test {
 protected:
  // One card, that has a clock.
  [[nodiscard]] std::string Server(const std::string& name, const std::string& machine = "5301-AR2",
                                   int latency = 0) const {
    return fFolder.Write(name, R"({"format": "strake-server/1", "machine_type_model": ")" +
                                   machine + R"(", "sp": {"kind": "orlo", "latency_ms": )" +
                                   std::to_string(latency) +
                                   R"(, "instances": [{"dot_commands": {"1.1": "01",
                      "4.4.1": "18 03 12 01 09 29 1B", "4.4.2": "3C 00"}}]}})");
  }
  // One that keeps its process waiting.
  [[nodiscard]] std::string Silent(const std::string& name) const {
    return Server(name, "5301-AR2", 60000);
  }

  // "strake collect" with the module of the tests.
  static Words Collecting(const Words& servers, const Words& more = {}) {
    Words words = {"collect", "--plugin", ErraticModule(), "--class", "system"};
    for (const std::string& server : servers) {
      words.insert(words.end(), {"--server", server});
    }
    words.insert(words.end(), {"--format", "jsonl"});
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }
  static Outcome Collect(const Words& servers, const Words& more = {}) {
    return Strake(Collecting(servers, more));
  }

  // The line that stands for a report.
  static std::string Failure(const std::string& name, const std::string& text) {
    return R"({"format":"strake-error/1","strake":")" STRAKE_VERSION R"(","server":{"name":)" +
           json(name).dump() + R"(},"error":)" + json(text).dump() + "}\n";
  }

  void ExpectNothingLeft() const { EXPECT_EQ(ProcessesWith(fFolder.Path()), std::set<pid_t>{}); }

  TemporaryFolder fFolder;
};

TEST_F(CommandManyServersTest, AreEightReportsTwoErrorsAndARefusalInTheOrderOfTheArguments) {
  const std::string refused = fFolder.Write("refused", "{\"format\": 1}");
  const Words servers = {Server("1"), Server("2"), Silent("hangs"),
                         Server("3"), Server("4"), Server("crashes", "abort"),
                         Server("5"), refused,     Server("6"),
                         Server("7"), Server("8")};
  const Names before = fFolder.Names();
  const Outcome outcome = Collect(servers, {"--timeout", kTimeout, "--jobs", "3"});
  EXPECT_EQ(outcome.status, 1);
  const std::string aborted = "its process was ended by signal 6 (Aborted)";
  const std::string timedOut = std::string("timed out after ") + kTimeout;
  const std::string refusal = refused + ": at /format: expected a string, got 1";
  const std::map<std::string, std::string> failures = {
      {"hangs", timedOut}, {"crashes", aborted}, {"refused", refusal}};
  const Words lines = LinesOf(outcome.out);
  ASSERT_EQ(lines.size(), servers.size()) << outcome;
  for (std::size_t i = 0; i < servers.size(); ++i) {
    const json line = json::parse(lines[i]);
    const std::string name = std::filesystem::path(servers[i]).filename();
    EXPECT_EQ(line.at("server").at("name"), name);
    if (const auto failure = failures.find(name); failure != failures.end()) {
      EXPECT_EQ(lines[i] + '\n', Failure(name, failure->second));
    } else {
      EXPECT_EQ(line.at("format"), "strake-report/1") << lines[i];
      EXPECT_EQ(line.at("instances").size(), 1U);
    }
  }
  Words told = LinesOf(outcome.err);
  std::ranges::sort(told);
  EXPECT_EQ(told, (Words{"strake: " + servers[5] + ": " + aborted,
                         "strake: " + servers[2] + ": " + timedOut, "strake: " + refusal}));
  EXPECT_EQ(fFolder.Names(), before);
  ExpectNothingLeft();
}

TEST_F(CommandManyServersTest, AreTheSameBytesWhateverRunsBesideThem) {
  Words servers;
  for (int i = 0; i < 12; ++i) {
    servers.push_back(
        Server("s" + std::to_string(i), i % 5 == 4 ? "status" : "5301-AR2", 5 - i % 3));
  }
  const Outcome one = Collect(servers, {"--jobs", "1"});
  EXPECT_EQ(one.status, 1);
  EXPECT_EQ(LinesOf(one.out).size(), servers.size());
  for (const Words& more : {Words{"--jobs", "8"}, Words{}}) {
    const Outcome many = Collect(servers, more);
    EXPECT_EQ(many.status, 1);
    EXPECT_EQ(WithoutTime(many.out), WithoutTime(one.out));
  }
}

TEST_F(CommandManyServersTest, HaveEachTheReportOfACollectionOfItsOwn) {
  Words everything = {"collect"};
  std::string expected;
  for (const auto& entry : std::filesystem::directory_iterator(SourceFolder() + "/servers")) {
    const Words words = {"collect", "--server", entry.path(), "--log-level", "0", "--format"};
    const auto collect = [&words](const std::string& format) {
      Words all = words;
      all.push_back(format);
      return Strake(all);
    };
    const Outcome single = collect("jsonl");
    ASSERT_EQ(single.status, 0) << single;
    const Outcome whole = collect("json");
    json same = json::parse(whole.out);
    same["collected_at"] = json::parse(single.out).at("collected_at");
    EXPECT_EQ(json::parse(single.out), same);
    EXPECT_EQ(single.out.find('\n'), single.out.size() - 1);
    expected += single.out;
    everything.insert(everything.end(), {"--server", entry.path()});
  }
  everything.insert(everything.end(), {"--log-level", "0", "--output", fFolder / "reports.jsonl"});
  EXPECT_EQ(Strake(everything), (Outcome{0, "", ""}));
  EXPECT_EQ(WithoutTime(ReadFile(fFolder / "reports.jsonl")), WithoutTime(expected));
  EXPECT_EQ(ModeOf(fFolder / "reports.jsonl"), 0644U);
}

TEST_F(CommandManyServersTest, CanBeHundredsAmongFewDescriptors) {
  const Words servers(kMany, Server("s"));
  const Outcome outcome = Command(Collecting(servers, {"--jobs", "4"})).Descriptors(24).Run();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  const Words lines = LinesOf(WithoutTime(outcome.out));
  EXPECT_EQ(lines, Words(kMany, lines.at(0)));
}

TEST_F(CommandManyServersTest, FailOneByOne) {
  const struct {
    const char* way;
    std::string text;
  } cases[] = {
      {"abort", "its process was ended by signal 6 (Aborted)"},
      {"status", "its process ended with status 7"},
      {"leave", "its process wrote something else than a report"},
      {"output", "its process wrote something else than a report"},
      {"beginning", "its process wrote something else than a report"},
      {"report", "its process wrote something else than a report"},
  };
  const std::string fine = Server("fine");
  for (const auto& one : cases) {
    const std::string bad = Server(one.way, one.way);
    const Outcome outcome = Collect({bad, fine});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out.find(Failure(one.way, one.text)), 0U) << outcome;
    EXPECT_EQ(LinesOf(outcome.out).size(), 2U);
    EXPECT_EQ(outcome.err, "strake: " + bad + ": " + one.text + "\n");
  }
  const Outcome absent = Collect({fine, fFolder / "absent"});
  const std::string text = fFolder / "absent: cannot be read: No such file or directory";
  EXPECT_EQ(absent.status, 1);
  EXPECT_TRUE(absent.out.ends_with("\n" + Failure("absent", text))) << absent;
  EXPECT_EQ(absent.err, "strake: " + text + "\n");
}

TEST_F(CommandManyServersTest, CanBeOneThatHasItsTime) {
  const std::string silent = Silent("silent");
  EXPECT_EQ(Collect({silent}, {"--timeout", "200ms"}),
            (Outcome{1, Failure("silent", "timed out after 200ms"),
                     "strake: " + silent + ": timed out after 200ms\n"}));
  const std::string fine = Server("fine");
  for (const Words& more : {Words{"--timeout", "24h"}, {"--jobs", "1"}}) {
    const Outcome outcome = Collect({fine}, more);
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_EQ(WithoutTime(outcome.out), WithoutTime(Collect({fine}).out));
  }
  // Without these options it is this process that fails.
  EXPECT_EQ(Collect({Server("bad", "abort")}), (Outcome{-SIGABRT, "", ""}));
}

TEST_F(CommandManyServersTest, EndWithAFindingOnlyWhereNoneFailed) {
  // What it was asked for has no answer.
  const std::string finding = fFolder.Write(
      "finding", R"({"format": "strake-server/1", "sp": {"kind": "orlo", "count": 1}})");
  const std::string fine = Server("fine");
  const Words failOn = {"--fail-on", "warning"};
  ASSERT_EQ(Collect({fine}, failOn).status, 0);
  ASSERT_EQ(Collect({finding}, failOn).status, 3);
  EXPECT_EQ(Collect({fine, fine}, failOn).status, 0);
  EXPECT_EQ(Collect({finding, fine}, failOn).status, 3);
  EXPECT_EQ(LinesOf(Collect({fine, finding}, failOn).out).size(), 2U);
  EXPECT_EQ(Collect({finding, Server("bad", "status"), finding}, failOn).status, 1);
}

TEST_F(CommandManyServersTest, AreToldOfByNameWhateverTheirProcessesSay) {
  const std::string fine = Server("fine");
  const std::string noisy = Server("noisy", "errors");
  EXPECT_EQ(Collect({noisy, fine}).err,
            noisy + ": \\x1B[31mred\\xFF\n" + noisy + ": \n" + noisy + ": " +
                std::string(65536, 'x') + "...\nstrake: " + noisy +
                ": not the last\nstrake: " + noisy + ": warning: w\n" + noisy + ": no end\n");
}

TEST_F(CommandManyServersTest, SayNoMoreOnStandardErrorThanAnybodyReads) {
  const std::string flood = Server("flood", "flood");
  const Outcome outcome = Collect({flood, Server("fine")});
  EXPECT_EQ(outcome.status, 0);
  const Words lines = LinesOf(outcome.err);
  EXPECT_EQ(lines.size(), 16U * 1024 + 1);
  EXPECT_EQ(lines.front(), flood + ": " + std::string(1023, 'y'));
  EXPECT_EQ(lines.back(), "strake: " + flood + ": more of its standard error is left out");
}

TEST_F(CommandManyServersTest, HandTheirLogLinesOn) {
  const Words servers = {Server("a"), Server("b")};
  Words single;
  for (const std::string& server : servers) {
    for (const std::string& line : LinesOf(Collect({server}, {"--log-level", "3"}).err)) {
      single.push_back(server + ": " + line);
    }
  }
  EXPECT_GT(single.size(), 20U);
  Words many = LinesOf(Collect(servers, {"--log-level", "3", "--jobs", "2"}).err);
  // The lines of each in their order.
  std::ranges::stable_sort(
      many, {}, [&](const std::string& line) { return line.substr(0, line.find(": ")); });
  EXPECT_EQ(many, single);
}

TEST_F(CommandManyServersTest, MayBeStandardInputByEachOfItsNames) {
  const std::string fine = Server("fine");
  for (const std::string name : {"-", "/dev/stdin"}) {
    const Outcome outcome =
        Command(Collecting({fine, name, fine})).Reading(STDIN_FILENO, fine).Run();
    EXPECT_EQ(outcome.status, 0) << name;
    const Words lines = LinesOf(outcome.out);
    ASSERT_EQ(lines.size(), 3U) << outcome;
    EXPECT_EQ(json::parse(lines[1]).at("instances"), json::parse(lines[2]).at("instances"));
  }
}

TEST_F(CommandManyServersTest, AreRefusedTogetherWithWhatIsForOne) {
  const std::string server = Server("s");
  const std::string other = Server("t");
  const std::string limits = fFolder.Write("limits", "no limits");
  const Words two = {"--server", server, "--server", other, "--format", "jsonl"};
  const struct {
    Words words;
    std::string refusal;
  } cases[] = {
      {{"--server", server, "--server", other}, "several --server: expected --format jsonl"},
      {{"--server", server, "--server", other, "--output", fFolder / "o.json"},
       "several --server: expected --format jsonl"},
      {{"--server", server, "--timeout", "5s"}, "--timeout: expected --format jsonl"},
      {{"--timeout", "5s", "--format", "jsonl"}, "--timeout: expected --server beside it"},
      {{"--demo", "demo-orlo", "--jobs", "2", "--format", "jsonl"},
       "--jobs: expected --server beside it"},
      {{"--trace", fFolder / "trace"},
       "--trace: a file for one server, not to be had with several --server"},
      {{"--log", fFolder / "log"},
       "--log: a file for one server, not to be had with several --server"},
      {{"--limits", "-"},
       "--limits: expected a regular file, which can be read for each server, got standard "
       "input"},
      {{"--limits", "/dev/null"},
       "--limits: expected a regular file, which can be read for each server, got /dev/null"},
      {{"--server", "/dev/stdin", "--server", "-"}, "--server: two of them are standard input"},
      {{"--server", "-", "--server", "-"}, "--server: two of them are standard input"},
      {{"--jobs", "0"}, "--jobs: '0' is no number of processes, expected 1 to 256"},
      {{"--jobs", "257"}, "--jobs: '257' is no number of processes, expected 1 to 256"},
      {{"--jobs", "2x"}, "--jobs: '2x' is no number of processes, expected 1 to 256"},
      {{"--jobs", ""}, "--jobs: '' is no number of processes, expected 1 to 256"},
      {{"--timeout", "5"},
       "--timeout: '5' is no duration, expected a number and ms, s, m or h, up to 24h"},
      {{"--server", ""}, "--server: the name of a file was expected"},
      {{"--sort", "name"},
       "--sort: the format jsonl has no layout to choose, expected --format table"},
  };
  const Names before = fFolder.Names();
  for (const auto& one : cases) {
    Words words = {"collect"};
    if (std::ranges::find(one.words, server) == one.words.end() &&
        one.refusal.find("beside it") == std::string::npos) {
      words.insert(words.end(), two.begin(), two.end());
    }
    words.insert(words.end(), one.words.begin(), one.words.end());
    EXPECT_EQ(Strake(words),
              (Outcome{2, "", "strake: " + one.refusal + " (see strake collect --help)\n"}));
  }
  EXPECT_EQ(Collect({server, other}, {"--output", other}),
            (Outcome{2, "", "strake: --server and --output: both are the file " + other + "\n"}));
  const Outcome noLimits = Collect({server, other}, {"--limits", limits});
  EXPECT_EQ(noLimits.status, 2);
  EXPECT_EQ(LinesOf(noLimits.err).size(), 1U) << noLimits.err;
  EXPECT_EQ(fFolder.Names(), before);
}

// What ends a run while two of its servers keep it waiting.
class CommandManyServersEndTest : public CommandManyServersTest {
 protected:
  // The first two of the servers are silent ones, and wait when ACT is called.
  [[nodiscard]] Outcome RunUntilTheyWait(const Words& servers, const Words& more,
                                         const std::function<void(pid_t)>& act) const {
    Words words = Collecting(servers, {"--jobs", "2", "--log-level", "4"});
    words.insert(words.end(), more.begin(), more.end());
    return Command(words).RunUntil(fSilent + ": [3] Strake plugin begin execution.\n",
                                   [&](pid_t process) {
                                     fProcesses = ProcessesWith(fFolder.Path());
                                     EXPECT_EQ(fProcesses.size(), 3U);
                                     act(process);
                                   });
  }

  std::string fSilent = Silent("silent");
  mutable std::set<pid_t> fProcesses;
};

TEST_F(CommandManyServersEndTest, BySignalLeavesNothingBehind) {
  const std::string report = fFolder.Write("report", "old");
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const Outcome outcome = RunUntilTheyWait({fSilent, fSilent, fSilent}, {"--output", report},
                                             [signal](pid_t process) { ::kill(process, signal); });
    EXPECT_EQ(outcome.status, -signal);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(ReadFile(report), "old");
    EXPECT_EQ(fFolder.Names(), (Names{"report", "silent"}));
    ExpectNothingLeft();
  }
}

TEST_F(CommandManyServersEndTest, ByKillingEndsTheProcessesToo) {
  const Outcome outcome =
      RunUntilTheyWait({fSilent, fSilent}, {}, [](pid_t process) { ::kill(process, SIGKILL); });
  EXPECT_EQ(outcome.status, -SIGKILL);
  for (const pid_t process : fProcesses) {
    EXPECT_TRUE(EndsSoon(process));
  }
}

TEST_F(CommandManyServersEndTest, ByAReaderThatWentAwayLeavesNothingBehind) {
  const Words words = Collecting({Server("fine"), fSilent}, {"--jobs", "2"});
  EXPECT_EQ(Command(words).NoReader().Run(), (Outcome{-SIGPIPE, "", ""}));
  ExpectNothingLeft();
  EXPECT_EQ(Command(words).NoReader().Ignoring(SIGPIPE).Run(),
            (Outcome{1, "", "strake: cannot write to standard output: Broken pipe\n"}));
  ExpectNothingLeft();
  EXPECT_EQ(Command(words).StandardOutput("/dev/full").Run(),
            (Outcome{1, "", "strake: cannot write to standard output: No space left on device\n"}));
  ExpectNothingLeft();
}

TEST_F(CommandManyServersEndTest, OfOneProcessByAnotherHandIsAFailureOfThatServer) {
  const std::string text = "its process was ended by signal 9 (Killed)";
  const std::string fine = Server("fine");
  const Outcome outcome = RunUntilTheyWait({fSilent, fSilent, fine}, {}, [this](pid_t process) {
    for (const pid_t one : fProcesses) {
      if (one != process) {
        ::kill(one, SIGKILL);
      }
    }
  });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(WithoutTime(outcome.out),
            WithoutTime(Failure("silent", text) + Failure("silent", text) + Collect({fine}).out));
}

}  // namespace
}  // namespace strake::tests

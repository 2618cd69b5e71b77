// Several servers, each collected in a process of its own.
#include "tests/app/CommandManyServersTest.h"

#include "tests/support/Places.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace strake::tests {
namespace {

using nlohmann::json;
using Names = std::set<std::string>;
using Words = std::vector<std::string>;

TEST_F(CommandManyServersTest, AreEightReportsTwoErrorsAndARefusalInTheOrderOfTheArguments) {
  const std::string refused = fFolder.Write("refused", "{\"format\": 1}");
  const Words servers = {Server("1"), Server("2"), Silent("hangs"),
                         Server("3"), Server("4"), Server("crashes", "abort"),
                         Server("5"), refused,     Server("6"),
                         Server("7"), Server("8")};
  const Names before = fFolder.Names();
  const Outcome outcome = Collect(servers, {"--timeout", kTimeout, "--jobs", "3"});
  EXPECT_EQ(outcome.status, 1);
  const std::string aborted = FaultText();
  const std::string timedOut = std::string("timed out after ") + kTimeout;
  const std::string refusal = refused + ": at /format: expected a string, got 1";
  const std::map<std::string, std::string> failures = {
      {"hangs", timedOut}, {"crashes", aborted}, {"refused", refusal}};
  const Words lines = LinesOf(outcome.out);
  ASSERT_EQ(lines.size(), servers.size()) << outcome;
  for (std::size_t i = 0; i < servers.size(); ++i) {
    const json line = json::parse(lines[i]);
    const std::string name = std::filesystem::path(servers[i]).filename().string();
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
    const Words words = {"collect",     "--server", entry.path().string(),
                         "--log-level", "0",        "--format"};
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
    everything.insert(everything.end(), {"--server", entry.path().string()});
  }
  everything.insert(everything.end(), {"--log-level", "0", "--output", fFolder / "reports.jsonl"});
  EXPECT_EQ(Strake(everything), (Outcome{0, "", ""}));
  EXPECT_EQ(WithoutTime(ReadFile(fFolder / "reports.jsonl")), WithoutTime(expected));
}

TEST_F(CommandManyServersTest, FailOneByOne) {
  const struct {
    const char* way;
    std::string text;
  } cases[] = {
      {"abort", FaultText()},
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
  EXPECT_EQ(Collect({Server("bad", "abort")}), (Outcome{FaultStatus(), "", ""}));
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

TEST_F(CommandManyServersTest, MayBeStandardInput) {
  const std::string fine = Server("fine");
  for (const std::string name : {"-"}) {
    const Outcome outcome = Command(Collecting({fine, name, fine})).StandardInput(fine).Run();
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
      {{"--limits", NullDevice()},
       "--limits: expected a regular file, which can be read for each server, got " + NullDevice()},
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

}  // namespace
}  // namespace strake::tests

// What the processes of several servers are given.
#include "app/CommandLine.h"
#include "app/Errors.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <thread>
#include <variant>

namespace strake::tests {
namespace {

using app::CollectOptions;
using Words = std::vector<std::string>;

CollectOptions Parse(const Words& words) {
  std::vector<const char*> arguments = {"strake"};
  for (const std::string& word : words) {
    arguments.push_back(word.c_str());
  }
  return std::get<CollectOptions>(
      app::ParseCommandLine(static_cast<int>(arguments.size()), arguments.data()));
}

CollectOptions Collect(const Words& more) {
  Words words = {"collect", "--server", "a", "--server", "b", "--format", "jsonl"};
  words.insert(words.end(), more.begin(), more.end());
  return Parse(words);
}

TEST(ManyServersOptions, AreOfNoServerWhereOneIsCollectedHere) {
  for (const Words& words : {Words{"collect"}, Words{"collect", "--server", "a"},
                             Words{"collect", "--server", "a", "--format", "jsonl"},
                             Words{"collect", "--demo", "demo-tavit"}}) {
    const CollectOptions options = Parse(words);
    EXPECT_TRUE(options.many.servers.empty());
    EXPECT_EQ(options.server.has_value(), words.size() > 1 && words[1] == "--server");
  }
}

TEST(ManyServersOptions, KeepServersInTheirOrderAndHowTheyAreRun) {
  const CollectOptions plain = Collect({});
  EXPECT_FALSE(plain.server);
  EXPECT_EQ(plain.many.servers, (std::vector<std::filesystem::path>{"a", "b"}));
  EXPECT_EQ(plain.many.jobs, std::clamp(std::thread::hardware_concurrency(), 1U, 256U));
  EXPECT_FALSE(plain.many.timeout);
  const CollectOptions options =
      Collect({"--server", "a", "--jobs", "256", "--timeout", "1500ms", "--server", "-"});
  EXPECT_EQ(options.many.servers, (std::vector<std::filesystem::path>{"a", "b", "a", "-"}));
  EXPECT_EQ(options.many.jobs, 256U);
  EXPECT_EQ(options.many.timeout, std::chrono::milliseconds(1500));
  for (const Words& words : {Words{"--jobs", "2"}, {"--timeout", "1s"}}) {
    Words all = {"collect", "--server", "a", "--output", "o.jsonl"};
    all.insert(all.end(), words.begin(), words.end());
    EXPECT_EQ(Parse(all).many.servers, std::vector<std::filesystem::path>{"a"});
  }
}

TEST(ManyServersOptions, GiveEachProcessAllThatWasSaidButWhatIsForTheWhole) {
  const Words shared = {"--plugin=p",
                        "--node=2",
                        "--sensor=*{}",
                        "--filter=sensors.DeviceID=[a,b]=\n",
                        "--filter=dial-in.Supervisor=",
                        "--limits=l",
                        "--fail-on=warning",
                        "--log-level=3",
                        "--show-secrets",
                        "--quiet"};
  const Words queries = {
      "--query=", "--query=VELKSG_SP_NumericSensor,VELKSG_ServProc_DialProtocolEndpoint2",
      "--query={}", "--query=[a,b]"};
  const Words classes = {"--class=sensors", "--class=dial-in"};
  for (const Words& asked : {queries, classes}) {
    Words given = {"--jobs", "3", "--timeout", "1s", "--output", "o.jsonl"};
    given.insert(given.end(), asked.begin(), asked.end());
    given.insert(given.end(), shared.begin(), shared.end());
    const CollectOptions options = Collect(given);
    Words words = options.many.words;
    EXPECT_EQ(words.front(), "collect");
    std::set<std::string> expected(shared.begin(), shared.end());
    expected.insert(asked.begin(), asked.end());
    expected.insert({"collect", "--format=jsonl"});
    EXPECT_EQ(std::set<std::string>(words.begin(), words.end()), expected);
    EXPECT_EQ(words.size(), expected.size());
    // And the command takes them for what they were.
    words.emplace_back("--server=-");
    const CollectOptions one = Parse(words);
    EXPECT_EQ(one.server, "-");
    EXPECT_TRUE(one.many.servers.empty());
    EXPECT_EQ(one.format->name, "jsonl");
    EXPECT_EQ(one.queries, options.queries);
    EXPECT_EQ(one.classes, options.classes);
    EXPECT_EQ(one.plugin, options.plugin);
    EXPECT_EQ(one.selection.node, options.selection.node);
    EXPECT_EQ(one.selection.sensor, "*{}");
    ASSERT_EQ(one.selection.filters.size(), 2U);
    EXPECT_EQ(one.selection.filters[0].glob, "[a,b]=\n");
    EXPECT_EQ(one.selection.filters[1].glob, "");
    EXPECT_EQ(one.limits, "l");
    EXPECT_EQ(one.failOn, options.failOn);
    EXPECT_EQ(one.logLevel, 3);
    EXPECT_TRUE(one.showSecrets && one.quiet);
  }
}

}  // namespace
}  // namespace strake::tests

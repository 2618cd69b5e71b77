// The trace of a replay is the trace that it was made of.
#include "fuzz/Seeds.h"
#include "tests/replay/Collected.h"
#include "tests/support/Places.h"
#include "tests/support/WholeCollection.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace strake::tests {
namespace {

using fuzz::ServerCase;

const std::filesystem::path kSource = SourceFolder();

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

void ExpectSameTrace(const platform::ServerDescription& server, const Queries& queries) {
  const std::string trace = TraceOf(server, queries);
  const replay::Replay replay = ReplayOf(trace);
  EXPECT_EQ(replay.queries, queries);
  EXPECT_EQ(replay.warnings, std::vector<std::string>());
  const auto expected = LinesOf(trace);
  const auto actual = LinesOf(TraceOf(DescriptionOf(replay), replay.queries));
  for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i) {
    ASSERT_EQ(actual[i], expected[i]) << "line " << i + 1;
  }
  EXPECT_EQ(actual.size(), expected.size());
}

std::vector<Queries> QueryLists() {
  const Queries whole = WholeCollectionQueries();
  Queries twice = whole;
  std::ranges::reverse(twice);
  twice.insert(twice.end(), whole.begin(), whole.end());
  std::vector<Queries> lists = {whole, twice, {{}}, {{}, {"CIM_Unknown"}}};
  std::vector<std::string> all;
  for (const auto& query : whole) {
    lists.push_back({query});
    all.insert(all.end(), query.begin(), query.end());
  }
  lists.push_back({all});
  return lists;
}

TEST(ReplayedTrace, OfEveryServerIsTheSame) {
  for (const fuzz::NamedServer& server : fuzz::ReadServers(kSource / "servers")) {
    for (const Queries& queries : QueryLists()) {
      SCOPED_TRACE(server.name + ", " + std::to_string(queries.size()) + " queries");
      ExpectSameTrace(server.server, queries);
    }
  }
}

TEST(ReplayedTrace, OfServersThatAreNotToBeBelievedIsTheSame) {
  std::size_t servers = 0;
  std::size_t sends = 0;
  ForEachOddServer([&](const std::string& name, const ServerCase& one, const std::string& trace) {
    SCOPED_TRACE(name);
    ExpectSameTrace(one.server, one.queries);
    ++servers;
    sends += trace.find("\"call\":\"send") != std::string::npos ? 1 : 0;
  });
  EXPECT_EQ(servers, kOddServers);
  EXPECT_GE(sends, kOddServers / 2);
}

}  // namespace
}  // namespace strake::tests

// What of a trace becomes what of a description.
#include "replay/DescriptionWriter.h"
#include "replay/ReplayBuilder.h"
#include "tests/replay/Collected.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::SpDescription;
using platform::SpKind;
using replay::Question;
using replay::TraceEvent;
using Warnings = std::vector<std::string>;

replay::Replay ReplayOfEvents(const std::vector<TraceEvent>& events) {
  replay::ReplayBuilder builder;
  builder.Take(replay::QuestionAnswered{Question::IsDotcommand, true});
  for (const TraceEvent& event : events) builder.Take(event);
  return builder.Complete("a/field.trace", "field.trace");
}

SpDescription SpOf(const std::vector<TraceEvent>& events) {
  return ReplayOfEvents(events).server.sp;
}

TraceEvent Sent(int sp, const std::string& bytes, bool succeeds = true) {
  return replay::DotCommandSent{"\4\4\1", sp, {bytes, static_cast<int>(bytes.size()), succeeds}};
}

TEST(ReplayBuilder, LeavesWhatWasNeverAskedAsItIsInAnEmptyDescription) {
  const replay::Replay replay = ReplayOfEvents({});
  const SpDescription usual;
  const SpDescription& sp = replay.server.sp;
  EXPECT_EQ(sp.kind, SpKind::Orlo);
  EXPECT_EQ(sp.communicates, usual.communicates);
  EXPECT_EQ(sp.count, 0);
  EXPECT_EQ(sp.managementServerStopped, usual.managementServerStopped);
  EXPECT_EQ(sp.dornLibrary, usual.dornLibrary);
  EXPECT_EQ(sp.commandList, usual.commandList);
  EXPECT_TRUE(sp.components.empty() && sp.instances.empty() && sp.kestleCommands.empty());
  EXPECT_EQ(replay.server.host.machineTypeModel.text, "9999-AC1");
  EXPECT_EQ(replay.server.host.systemName.text, "SRV1");
  EXPECT_EQ(replay.server.host.systemCreationClassName, "CIM_ComputerSystem");
  EXPECT_FALSE(replay.server.host.localTime.has_value());
  EXPECT_EQ(replay.warnings, Warnings());
}

TEST(ReplayBuilder, TellsTheKindFromBothAnswers) {
  const struct {
    bool isDotcommand, isKestle;
    SpKind kind;
  } cases[] = {{false, false, SpKind::None},
               {true, false, SpKind::Orlo},
               {false, true, SpKind::Tavit},
               {true, true, SpKind::Both}};
  for (const auto& one : cases) {
    replay::ReplayBuilder builder;
    builder.Take(replay::QuestionAnswered{Question::IsDotcommand, one.isDotcommand});
    builder.Take(replay::QuestionAnswered{Question::IsKestle, one.isKestle});
    EXPECT_EQ(builder.Complete("", "").server.sp.kind, one.kind);
  }
}

TEST(ReplayBuilder, TakesEveryAnswer) {
  const SpDescription sp = SpOf(
      {replay::QuestionAnswered{Question::CheckSPComm, false},
       replay::QuestionAnswered{Question::IsQmvStop, false},
       replay::QuestionAnswered{Question::IsDornlibrary, true},
       replay::QuestionAnswered{Question::BuildDotCommandList, false}, replay::SpsDiscovered{-7},
       replay::ComponentCounted{"\4\1\3\x7\xFF", 3}, replay::ComponentCounted{"\4\1\4\x7\xFF", -1},
       Sent(1, "A"), replay::KestleCommandSent{166, {"xy", 9, false}}});
  EXPECT_FALSE(sp.communicates);
  EXPECT_FALSE(sp.managementServerStopped);
  EXPECT_TRUE(sp.dornLibrary);
  EXPECT_FALSE(sp.commandList);
  EXPECT_EQ(sp.count, -7);
  EXPECT_EQ(sp.components, (std::map<platform::Identifier, int>{{{4, 1, 3, 0, '\xFF'}, 3}}));
  ASSERT_EQ(sp.instances.size(), 2U);
  EXPECT_TRUE(sp.instances.at(0).empty());
  EXPECT_EQ(sp.instances.at(1).at("\4\4\1"), (platform::ReplySequence{{"A", 1, true}}));
  EXPECT_EQ(sp.kestleCommands.at(166), (platform::ReplySequence{{"xy", 9, false}}));
}

TEST(ReplayBuilder, ShortensRepliesThatStayTheSame) {
  const struct {
    std::string sent;
    std::string kept;
  } cases[] = {{"A", "A"}, {"AAA", "A"}, {"ABB", "AB"}, {"AAB", "AAB"}, {"ABA", "ABA"}};
  for (const auto& one : cases) {
    std::vector<TraceEvent> events;
    for (const char reply : one.sent) events.push_back(Sent(0, std::string(1, reply)));
    std::string kept;
    const SpDescription sp = SpOf(events);
    for (const platform::Reply& reply : sp.instances.at(0).at("\4\4\1")) {
      kept += reply.bytes;
    }
    EXPECT_EQ(kept, one.kept) << one.sent;
  }
}

TEST(ReplayBuilder, LeavesOutTheLastServiceProcessorsThatSaidNothing) {
  EXPECT_EQ(SpOf({Sent(0, ""), Sent(1, "", false), Sent(2, "", false)}).instances.size(), 1U);
  EXPECT_EQ(SpOf({Sent(0, "", false), Sent(1, "")}).instances.size(), 2U);
  EXPECT_EQ(SpOf({Sent(255, "A")}).instances.size(), 256U);
  EXPECT_EQ(SpOf({Sent(0, "", false), Sent(0, "")}).instances.size(), 1U);
  EXPECT_EQ(SpOf({Sent(0, "B", false)}).instances.size(), 1U);
}

TEST(ReplayBuilder, WarnsOfWhatADescriptionCannotSay) {
  const auto host = [](replay::HostCall call, const std::string& text, bool throws) {
    return replay::HostAnswered{call, {text, throws}};
  };
  using replay::HostCall;
  const struct {
    std::vector<TraceEvent> events;
    Warnings warnings;
  } cases[] = {
      {{replay::QuestionAnswered{Question::IsDotcommand, false}},
       {"isDotcommand did not always answer the same; its first answer stays"}},
      {{replay::SpsDiscovered{2}, replay::SpsDiscovered{1}, replay::SpsDiscovered{2}},
       {"discoverSPs did not always answer the same; its first answer stays"}},
      {{host(HostCall::GetSystemName, "SECRET", false),
        host(HostCall::GetSystemName, "SECRET", true)},
       {"GetSystemName did not always answer the same; its first answer stays"}},
      {{host(HostCall::GetSystemName, "a\xFF", false)},
       {"GetSystemName answered bytes that are no UTF-8; they stand as \\xNN"}},
      {{replay::ComponentCounted{"\4\1\3\1\xFF", -1}, replay::ComponentCounted{"\4\1\3\2\xFF", 2}},
       {"the count of component 4.1.3.0.255 was not always the same; its first one stays"}},
      {{replay::ComponentCounted{"\4\1\3\1\xFF", 255}},
       {"the count of component 4.1.3.0.255 was 255; a description cannot hold it"}},
      {{replay::ComponentCounted{"\4\1", 1}},
       {"the count of component 4.1 was 1; a description cannot hold it"}},
      {{replay::ClassLookedUp{false}, replay::ClassLookedUp{true}},
       {"a class was not found; the classes of a description are always found"}},
      {{replay::QueryEnded{true}},
       {"1 query left by an exception, which a description cannot bring about"}},
      {{replay::QueryEnded{true}, replay::QueryEnded{false}, replay::QueryEnded{true}},
       {"2 queries left by an exception, which a description cannot bring about"}},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(ReplayOfEvents(one.events).warnings, one.warnings);
  }
}

TEST(DescriptionWriter, WritesACommandALine) {
  const replay::Replay replay = ReplayOfEvents(
      {replay::QueryBegan{{"A", "B"}}, replay::QueryBegan{{}}, replay::QueryBegan{{"it's"}},
       replay::HostAnswered{replay::HostCall::GetSystemName,
                            {"\"R\xC3\xBC"
                             "ck\"",
                             true}},
       replay::SpsDiscovered{-1}, replay::SpsDiscovered{2},
       replay::ComponentCounted{"\4\1\3\x7\xFF", 3}, Sent(0, "AB"), Sent(0, "AB"), Sent(0, ""),
       replay::DotCommandSent{"\1\1", 0, {"", 0, false}},
       replay::DotCommandSent{"\2\2", 0, {"C", -1, false}},
       replay::KestleCommandSent{166, {"", 300, true}}});
  const std::string expected = R"({
  "format": "strake-server/1",
  "description": "Replay of field.trace",
  "capture": {
    "source": "the trace field.trace",
    "notes": [
      "replay it with: strake collect --server FILE --query A,B --query '' --query 'it'\\''s'",
      "discoverSPs did not always answer the same; its first answer stays"
    ]
  },
  "machine_type_model": "9999-AC1",
  "system_name": {"throws": "\"Rück\""},
  "sp": {
    "kind": "orlo",
    "count": -1,
    "components": {"4.1.3.1.255": 3},
    "instances": [
      {
        "dot_commands": {
          "1.1": {"succeeds": false},
          "2.2": {"hex": "43", "length": -1, "succeeds": false},
          "4.4.1": ["41 42", "41 42", ""]
        }
      }
    ],
    "kestle_commands": {
      "166": {"length": 300}
    }
  }
}
)";
  EXPECT_EQ(replay::WriteDescription(replay), expected);
  const platform::ServerDescription read = DescriptionOf(replay);
  EXPECT_EQ(read.host.systemName, replay.server.host.systemName);
  EXPECT_EQ(read.sp.components, replay.server.sp.components);
  EXPECT_EQ(read.sp.instances, replay.server.sp.instances);
  EXPECT_EQ(read.sp.kestleCommands, replay.server.sp.kestleCommands);
}

}  // namespace
}  // namespace strake::tests

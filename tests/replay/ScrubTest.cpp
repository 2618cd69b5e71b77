// What --scrub leaves: the shape of a trace, and no text of the server's.
#include "fuzz/Seeds.h"
#include "replay/DescriptionWriter.h"
#include "replay/Scrub.h"
#include "tests/replay/Collected.h"
#include "tests/support/Places.h"
#include "tests/support/WholeCollection.h"
#include "text/HexBytes.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

namespace strake::tests {
namespace {

using nlohmann::json;

constexpr std::uint64_t kKey = 7;

replay::Replay Scrubbed(const std::string& trace, std::uint64_t key = kKey) {
  replay::Replay replay = ReplayOf(trace);
  replay::Scrub(replay, key);
  return replay;
}

std::string Hex(const std::string& bytes, const char* separator) {
  std::string hex;
  for (const char byte : bytes) {
    hex += hex.empty() ? "" : separator;
    text::AppendHexPair(hex, static_cast<unsigned char>(byte));
  }
  return hex;
}

// The values of these keys, wherever they stand.
void Gather(const json& value, std::set<std::string>& texts) {
  if (value.is_object()) {
    for (const auto& [key, member] : value.items()) {
      if ((key == "text" || key == "system_name") && member.is_string() &&
          member.get<std::string>().size() >= 4) {
        texts.insert(member.get<std::string>());
      }
      Gather(member, texts);
    }
  } else if (value.is_array()) {
    for (const json& item : value) Gather(item, texts);
  }
}

TEST(Scrub, LeavesNoTextOfFourCharactersInTheFile) {
  std::size_t originals = 0;
  for (const fuzz::NamedServer& server :
       fuzz::ReadServers(std::filesystem::path(SourceFolder()) / "servers")) {
    std::set<std::string> texts;
    Gather(json::parse(server.text), texts);
    const std::string file =
        replay::WriteDescription(Scrubbed(TraceOf(server.server, WholeCollectionQueries())));
    for (const std::string& text : texts) {
      EXPECT_EQ(file.find(text), std::string::npos) << server.name << ": " << text;
      EXPECT_EQ(file.find(Hex(text, " ")), std::string::npos) << server.name << ": " << text;
      EXPECT_EQ(file.find(Hex(text, "")), std::string::npos) << server.name << ": " << text;
    }
    originals += texts.size();
    // The networks of the addresses, and the makers of the network cards.
    for (const char* const bytes : {"C0 00 02", "C6 33 64", "CB 00 71", "00 1A 2B", "02 00 5E"}) {
      EXPECT_EQ(file.find(bytes), std::string::npos) << server.name << ": " << bytes;
    }
  }
  EXPECT_GE(originals, 50U);
}

std::ptrdiff_t CharactersIn(const std::string& text) {
  return std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
}

// Whether the texts that say what a reply means have a length.
enum class Meanings { HaveLengths, AreLeftOut };

// What has to be equal; of other texts, how long they are.
std::string ShapeOf(const std::string& line, Meanings meanings) {
  static const std::set<std::string> kNames = {"event", "call", "class", "id", "type", "name"};
  json object = json::parse(line);
  if (meanings == Meanings::AreLeftOut) {
    object.erase("message");
    object.erase("value");
  }
  for (auto& [key, value] : object.items()) {
    if (value.is_string() && !kNames.contains(key)) {
      value = CharactersIn(value.get<std::string>());
    }
    if (value.is_array()) {
      for (json& item : value) item = CharactersIn(item.get<std::string>());
    }
  }
  return object.dump();
}

std::vector<std::string> ShapesOf(const std::string& trace, Meanings meanings) {
  std::vector<std::string> shapes;
  std::istringstream in(trace);
  for (std::string line; std::getline(in, line);) shapes.push_back(ShapeOf(line, meanings));
  return shapes;
}

void ExpectSameShape(const std::string& trace, Meanings meanings) {
  const replay::Replay replay = Scrubbed(trace);
  const auto expected = ShapesOf(trace, meanings);
  const auto actual = ShapesOf(TraceOf(DescriptionOf(replay), replay.queries), meanings);
  for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i) {
    ASSERT_EQ(actual[i], expected[i]) << "line " << i + 1;
  }
  EXPECT_EQ(actual.size(), expected.size());
}

TEST(Scrub, KeepsTheShapeOfTheTraceOfEveryServer) {
  for (const fuzz::NamedServer& server :
       fuzz::ReadServers(std::filesystem::path(SourceFolder()) / "servers")) {
    SCOPED_TRACE(server.name);
    ExpectSameShape(TraceOf(server.server, WholeCollectionQueries()), Meanings::HaveLengths);
  }
}

// Where elements lie over each other, a byte of a text can be another one's flag,
// and is replaced.
TEST(Scrub, KeepsTheShapeOfTheTracesOfServersThatAreNotToBeBelieved) {
  ForEachOddServer(
      [](const std::string& name, const fuzz::ServerCase& /*one*/, const std::string& trace) {
        SCOPED_TRACE(name);
        ExpectSameShape(trace, Meanings::AreLeftOut);
      });
}

// Everything that is in a reply, known or not, and what a host says.
struct Told {
  std::string host = "9999-AC1";
  std::string id = "1.1";
  std::string reply = {};
};

replay::Replay ReplayOfOne(const Told& told) {
  std::string hex = Hex(told.reply, "");
  return ReplayOf(R"({"event":"host","call":"GetMachineTypeFromID","result":")" + told.host +
                  "\"}\n"
                  R"({"event":"sp","call":"isDotcommand","result":true})"
                  "\n"
                  R"({"event":"sp","call":"sendDotCommand","class":2,"id":")" +
                  told.id + R"(","sp":0,"size":350,"result":true,"length":)" +
                  std::to_string(told.reply.size()) + R"(,"reply":")" + hex + "\"}\n");
}

// With what was replaced as "~".
std::string MaskOf(const Told& told) {
  replay::Replay replay = ReplayOfOne(told);
  replay::Scrub(replay, kKey);
  const std::string& bytes = replay.server.sp.instances.at(0).begin()->second.front().bytes;
  std::string mask;
  for (std::size_t i = 0; i < told.reply.size(); ++i) {
    mask += bytes.at(i) == told.reply.at(i) ? told.reply.at(i) : '~';
  }
  return mask;
}

using namespace std::string_literals;

TEST(Scrub, ReplacesTextsAndAddressesAndKeepsEverythingElse) {
  const struct {
    const char* what;
    std::string id;
    std::string reply;
    std::string mask;
  } cases[] = {
      {"a text", "4.9.3.1.2", "Hall 2", "~~~~ ~"},
      {"what a text leaves behind it", "4.9.1.1.16.1", "host\0rest"s, "~~~~\0~~~~"s},
      {"an address", "4.9.1.1.16.2", "\xC0\x0A\x02\x15", "~~~~"},
      {"half an address", "4.9.1.1.16.2", "\xC0\x0A", "~~"},
      {"what follows an address", "4.9.1.1.16.2", "\xC0\x0A\x02\x15more", "~~~~~~~~"},
      {"a network mask", "4.9.1.1.16.4", "\xFF\xFF\xFE\0"s, "\xFF\xFF\xFE\0"s},
      {"no address", "4.9.1.1.16.9", "\0\0\0\0"s, "\0\0\0\0"s},
      {"a flag", "4.9.3.1.3", "A", "A"},
      {"a clock that reads like text", "4.4.1", "ABCDEFG", "ABCDEFG"},
      {"what follows a clock", "4.4.1", "ABCDEFGHIJK", "ABCDEFG~~~~"},
      {"a reading", "2.2.1.1", "\xF4\x01", "\xF4\x01"},
      {"a text of the presence test", "1.1", "\x01 secret\x02", "\x01 ~~~~~~\x02"},
      {"a short one, which may be numbers", "1.1", "abc\x02", "abc\x02"},
      {"a text of a command that nobody knows", "9.9.9", "\x01secret", "\x01~~~~~~"},
      {"a login", "4.1.4.3.255",
       "AB\x06\x05USER\0CD\x01\x03"s
       "EF\x05\x04"
       "5550"s,
       "AB\x06\x05~~~~\0CD\x01\x03"s
       "EF\x05\x04~~~~"s},
      {"what a maximum cuts off", "4.1.4.3.255", "AB\x06\x02USERS", "AB\x06\x02~~~~~"},
      {"what follows a record", "4.1.4.3.255",
       "AB\x02\x01\0CD\x01\x03"s
       "EF\x02\x01\0rest of it"s,
       "AB\x02\x01\0CD\x01\x03"s
       "EF\x02\x01\0~~~~ ~~ ~~"s},
      // The next one begins within it, and has its length there.
      {"an element that claims more than there is", "4.1.4.3.255", "AB\xFF\xFFUSERS",
       "AB\xFF\xFFU~~~~"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(MaskOf({.id = one.id, .reply = one.reply}), one.mask) << one.what;
  }
}

TEST(Scrub, ReplacesNoTextByAnotherOne) {
  constexpr int kTexts = 2000;
  std::set<std::string> originals;
  replay::Replay replay;
  replay.server.sp.instances.resize(1);
  platform::ReplySequence& replies = replay.server.sp.instances.at(0)["\4\x9\3\1\2"];
  for (int number = 1000; number < 1000 + kTexts; ++number) {
    replies.push_back({std::to_string(number), 4, true});
    originals.insert(replies.back().bytes);
  }
  replay::Scrub(replay, kKey);
  for (const platform::Reply& reply : replies) {
    EXPECT_EQ(reply.bytes.size(), 4U);
    EXPECT_FALSE(originals.contains(reply.bytes)) << reply.bytes;
  }
}

TEST(Scrub, KeepsTheMachineTypeAloneOfWhatTheHostSays) {
  const struct {
    std::string told;
    std::size_t kept;
  } cases[] = {{"5123-AR2", 4}, {"5123", 4}, {"512", 0}, {"ATLA5", 0}, {"", 0}, {"51237", 4}};
  for (const auto& one : cases) {
    replay::Replay replay = ReplayOfOne({.host = one.told});
    replay::Scrub(replay, kKey);
    const std::string& text = replay.server.host.machineTypeModel.text;
    EXPECT_EQ(text.size(), one.told.size());
    EXPECT_EQ(text.substr(0, one.kept), one.told.substr(0, one.kept));
    for (std::size_t i = one.kept; i < text.size(); ++i) {
      EXPECT_EQ(text.at(i) == one.told.at(i), one.told.at(i) == '-') << text;
    }
  }
}

TEST(Scrub, NamesNeitherTheTraceNorClassesThatNobodyKnows) {
  replay::Replay replay =
      ReplayOf(R"({"event":"query","classes":["VELKSG_SP_NumericSensor","Our_Rack7"]})"
               "\n"
               R"({"event":"sp","call":"isDotcommand","result":false})"
               "\n");
  replay::Scrub(replay, kKey);
  const std::string file = replay::WriteDescription(replay);
  EXPECT_EQ(file.find("test.trace"), std::string::npos);
  EXPECT_EQ(file.find("Rack7"), std::string::npos);
  EXPECT_NE(file.find("--query VELKSG_SP_NumericSensor,"), std::string::npos);
}

}  // namespace
}  // namespace strake::tests

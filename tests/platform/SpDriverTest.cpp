#include "plugin/spaccess/SPLibrary.h"
#include "tests/platform/TestServer.h"
#include "text/DotNotation.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <new>
#include <span>

namespace strake::platform {
namespace {

using NVELKZEV20::SPLibrary;
using Bytes = std::vector<unsigned char>;
using Lines = std::vector<std::string>;

constexpr unsigned char kUntouched = 0xEE;

SPLibrary& Library() { return *SPLibrary::GetSplibraryInstance(0); }

struct CommandList {
  Bytes first = Bytes(4096);
  Bytes second = Bytes(4096);
  Bytes third = Bytes(4096);
};

struct Sent {
  bool result = false;
  int length = -77;
  Bytes buffer;  // of the size that was said
};

// Sends with a buffer of exactly the size that it says.
Sent SendDot(const std::string& dotNotation, int sp, int size) {
  const std::string identifier = text::ParseDotNotation(dotNotation).value();
  const Bytes bytes(identifier.begin(), identifier.end());
  const unsigned char extra = 0;
  dotCmd command(2, static_cast<int>(bytes.size()), 0, bytes.data(), &extra);
  Sent sent;
  sent.buffer.assign(static_cast<std::size_t>(std::max(size, 0)), kUntouched);
  sent.result = Library().sendDotCommand(&command, sent.buffer.data(), &sent.length, sp, size);
  return sent;
}

Sent SendKestle(unsigned char code) {
  KestleCmd command(2, code, code, static_cast<unsigned char>(256 - code), nullptr, 0, false, true);
  Sent sent;
  sent.buffer.assign(255, kUntouched);
  sent.result = Library().sendKestleCommand(&command, &sent.length, sent.buffer.data());
  return sent;
}

ReplySequence Once(const std::string& bytes) {
  return {{bytes, static_cast<int>(bytes.size()), true}};
}

Identifier Id(const std::string& dotNotation) {
  return text::ParseDotNotation(dotNotation).value();
}

class SpDriverTest : public PlatformTest {
 protected:
  FaultyTrace fTrace;
};

TEST_F(SpDriverTest, AnswersTheQuestionsByItsDescription) {
  const struct {
    SpKind kind;
    bool dot, kestle;
  } kinds[] = {{SpKind::Orlo, true, false},
               {SpKind::Tavit, false, true},
               {SpKind::Both, true, true},
               {SpKind::None, false, false}};
  for (const auto& one : kinds) {
    SetServiceProcessors({.kind = one.kind});
    EXPECT_EQ(Library().isDotcommand(), one.dot);
    EXPECT_EQ(Library().isKestle(), one.kestle);
  }
  for (const bool answer : {false, true}) {
    SetServiceProcessors({.communicates = answer,
                          .count = answer ? -5 : 300,
                          .managementServerStopped = answer,
                          .dornLibrary = answer,
                          .commandList = answer});
    EXPECT_EQ(Library().checkSPComm(), answer);
    EXPECT_EQ(Library().isQmvStop(), answer);
    EXPECT_EQ(Library().isDornlibrary(), answer);
    EXPECT_EQ(Library().discoverSPs(), answer ? -5 : 300);
    CommandList list;
    EXPECT_EQ(
        Library().buildDotCommandList(list.first.data(), list.second.data(), list.third.data()),
        answer);
  }
}

TEST_F(SpDriverTest, TellsOfEveryQuestion) {
  SetServiceProcessors({.kind = SpKind::Orlo, .count = 2, .components = {{Id("4.1.3.0.255"), 7}}});
  SetDriverObserver(&fTrace);
  Library().isDotcommand();
  Library().isKestle();
  Library().isQmvStop();
  Library().isDornlibrary();
  Library().checkSPComm();
  Library().discoverSPs();
  CommandList list;
  Library().buildDotCommandList(list.first.data(), list.second.data(), list.third.data());
  Bytes asked{4, 1, 3, 9, 255};
  Library().getComponentdotCmdList(asked.data(), 5, list.first.data(), list.second.data(),
                                   list.third.data());
  EXPECT_EQ(
      fTrace.TakeLines(),
      (Lines{R"({"event":"sp","call":"isDotcommand","result":true})",
             R"({"event":"sp","call":"isKestle","result":false})",
             R"({"event":"sp","call":"isQmvStop","result":true})",
             R"({"event":"sp","call":"isDornlibrary","result":false})",
             R"({"event":"sp","call":"checkSPComm","result":true})",
             R"({"event":"sp","call":"discoverSPs","result":2})",
             R"({"event":"sp","call":"buildDotCommandList","result":true})",
             R"({"event":"sp","call":"getComponentdotCmdList","id":"4.1.3.9.255","result":7})"}));
}

TEST_F(SpDriverTest, WritesTheReplyAndNothingBeyondIt) {
  SetServiceProcessors({.instances = {{{Id("4.4.1"), Once("abcde")}}}});
  const struct {
    int size;
    std::string written;
  } cases[] = {{8, "abcde"}, {5, "abcde"}, {4, "abcd"}, {1, "a"}, {0, ""}, {-1, ""}};
  for (const auto& one : cases) {
    const Sent sent = SendDot("4.4.1", 0, one.size);
    EXPECT_TRUE(sent.result);
    EXPECT_EQ(sent.length, 5) << "the length is not shortened";
    Bytes expected(sent.buffer.size(), kUntouched);
    std::copy(one.written.begin(), one.written.end(), expected.begin());
    EXPECT_EQ(sent.buffer, expected);
  }
}

TEST_F(SpDriverTest, ReportsLengthAndResultAsDescribed) {
  const int most = std::numeric_limits<int>::max();
  const int least = std::numeric_limits<int>::min();
  SetServiceProcessors({.instances = {{{Id("1"), {{"ab", most, true}}},
                                       {Id("2"), {{"ab", least, false}}},
                                       {Id("3"), {{"", 0, true}}}}}});
  const struct {
    const char* command;
    bool result;
    int length;
    Bytes buffer;
  } cases[] = {{"1", true, most, {'a', 'b', kUntouched}},
               {"2", false, least, {'a', 'b', kUntouched}},
               {"3", true, 0, {kUntouched, kUntouched, kUntouched}}};
  for (const auto& one : cases) {
    const Sent sent = SendDot(one.command, 0, 3);
    EXPECT_EQ(sent.result, one.result);
    EXPECT_EQ(sent.length, one.length);
    EXPECT_EQ(sent.buffer, one.buffer);
  }
}

TEST_F(SpDriverTest, FailsForWhatItDoesNotKnow) {
  SetServiceProcessors({.instances = {{{Id("4.4.1"), Once("abc")}}}, .kestleCommands = {}});
  const struct {
    const char* command;
    int sp;
  } cases[] = {{"4.4.2", 0},   {"4.4", 0},     {"4.4.1.0", 0},
               {"4.4.1", 1},   {"4.4.1", -1},  {"4.4.1", std::numeric_limits<int>::min()},
               {"4.4.1", 255}, {"4.4.1", 256}, {"4.4.1", std::numeric_limits<int>::max()}};
  for (const auto& one : cases) {
    const Sent sent = SendDot(one.command, one.sp, 4);
    EXPECT_FALSE(sent.result);
    EXPECT_EQ(sent.length, 0);
    EXPECT_EQ(sent.buffer, Bytes(4, kUntouched));
  }
  const Sent kestle = SendKestle(166);
  EXPECT_FALSE(kestle.result);
  EXPECT_EQ(kestle.length, 0);
  EXPECT_EQ(kestle.buffer, Bytes(255, kUntouched));
}

TEST_F(SpDriverTest, WritesAtMost255BytesOfAKestleReply) {
  const std::string bytes(300, 'k');
  SetServiceProcessors({.kestleCommands = {{166, Once(bytes)}, {0, Once("xy")}, {255, Once("z")}}});
  const Sent sent = SendKestle(166);
  EXPECT_TRUE(sent.result);
  EXPECT_EQ(sent.length, 300);
  EXPECT_EQ(sent.buffer, Bytes(255, 'k'));
  EXPECT_EQ(SendKestle(0).length, 2);
  EXPECT_EQ(SendKestle(255).length, 1);
}

TEST_F(SpDriverTest, GivesRepliesInTurnAndThenTheLastOne) {
  const ReplySequence replies = {{"a", 1, true}, {"bb", 2, true}, {"ccc", 3, false}};
  const SpDescription description{
      .instances = {{{Id("1.1"), replies}, {Id("1.2"), replies}}, {{Id("1.1"), replies}}},
      .kestleCommands = {{162, replies}, {164, replies}}};
  SetServiceProcessors(description);
  // Each command of each service processor has a place of its own.
  EXPECT_EQ(SendDot("1.1", 0, 9).length, 1);
  EXPECT_EQ(SendDot("1.1", 1, 9).length, 1);
  EXPECT_EQ(SendDot("1.2", 0, 9).length, 1);
  EXPECT_EQ(SendKestle(162).length, 1);
  EXPECT_EQ(SendDot("1.1", 0, 9).length, 2);
  EXPECT_EQ(SendKestle(162).length, 2);
  EXPECT_EQ(SendKestle(164).length, 1);
  for (int again = 0; again < 3; ++again) {
    EXPECT_EQ(SendDot("1.1", 0, 9).length, 3);
    EXPECT_FALSE(SendDot("1.1", 0, 9).result);
  }
  EXPECT_EQ(SendDot("1.1", 1, 9).length, 2);
  SetServiceProcessors(description);
  EXPECT_EQ(SendDot("1.1", 0, 9).length, 1);
}

TEST_F(SpDriverTest, TellsOfEverySendWithTheBytesThatItWrote) {
  SetServiceProcessors({.instances = {{{Id("4.9.1.1.255"), Once(std::string("\0\x7F\xFF", 3))}}},
                        .kestleCommands = {{166, Once("AB")}}});
  SetDriverObserver(&fTrace);
  SendDot("4.9.1.1.255", 0, 2);
  SendDot("4.9.1.1.254", -3, 350);
  SendKestle(166);
  SendKestle(162);
  EXPECT_EQ(
      fTrace.TakeLines(),
      (Lines{
          R"({"event":"sp","call":"sendDotCommand","class":2,"id":"4.9.1.1.255","sp":0,"size":2,"result":true,"length":3,"reply":"007F"})",
          R"({"event":"sp","call":"sendDotCommand","class":2,"id":"4.9.1.1.254","sp":-3,"size":350,"result":false,"length":0,"reply":""})",
          R"({"event":"sp","call":"sendKestleCommand","total":2,"code":166,"expected":166,"checksum":90,"data_length":0,"ack":false,"read":true,"result":true,"length":2,"reply":"4142"})",
          R"({"event":"sp","call":"sendKestleCommand","total":2,"code":162,"expected":162,"checksum":94,"data_length":0,"ack":false,"read":true,"result":false,"length":0,"reply":""})"}));
}

TEST_F(SpDriverTest, BearsNullPointersAndOddLengths) {
  SetServiceProcessors({.instances = {{{Id("1"), Once("a")}, {Id("0"), Once("b")}}},
                        .kestleCommands = {{1, Once("k")}}});
  SetDriverObserver(&fTrace);
  int length = 5;
  EXPECT_FALSE(Library().sendDotCommand(nullptr, nullptr, &length, 0, 10));
  EXPECT_EQ(length, 0);
  EXPECT_FALSE(Library().sendKestleCommand(nullptr, nullptr, nullptr));
  const unsigned char one = 1;
  dotCmd command(2, 1, 0, &one, nullptr);
  EXPECT_TRUE(Library().sendDotCommand(&command, nullptr, nullptr, 0, 10));
  dotCmd negative(2, -1, 0, &one, nullptr);
  EXPECT_FALSE(Library().sendDotCommand(&negative, nullptr, nullptr, 0, 10));
  dotCmd nowhere(2, 1, 0, nullptr, nullptr);
  EXPECT_FALSE(Library().sendDotCommand(&nowhere, nullptr, nullptr, 0, 10));
  KestleCmd kestle(2, 1, 1, 255, nullptr, 0, false, true);
  EXPECT_TRUE(Library().sendKestleCommand(&kestle, nullptr, nullptr));
  EXPECT_EQ(fTrace.TakeLines().size(), 6U);
}

TEST_F(SpDriverTest, CountsTheCommandsThatAreAlive) {
  const long dots = LiveDotCommands();
  const long kestles = LiveKestleCommands();
  {
    const dotCmd dot(2, 0, 0, nullptr, nullptr);
    const KestleCmd kestle(2, 1, 1, 255, nullptr, 0, false, true);
    const KestleCmd another(2, 1, 1, 255, nullptr, 0, false, true);
    EXPECT_EQ(LiveDotCommands() - dots, 1);
    EXPECT_EQ(LiveKestleCommands() - kestles, 2);
  }
  EXPECT_EQ(LiveDotCommands(), dots);
  EXPECT_EQ(LiveKestleCommands(), kestles);
}

TEST_F(SpDriverTest, ShowsInjectedFaults) {
  SetServiceProcessors({.instances = {{{Id("1.1"), {{"a", 1, true}, {"bb", 2, true}}}}},
                        .kestleCommands = {{166, Once("k")}}});
  SetDriverObserver(&fTrace);
  for (const BoundaryCall call : {BoundaryCall::DotSend, BoundaryCall::KestleSend}) {
    const auto send = [&] {
      return call == BoundaryCall::DotSend ? SendDot("1.1", 0, 255) : SendKestle(166);
    };
    for (const Fault fault : {Fault::SendFails, Fault::SendIsEmpty}) {
      fTrace.Inject(call, fault);
      const Sent sent = send();
      EXPECT_EQ(sent.result, fault == Fault::SendIsEmpty);
      EXPECT_EQ(sent.length, 0);
      EXPECT_EQ(sent.buffer, Bytes(255, kUntouched));
    }
    fTrace.Inject(call, Fault::StandardException);
    EXPECT_EQ(TextThrownBy<std::runtime_error>(send), "injected fault");
    fTrace.Inject(call, Fault::OtherException);
    EXPECT_THROW(send(), int);
    fTrace.Inject(call, Fault::OutOfMemory);
    EXPECT_THROW(send(), std::bad_alloc);
    EXPECT_EQ(fTrace.TakeLines().size(), 2U);
    // A fault takes no reply out of a sequence, and what a send cannot show is none.
    fTrace.Inject(call, Fault::EmptyHandle);
    EXPECT_EQ(send().length, 1);
    fTrace.TakeLines();
  }
  fTrace.Inject(BoundaryCall::SpQuestion, Fault::StandardException);
  EXPECT_ANY_THROW(Library().isDotcommand());
  EXPECT_ANY_THROW(Library().discoverSPs());
  fTrace.Inject(BoundaryCall::ComponentCount, Fault::StandardException);
  EXPECT_ANY_THROW(Library().getComponentdotCmdList(nullptr, 5, nullptr, nullptr, nullptr));
  EXPECT_TRUE(fTrace.TakeLines().empty());
}

TEST_F(SpDriverTest, EachSendTakesAtLeastTheLatency) {
  using Milliseconds = std::chrono::duration<double, std::milli>;
  SetServiceProcessors({.latencyMs = 10, .kestleCommands = {{166, Once("k")}}});
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_FALSE(SendDot("1.1", 0, 4).result);
  EXPECT_EQ(SendKestle(166).length, 1);
  EXPECT_EQ(SendKestle(166).length, 1);
  const Milliseconds taken = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(taken.count(), 30);
}

TEST_F(SpDriverTest, AnUnwrittenLengthIsTheCallersOwn) {
  SetServiceProcessors(
      {.instances = {{{Id("1.1"), Once("abc")}}}, .kestleCommands = {{166, Once("k")}}});
  SetDriverObserver(&fTrace);
  fTrace.Inject(BoundaryCall::DotSend, Fault::UntouchedLength);
  const Sent dot = SendDot("1.1", 0, 4);
  EXPECT_TRUE(dot.result);
  EXPECT_EQ(dot.length, Sent{}.length);
  EXPECT_EQ(dot.buffer, (Bytes{'a', 'b', 'c', kUntouched}));
  fTrace.Inject(BoundaryCall::KestleSend, Fault::UntouchedLength);
  EXPECT_EQ(SendKestle(166).length, Sent{}.length);
  const Lines lines = fTrace.TakeLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_NE(lines[0].find(R"("length":-77,"reply":"616263")"), std::string::npos) << lines[0];
  EXPECT_NE(lines[1].find(R"("length":-77,"reply":"6B")"), std::string::npos) << lines[1];
}

// Keeps what a trace does not tell.
class Untold : public BoundaryObserver {
 public:
  void OnReplyBuffer(std::span<const unsigned char> bytes) override {
    buffers.emplace_back(bytes.begin(), bytes.end());
  }
  void OnDotSend(const DotSend& send) override { dot = send; }
  void OnKestleSend(const KestleSend& send) override { kestle = send; }

  std::vector<Bytes> buffers;
  DotSend dot;
  KestleSend kestle;
};

TEST_F(SpDriverTest, TellsAnObserverWhatCommandsCarryAndWhatTheReplyBuffersHeld) {
  Untold observer;
  SetServiceProcessors({.instances = {{{Id("1"), Once("xyz")}}}});
  SetDriverObserver(&observer);
  const unsigned char identifier = 1;
  const unsigned char extra = 9;
  Bytes reply{1, 2, 3};
  int length = 0;
  dotCmd dot(2, 1, 7, &identifier, &extra);
  Library().sendDotCommand(&dot, reply.data(), &length, 0, 3);
  EXPECT_EQ(observer.dot.secondLength, 7);
  EXPECT_EQ(observer.dot.extraData, &extra);
  EXPECT_EQ(reply, (Bytes{'x', 'y', 'z'}));
  unsigned char data = 5;
  Bytes buffer(255, kUntouched);
  KestleCmd kestle(2, 1, 1, 255, &data, 1, false, true);
  Library().sendKestleCommand(&kestle, &length, buffer.data());
  EXPECT_EQ(observer.kestle.data, &data);
  EXPECT_EQ(observer.kestle.dataLength, 1);
  EXPECT_EQ(observer.buffers, (std::vector<Bytes>{{1, 2, 3}, Bytes(255, kUntouched)}));
  Library().sendDotCommand(nullptr, nullptr, nullptr, 0, 3);
  Library().sendDotCommand(nullptr, reply.data(), nullptr, 0, -1);
  EXPECT_EQ(observer.dot.extraData, nullptr);
  EXPECT_EQ(observer.buffers.size(), 4U);
  EXPECT_EQ(observer.buffers.back(), Bytes{});
}

TEST_F(SpDriverTest, RefusesADescriptionThatBreaksItsOwnRules) {
  SpDescription full;
  for (std::size_t i = 0; i <= kMostComponents; ++i) {
    const Identifier identifier{static_cast<char>(i & 0xFF), static_cast<char>(i >> 8), 1, 0, 1};
    full.components[identifier] = 1;
  }
  const struct {
    SpDescription description;
    const char* message;
  } cases[] = {
      {full, "more components than the command list can name"},
      {{.components = {{Id("4.1.3.0"), 1}}},
       "a component's identifier has five bytes, the fourth of them 0"},
      {{.components = {{Id("4.1.3.1.255"), 1}}},
       "a component's identifier has five bytes, the fourth of them 0"},
      {{.components = {{Id("4.1.3.0.255"), 255}}}, "component count 255 is not in 0..254"},
      {{.components = {{Id("4.1.3.0.255"), -1}}}, "component count -1 is not in 0..254"},
      {{.instances = {{{Id("1"), {}}}}}, "a command has no reply"},
      {{.kestleCommands = {{1, {}}}}, "a command has no reply"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(TextThrownBy<std::invalid_argument>([&] { SetServiceProcessors(one.description); }),
              one.message);
  }
}

}  // namespace
}  // namespace strake::platform

// The sender of Kestle commands.
#include "platform/spdriver/DriverControl.h"
#include "tests/plugin/environ/SensorBench.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;
using platform::Reply;

// The buffer that the driver library asks for, and not a byte more.
constexpr std::size_t kBufferSize = 255;

struct Sent {
  int length = -99;
  unsigned char status = 77;  // must be overwritten
  std::vector<unsigned char> reply = std::vector<unsigned char>(kBufferSize);
};

Sent Send(SensorBench& bench) {
  Sent sent;
  // The send goes to the collector's own library, not to the one named here.
  sent.length = bench.collector.sendKestleCommand(2, 166, 166, 90, nullptr, 0, false, true,
                                                  sent.reply.data(), nullptr, &sent.status);
  return sent;
}

Scenario Answering(const Reply& reply) {
  Scenario scenario = Scenario::Tavit("5120-AC1");
  scenario.Kestle(166, reply);
  return scenario;
}

std::string Pattern(std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<char>(255 - i));
  }
  return bytes;
}

TEST(KestleSender, ASuccessfulSendHasThisTrail) {
  SensorBench bench(Answering(Success(Bytes({18, 0, 255}))));
  const Sent sent = Send(bench);
  EXPECT_EQ(bench.record.All(),
            (Lines{"log 4 sendKestleCommand entered.",
                   ("log 4 Sending Kestle command: Length = 2, cmd = 166, expectedcmd = 166, "
                    "checksum = 90, cmddataLen = 0, ack = 0, isreadflag = 1, "),
                   "kestle 2 166 166 90 data 0 ack false read true -> true 3 1200FF",
                   "log 4 Result of Kestle cmd: Status: 1. ReturnDataLen:3.",
                   "log 4 h8Data = 18 0 255 ", "log 4 sendKestleCommand completed."}));
  EXPECT_EQ(sent.length, 3);
  EXPECT_EQ(sent.status, 1);
}

TEST(KestleSender, AFailedSendHasThisTrailAndReturnsTheLengthAsReported) {
  SensorBench bench(Answering(Failure(Bytes({7, 8}), 2)));
  const Sent sent = Send(bench);
  EXPECT_EQ(bench.record.Logs(),
            (Lines{"4 sendKestleCommand entered.",
                   ("4 Sending Kestle command: Length = 2, cmd = 166, expectedcmd = 166, "
                    "checksum = 90, cmddataLen = 0, ack = 0, isreadflag = 1, "),
                   "4 Result of Kestle cmd: Status: 0. ReturnDataLen:2.",
                   "3 Kestle command status = fail.", "4 h8Data = 7 8 ",
                   "4 sendKestleCommand completed."}));
  EXPECT_EQ(sent.length, 2);
  EXPECT_EQ(sent.status, 0);
}

TEST(KestleSender, TellsAndPassesEveryArgumentInItsPlace) {
  SensorBench bench(Scenario::Tavit("5120-AC1"));
  std::array<unsigned char, 4> data = {1, 2, 3, 4};
  Sent sent;
  bench.collector.sendKestleCommand(255, 1, 200, 128, data.data(), 4, true, false,
                                    sent.reply.data(), nullptr, &sent.status);
  EXPECT_EQ(bench.record.Logs().at(1),
            "4 Sending Kestle command: Length = 255, cmd = 1, expectedcmd = 200, checksum = 128, "
            "cmddataLen = 4, ack = 1, isreadflag = 0, ");
  EXPECT_EQ(bench.record.Beginning({"kestle"}),
            (Lines{"kestle 255 1 200 128 data 4 ack true read false -> false 0 "}));
}

TEST(KestleSender, TheDataLineShowsTheReportedBytesAtMostTheBuffer) {
  const std::string bytes = Pattern(1000);
  for (const int length :
       {-2147483647 - 1, -1000, -1, 0, 1, 2, 3, 254, 255, 256, 257, 300, 1000, 2147483647}) {
    SensorBench bench(Answering(Reported(bytes, length)));
    const Sent sent = Send(bench);
    std::string line = "4 h8Data = ";
    for (int i = 0; i < length && i < 255; ++i) {
      line += std::to_string(255 - i) + " ";
    }
    EXPECT_EQ(bench.record.Logs().at(3), line) << length;
    EXPECT_EQ(bench.record.Logs().at(2),
              "4 Result of Kestle cmd: Status: 1. ReturnDataLen:" + std::to_string(length) + ".");
    EXPECT_EQ(sent.length, length);
  }
}

TEST(KestleSender, TheDataLineOfEveryLengthShowsAllBytes) {
  for (std::size_t size = 0; size <= 300; ++size) {
    const std::string bytes = Pattern(size);
    SensorBench bench(Answering(Success(bytes)));
    Send(bench);
    std::string line = "4 h8Data = ";
    for (std::size_t i = 0; i < size && i < kBufferSize; ++i) {
      line += std::to_string(static_cast<unsigned char>(bytes[i])) + " ";
    }
    EXPECT_EQ(bench.record.Logs().at(3), line) << size;
  }
}

TEST(KestleSender, BytesThatDidNotComeReadAsTheBufferWasLeft) {
  SensorBench bench(Answering(Reported(Bytes({9}), 4)));
  Send(bench);
  EXPECT_EQ(bench.record.Logs().at(3), "4 h8Data = 9 0 0 0 ");
}

TEST(KestleSender, AnEmptyReplyShowsTheLabelAlone) {
  SensorBench bench(Answering(Success("")));
  EXPECT_EQ(Send(bench).length, 0);
  EXPECT_EQ(bench.record.Logs().at(3), "4 h8Data = ");
}

TEST(KestleSender, TheCommandIsFreedBeforeTheLastLine) {
  std::vector<long> alive;  // the collector's last line comes when it ends
  SensorBench bench(Answering(Success(Bytes({1}))));
  bench.record.AtLog([&](const std::string&) { alive.push_back(platform::LiveKestleCommands()); });
  Send(bench);
  EXPECT_EQ(alive, (std::vector<long>{0, 1, 1, 1, 0}));
}

TEST(KestleSender, AThrowingDriverLeavesNoCommandBehind) {
  SensorBench bench(Answering(Success(Bytes({1}))));
  bench.record.Inject(BoundaryCall::KestleSend, Fault::OtherException);
  EXPECT_THROW(Send(bench), int);
  EXPECT_EQ(platform::LiveKestleCommands(), 0);
}

TEST(KestleSender, WithTheLogSwitchOffTheSendIsDoneInSilence) {
  SensorBench bench(Answering(Success(Bytes({1}))), nullptr);
  EXPECT_EQ(Send(bench).status, 1);
  EXPECT_EQ(bench.record.All(),
            (Lines{"kestle 2 166 166 90 data 0 ack false read true -> true 1 01"}));
}

}  // namespace
}  // namespace strake::tests

// The two senders of dot commands: the same steps, each in its own words.
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/plugin/environ/SensorBench.h"

#include <array>
#include <gtest/gtest.h>
#include <sstream>

namespace strake::tests {
namespace {

using NVELKZEV20::SPLibrary;
using platform::BoundaryCall;
using platform::Fault;

// The manager must not keep a plug-in that ends with the test's own scope.
class TheOnlyPlugin {
 public:
  TheOnlyPlugin() = default;
  TheOnlyPlugin(const TheOnlyPlugin&) = delete;
  TheOnlyPlugin& operator=(const TheOnlyPlugin&) = delete;
  ~TheOnlyPlugin() { platform::ForgetPlugin(); }
};

struct Sent {
  int length = -99;
  unsigned char status = 77;  // must be overwritten
  std::array<unsigned char, 64> reply{};
};

constexpr unsigned char kExtra = 0;

constexpr std::array<unsigned char, 3> kIdentifier = {4, 4, 2};
constexpr int kSize = 64;

constexpr const char* kNoCommunication =
    "3 Unable to communicate with system management hardware for dot command: 4.4.2.";

SPLibrary* Library() { return SPLibrary::GetSplibraryInstance(0); }

// Both send 4.4.2.
Sent ByCollector(SensorBench& bench, unsigned char sp) {
  bench.collector.SetNode(sp);
  Sent sent;
  sent.length = bench.collector.sendOrloCommand(2, 3, 0, kIdentifier.data(), &kExtra,
                                                sent.reply.data(), kSize, &sent.status, Library());
  return sent;
}

Sent ByPlugin(unsigned char sp) {
  const TheOnlyPlugin only;
  TStrakePluginCallbacks plugin;
  Sent sent;
  sent.length = plugin.sendCommand(2, 3, 0, kIdentifier.data(), &kExtra, sent.reply.data(), kSize,
                                   &sent.status, Library(), sp);
  return sent;
}

TEST(DotSender, TheCollectorsSendTellsNoInstance) {
  SensorBench bench(Scenario::Orlo(2).Answer("4.4.2", Bytes({0x88, 0xFF}), 1));
  const Sent sent = ByCollector(bench, 1);
  EXPECT_EQ(bench.record.All(),
            (Lines{"log 4 sendOrloCommand entered.", "isDotcommand -> true",
                   "dot 2 4.4.2 sp 1 size 64 -> true 2 88FF",
                   "log 4 Sent Orlo command: 4.4.2. Status: ADDR. ReturnDataLen:2.",
                   "log 4 sendOrloCommand completed."}));
  EXPECT_EQ(sent.length, 2);
  EXPECT_EQ(sent.status, 1);
  EXPECT_EQ(sent.reply.at(0), 0x88);
  EXPECT_EQ(sent.reply.at(1), 0xFF);
}

TEST(DotSender, ThePluginsSendTellsTheInstance) {
  SensorBench bench(Scenario::Orlo(2).Answer("4.4.2", Bytes({0x88, 0xFF}), 1));
  const Sent sent = ByPlugin(1);
  EXPECT_EQ(bench.record.All(),
            (Lines{"log 4 TStrakePluginCallbacks::sendCommand entered.", "isDotcommand -> true",
                   "dot 2 4.4.2 sp 1 size 64 -> true 2 88FF",
                   ("log 4 Sent command: 4.4.2. Status: ADDR. ReturnDataLen:2 for "
                    "spInstance#: 1."),
                   "log 4 TStrakePluginCallbacks::sendCommand completed."}));
  EXPECT_EQ(sent.length, 2);
  EXPECT_EQ(sent.status, 1);
}

TEST(DotSender, AFailedSendIsToldAndReturnsTheLengthAsReported) {
  for (const int length : {0, 5, 1000, -3}) {
    SensorBench bench(Scenario::Orlo().Answer("4.4.2", {Failure("", length)}));
    const std::string number = std::to_string(length);
    const Sent sent = ByCollector(bench, 0);
    EXPECT_EQ(bench.record.Logs(),
              (Lines{"4 sendOrloCommand entered.",
                     "4 Sent Orlo command: 4.4.2. Status: ADDR. ReturnDataLen:" + number + ".",
                     kNoCommunication, "4 sendOrloCommand completed."}));
    EXPECT_EQ(sent.length, length);
    EXPECT_EQ(sent.status, 0);

    bench.record.Forget();
    const Sent again = ByPlugin(0);
    EXPECT_EQ(bench.record.Logs(),
              (Lines{"4 TStrakePluginCallbacks::sendCommand entered.",
                     "4 Sent command: 4.4.2. Status: ADDR. ReturnDataLen:" + number +
                         " for spInstance#: 0.",
                     kNoCommunication, "4 TStrakePluginCallbacks::sendCommand completed."}));
    EXPECT_EQ(again.length, length);
    EXPECT_EQ(again.status, 0);
  }
}

TEST(DotSender, OnAServerWithoutDotCommandsTheLibraryIsNotCalled) {
  SensorBench bench(Scenario::Tavit("5120-AC1"));
  const Sent sent = ByCollector(bench, 0);
  EXPECT_EQ(bench.record.All(), (Lines{"log 4 sendOrloCommand entered.", "isDotcommand -> false",
                                       "log 3 This command is not a valid dot command: 4.4.2.",
                                       "log 4 sendOrloCommand completed."}));
  EXPECT_EQ(sent.length, 0);
  EXPECT_EQ(sent.status, 0);

  bench.record.Forget();
  const Sent again = ByPlugin(0);
  EXPECT_EQ(bench.record.All(),
            (Lines{"log 4 TStrakePluginCallbacks::sendCommand entered.", "isDotcommand -> false",
                   "log 3 This command is not a valid dot command: 4.4.2.",
                   "log 4 TStrakePluginCallbacks::sendCommand completed."}));
  EXPECT_EQ(again.length, 0);
  EXPECT_EQ(again.status, 0);
}

TEST(DotSender, TheStatusIsToldByItsAddress) {
  std::string told;  // the collector's last line comes when it ends
  SensorBench bench(Scenario::Orlo());
  bench.record.AtLog([&told](const std::string& message) {
    if (message.starts_with("Sent Orlo")) {
      told = message;
    }
  });
  std::array<unsigned char, 64> reply{};
  unsigned char status = 0;
  bench.collector.sendOrloCommand(2, 3, 0, kIdentifier.data(), &kExtra, reply.data(), kSize,
                                  &status, Library());
  std::ostringstream address;
  address << static_cast<const void*>(&status);
  EXPECT_EQ(told, "Sent Orlo command: 4.4.2. Status: " + address.str() + ". ReturnDataLen:0.");
}

TEST(DotSender, TheCommandLivesFromTheEntryLineToTheReturn) {
  const long before = platform::LiveDotCommands();
  std::vector<long> alive;  // the collector's last line comes when it ends
  SensorBench bench(Scenario::Orlo().Answer("4.4.2", Bytes({1})));
  bench.record.AtLog(
      [&](const std::string&) { alive.push_back(platform::LiveDotCommands() - before); });
  ByCollector(bench, 0);
  ByPlugin(0);
  EXPECT_EQ(alive, (std::vector<long>{0, 1, 1, 0, 1, 1}));
  EXPECT_EQ(platform::LiveDotCommands(), before);
}

TEST(DotSender, AThrowingDriverLeavesNoCommandBehind) {
  SensorBench bench(Scenario::Orlo());
  const long before = platform::LiveDotCommands();
  bench.record.Inject(BoundaryCall::DotSend, Fault::StandardException);
  EXPECT_THROW(ByCollector(bench, 0), std::runtime_error);
  EXPECT_THROW(ByPlugin(0), std::runtime_error);
  EXPECT_EQ(platform::LiveDotCommands(), before);
}

TEST(DotSender, AReplyIsCutToTheCallersBuffer) {
  SensorBench bench(Scenario::Orlo().Answer("4.4.2", std::string(300, '\x41')));
  std::vector<unsigned char> reply(16);
  unsigned char status = 0;
  const int length =
      bench.collector.sendOrloCommand(2, 3, 0, kIdentifier.data(), &kExtra, reply.data(),
                                      static_cast<int>(reply.size()), &status, Library());
  EXPECT_EQ(length, 300);
  EXPECT_EQ(reply, std::vector<unsigned char>(16, 0x41));
}

}  // namespace
}  // namespace strake::tests

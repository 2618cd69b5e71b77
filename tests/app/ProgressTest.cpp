// What the progress writes, and when.
#include "app/ForwardingObserver.h"
#include "app/Progress.h"
#include "os/Signals.h"
#include "plugin/host/TCIMValue.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using std::chrono::milliseconds;

constexpr const char* kErase = "\r\x1b[K";

class ProgressTest : public testing::Test {
 protected:
  void After(int wait) { fNow += milliseconds(wait); }

  // What a call that begins now shows.
  std::string Call() {
    fWritten.clear();
    fProgress->BeforeCall(BoundaryCall::SpQuestion);
    return fWritten;
  }

  std::string fWritten;
  app::Progress::Clock::time_point fNow;
  std::unique_ptr<app::Progress> fProgress = std::make_unique<app::Progress>(
      4, app::Progress::Means{[this] { return fNow; },
                              [this](std::string_view text) { fWritten += text; }});
};

TEST_F(ProgressTest, ShowsNothingInTheFirstSecond) {
  fProgress->OnQuery({});
  After(999);
  EXPECT_EQ(Call(), "");
  fProgress->Erase();
  EXPECT_EQ(fWritten, "");
  After(1);
  EXPECT_EQ(Call(), kErase + std::string("query 1 of 4, 0 commands sent"));
}

TEST_F(ProgressTest, TellsOfQueriesProcessorsAndSends) {
  fProgress->OnQuery({});
  fProgress->OnDiscoverSPs(258);
  platform::DotSend send;
  send.sp = 1;
  fProgress->OnDotSend(send);
  After(1000);
  EXPECT_EQ(Call(), kErase + std::string("query 1 of 4, service processor 2 of 2, 1 command sent"));
  fProgress->OnQuery({});
  fProgress->OnKestleSend({});
  After(100);
  EXPECT_EQ(Call(), kErase + std::string("query 2 of 4, 2 commands sent"));
}

TEST_F(ProgressTest, IsWrittenTenTimesASecondAtMost) {
  After(1000);
  EXPECT_NE(Call(), "");
  After(99);
  EXPECT_EQ(Call(), "");
  After(1);
  EXPECT_NE(Call(), "");
}

TEST_F(ProgressTest, GivesWayAndComesBackWithTheNextCall) {
  After(1000);
  const std::string line = Call();
  fWritten.clear();
  fProgress->Erase();
  EXPECT_EQ(fWritten, kErase);
  fProgress->Erase();
  EXPECT_EQ(fWritten, kErase);
  EXPECT_EQ(Call(), line);
}

TEST_F(ProgressTest, IsErasedAtTheEnd) {
  After(1000);
  EXPECT_NE(Call(), "");
  fWritten.clear();
  fProgress.reset();
  EXPECT_EQ(fWritten, kErase);
}

TEST_F(ProgressTest, IsErasedByASignalThatEndsTheRun) {
  After(1000);
  EXPECT_NE(Call(), "");
  fWritten.clear();
  os::Unfinished::EndAll();
  EXPECT_EQ(fWritten, kErase);
}

// Counts what it is told; wants a fault.
class Counter : public platform::BoundaryObserver {
 public:
  explicit Counter(platform::Fault fault) : fFault(fault) {}

  platform::Fault BeforeCall(BoundaryCall /*call*/) override { return ++calls, fFault; }
  void OnQuery(const std::vector<std::string>& /*classes*/) override { ++calls; }
  void OnQueryEnd() override { ++calls; }
  void OnQueryThrew(const std::string& /*text*/) override { ++calls; }
  void OnLog(int /*level*/, const std::string& /*message*/) override { ++calls; }
  void OnHostText(BoundaryCall /*call*/, const std::string& /*result*/) override { ++calls; }
  void OnHostThrew(BoundaryCall /*call*/, const std::string& /*text*/) override { ++calls; }
  void OnGetLocalTime() override { ++calls; }
  void OnGetClass(const std::string& /*name*/, bool /*found*/) override { ++calls; }
  void OnCreateInstance(const std::string& /*name*/, unsigned long /*instance*/) override {
    ++calls;
  }
  void OnSetProperty(unsigned long /*instance*/, const std::string& /*name*/,
                     const NVELKZEV20::TCIMValue& /*value*/) override {
    ++calls;
  }
  void OnCommit(unsigned long /*instance*/) override { ++calls; }
  void OnSpQuestion(const char* /*call*/, bool /*result*/) override { ++calls; }
  void OnDiscoverSPs(int /*result*/) override { ++calls; }
  void OnComponentCount(std::span<const unsigned char> /*identifier*/, int /*result*/) override {
    ++calls;
  }
  void OnReplyBuffer(std::span<const unsigned char> /*bytes*/) override { ++calls; }
  void OnDotSend(const platform::DotSend& /*send*/) override { ++calls; }
  void OnKestleSend(const platform::KestleSend& /*send*/) override { ++calls; }

  int calls = 0;

 private:
  platform::Fault fFault;
};

TEST(ForwardingObserver, TellsEveryObserverEverything) {
  Counter one(platform::Fault::SendFails);
  Counter other(platform::Fault::None);
  app::ForwardingObserver both({&one, nullptr, &other});
  EXPECT_EQ(both.BeforeCall(BoundaryCall::DotSend), platform::Fault::SendFails);
  both.OnQuery({});
  both.OnQueryEnd();
  both.OnQueryThrew("");
  both.OnLog(1, "");
  both.OnHostText(BoundaryCall::GetName, "");
  both.OnHostThrew(BoundaryCall::GetName, "");
  both.OnGetLocalTime();
  both.OnGetClass("", true);
  both.OnCreateInstance("", 1);
  both.OnSetProperty(1, "", NVELKZEV20::TCIMValue(""));
  both.OnCommit(1);
  both.OnSpQuestion("", true);
  both.OnDiscoverSPs(1);
  both.OnComponentCount({}, 1);
  both.OnReplyBuffer({});
  both.OnDotSend({});
  both.OnKestleSend({});
  EXPECT_EQ(one.calls, 18);
  EXPECT_EQ(other.calls, 18);
}

}  // namespace
}  // namespace strake::tests

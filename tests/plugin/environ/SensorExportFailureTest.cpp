// The sensor export on a host that does not play along.
#include "platform/hostcore/HostControl.h"
#include "tests/plugin/environ/SensorBench.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;

std::vector<SensorRecord> Fans(std::size_t count) {
  return {count, SensorRecord(0, 4000, 19, 0, "Fan 1")};
}

TEST(SensorExportFailure, AThrowingSystemNameIsToldAndReplacedInEveryInstance) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.host.systemName = {"x", true};
  SensorBench bench(scenario);
  bench.collector.printSensorVector(Fans(2));
  const Lines lines = bench.record.All();
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 4),
            (Lines{"log 4 printSensorVector() entered.", "GetSystemName throws x",
                   "log 2 Unable to obtain SystemName due to caught exception x",
                   "log 4 printSensorVector() entered."}));
  EXPECT_EQ(bench.record.Beginning({"Set 1 SystemName", "Set 2 SystemName"}),
            (Lines{"Set 1 SystemName string Unknown SystemName",
                   "Set 2 SystemName string Unknown SystemName"}));
}

TEST(SensorExportFailure, AnEmptySystemNameIsNotLoggedButPublished) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.host.systemName = {"", false};
  SensorBench bench(scenario);
  bench.collector.printSensorVector(Fans(1));
  EXPECT_EQ(bench.record.Logs().at(1), "3 Obtained SystemName.");
  EXPECT_EQ(bench.record.Logs().at(2), "4 printSensorVector() entered.");
  EXPECT_EQ(bench.record.Properties(1).at(3), "SystemName string ");
}

TEST(SensorExportFailure, AnotherExceptionOfTheSystemNamePassesToTheCaller) {
  SensorBench bench(Scenario::Orlo());
  bench.record.Inject(BoundaryCall::GetSystemName, Fault::OtherException);
  EXPECT_THROW(bench.collector.printSensorVector(Fans(1)), int);
  EXPECT_EQ(bench.record.All(), (Lines{"log 4 printSensorVector() entered.",
                                       "GetSystemName throws unknown exception"}));
}

// A logger that fails once the name is there: the export's guard does not cover
// it (the driver's does).
TEST(SensorExportFailure, AThrowingLoggerBehindTheSystemNamePassesToTheCaller) {
  SensorBench bench(Scenario::Orlo());
  bench.record.AtLog([](const std::string& message) {
    if (message == "Obtained SystemName.") {
      throw std::runtime_error("log is full");
    }
  });
  EXPECT_THROW(bench.collector.printSensorVector(Fans(1)), std::runtime_error);
  EXPECT_EQ(bench.record.Logs(),
            (Lines{"4 printSensorVector() entered.", "3 Obtained SystemName."}));
}

TEST(SensorExportFailure, AnyOtherHostCallThatThrowsPassesToTheCaller) {
  for (const BoundaryCall call :
       {BoundaryCall::GetSystemCreationClassName, BoundaryCall::GetClass,
        BoundaryCall::CreateInstance, BoundaryCall::SetProperty, BoundaryCall::Commit}) {
    SensorBench bench(Scenario::Orlo());
    bench.record.Inject(call, Fault::StandardException);
    EXPECT_THROW(bench.collector.printSensorVector(Fans(1)), std::runtime_error);
    EXPECT_EQ(bench.record.Beginning({"Commit"}), Lines{});
  }
}

void ExpectAssertion(SensorBench& bench) {
  try {
    bench.collector.printSensorVector(Fans(1));
    ADD_FAILURE() << "no assertion";
  } catch (const platform::AssertionError& error) {
    const std::string text = error.what();
    EXPECT_NE(text.find("px != 0"), std::string::npos) << text;
    EXPECT_NE(text.find("line 315"), std::string::npos) << text;
  }
}

TEST(SensorExportFailure, AnEmptyClassHandleReachesTheAssertionHandler) {
  SensorBench bench(Scenario::Orlo());
  bench.record.Inject(BoundaryCall::GetClass, Fault::EmptyHandle);
  ExpectAssertion(bench);
  EXPECT_EQ(bench.record.Logs().back(), "4 Instance          = 0");
  EXPECT_EQ(bench.record.Beginning({"CreateInstance", "Set", "Commit"}), Lines{});
}

TEST(SensorExportFailure, AnEmptyInstanceHandleReachesTheAssertionHandler) {
  SensorBench bench(Scenario::Orlo());
  bench.record.Inject(BoundaryCall::CreateInstance, Fault::EmptyHandle);
  ExpectAssertion(bench);
  EXPECT_EQ(bench.record.Logs().back(), "4 Instance          = 0");
  EXPECT_EQ(bench.record.Beginning({"Set", "Commit"}), Lines{});
}

TEST(SensorExportFailure, WithTheLogSwitchOffTheInstancesArePublishedInSilence) {
  SensorBench bench(Scenario::Orlo(), nullptr);
  bench.collector.printSensorVector(Fans(1));
  EXPECT_EQ(bench.record.Logs(), Lines{});
  EXPECT_EQ(bench.record.Properties(1).size(), 9U);
  EXPECT_EQ(bench.record.Beginning({"Commit"}), (Lines{"Commit 1"}));
}

}  // namespace
}  // namespace strake::tests

// The sensor collector and its records: how they come into being and end.
#include "tests/plugin/environ/OrloCases.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace strake::tests {
namespace {

using NVELKZEV20::SPLibrary;

TEST(Collector, LogsItsConstructionAndItsEnd) {
  Recorder record;
  const platform::HostSession session(Scenario::Orlo().server, &record);
  {
    const TSPEnviron collector(session.Namespace(), SPLibrary::GetSplibraryInstance(0),
                               &kLogSwitch);
    EXPECT_EQ(record.All(), (Lines{"log 4 TSPEnviron() constructor entered."}));
    record.Forget();
  }
  EXPECT_EQ(record.All(), (Lines{"log 4 TSPEnviron destructor entered."}));
}

TEST(Collector, HoldsAReferenceToTheNamespaceAsLongAsItLives) {
  const platform::HostSession session(Scenario::Orlo().server);
  const long before = session.Namespace().use_count();
  {
    const TSPEnviron collector(session.Namespace(), SPLibrary::GetSplibraryInstance(0), nullptr);
    EXPECT_EQ(session.Namespace().use_count(), before + 1);
  }
  EXPECT_EQ(session.Namespace().use_count(), before);
}

// A logger that refuses the collector's last line.
class RefusesTheEnd : public Recorder {
 public:
  void OnLog(int level, const std::string& message) override {
    Recorder::OnLog(level, message);
    if (message == "TSPEnviron destructor entered.") {
      throw std::runtime_error("log is full");
    }
  }
};

// Ends a collector that holds records of its own.
void EndACollector(const platform::HostSession& session) {
  TSPEnviron collector(session.Namespace(), SPLibrary::GetSplibraryInstance(0), &kLogSwitch);
  collector.GetOrloVoltage();
}

Scenario OneVoltage() {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("2.2.1.1", Bytes({0xF4, 0x01}));
  return scenario;
}

TEST(Collector, LetsAThrowingLoggerAtItsEndReachItsOwnerAndGoesAllTheSame) {
  RefusesTheEnd record;
  const platform::HostSession session(OneVoltage().server, &record);
  const long before = session.Namespace().use_count();
  EXPECT_THROW(EndACollector(session), std::runtime_error);
  EXPECT_EQ(session.Namespace().use_count(), before);
}

TEST(Collector, LosesItsLastLineWhenAnotherExceptionIsOnItsWay) {
  RefusesTheEnd record;
  const platform::HostSession session(OneVoltage().server, &record);
  const long before = session.Namespace().use_count();
  try {
    const TSPEnviron collector(session.Namespace(), SPLibrary::GetSplibraryInstance(0),
                               &kLogSwitch);
    throw std::logic_error("the first");
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "the first");
  }
  EXPECT_EQ(record.Logs().back(), "4 TSPEnviron destructor entered.");
  EXPECT_EQ(session.Namespace().use_count(), before);
}

// Collects while it is unwound.
struct CollectsAtItsEnd {
  const platform::HostSession& session;

  explicit CollectsAtItsEnd(const platform::HostSession& host) : session(host) {}
  CollectsAtItsEnd(const CollectsAtItsEnd&) = delete;
  CollectsAtItsEnd& operator=(const CollectsAtItsEnd&) = delete;
  ~CollectsAtItsEnd() { EndACollector(session); }
};

TEST(Collector, EndsInAHostThatIsUnwindingWithoutEndingTheProcess) {
  RefusesTheEnd record;
  const platform::HostSession session(OneVoltage().server, &record);
  try {
    const CollectsAtItsEnd host(session);
    throw std::logic_error("the first");
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "the first");
  }
  EXPECT_EQ(record.Logs().back(), "4 TSPEnviron destructor entered.");
}

TEST(Collector, BeginsWithSixEmptyLists) {
  const SensorBench bench(Scenario::Orlo());
  for (const auto* const list : {&bench.collector.OrloVoltages(), &bench.collector.OrloTemps(),
                                 &bench.collector.OrloFans(), &bench.collector.KestleVoltages(),
                                 &bench.collector.KestleTemps(), &bench.collector.KestleFans()}) {
    EXPECT_TRUE(list->empty());
  }
}

TEST(Collector, LogsNothingWhileTheSwitchIsOffAndReadsAllTheSame) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.sp.kind = platform::SpKind::Both;
  scenario.Answer("2.2.1.1", Bytes({0xF4, 0x01}));
  scenario.Kestle(164, Bytes({9, 0, 0, 0, 0, 25}));
  Recorder record;
  const platform::HostSession session(scenario.server, &record);
  {
    TSPEnviron collector(session.Namespace(), SPLibrary::GetSplibraryInstance(0), nullptr);
    collector.GetOrloVoltage();
    collector.GetKestleTemperature(3);
    EXPECT_EQ(collector.OrloVoltages().size(), 1U);
    EXPECT_EQ(collector.KestleTemps().size(), 4U);
  }
  EXPECT_EQ(record.Logs(), Lines{});
}

TEST(Collector, AReaderFillsItsOwnListOnly) {
  for (const OrloCase* const orlo : kOrloCases) {
    Scenario scenario = Scenario::Orlo();
    scenario.Answer(Dotted(orlo->sensors[0]), Bytes({1, 0}));
    SensorBench bench(scenario);
    EXPECT_EQ(orlo->Read(bench.collector), 0);
    for (const OrloCase* const other : kOrloCases) {
      EXPECT_EQ(other->Records(bench.collector).size(), other == orlo ? 1U : 0U);
    }
    EXPECT_TRUE(bench.collector.KestleVoltages().empty());
    EXPECT_TRUE(bench.collector.KestleTemps().empty());
    EXPECT_TRUE(bench.collector.KestleFans().empty());
  }
}

TEST(SensorRecord, OfAnOrloCardCarriesItsNode) {
  const SensorRecord record(65535, 65534, -2147483647 - 1, 65, -2, "DASD Sensor 2 Temperature ");
  EXPECT_EQ(RecordTexts({record}),
            (Lines{"node 65535 index 65534 reading -2147483648 units 65 modifier -2 "
                   "[DASD Sensor 2 Temperature ]"}));
}

TEST(SensorRecord, OfATavitProcessorHasNodeZero) {
  const SensorRecord record(8, 2147483647, 19, 0, "Fan 9");
  EXPECT_EQ(RecordTexts({record}),
            (Lines{"node 0 index 8 reading 2147483647 units 19 modifier 0 [Fan 9]"}));
}

}  // namespace
}  // namespace strake::tests

// What the three Tavit readers share: the command, the lines on data, the
// selectors that are no family.
#include "plugin/frame/TavitMachines.h"
#include "tests/plugin/environ/KestleCases.h"

#include <gtest/gtest.h>
#include <limits>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;

// The boundary's line of a command that is answered with the byte 1.
std::string SendOfOneByte(const KestleCase& list) {
  const std::string code = std::to_string(list.code);
  return "kestle 2 " + code + " " + code + " " + std::to_string(list.checksum) +
         " data 0 ack false read true -> true 1 01";
}

TEST(KestleReaders, AskEachWithItsCodeAndAChecksumThatMakesZero) {
  for (const KestleCase* const list : kKestleCases) {
    EXPECT_EQ((list->code + list->checksum) % 256, 0);
    SensorBench bench(Answering(*list, Success(Bytes({1}))));
    list->Read(bench.collector, 0);
    EXPECT_EQ(bench.record.Beginning({"kestle"}), Lines{SendOfOneByte(*list)});
  }
}

TEST(KestleReaders, AFailedCommandIsNoDataWhateverTheSelector) {
  for (const KestleCase* const list : kKestleCases) {
    for (const unsigned int selector : {0U, 1U, 2U, 3U, 4U, 5U, 0xFFFFFFFFU}) {
      const platform::Reply reply = Failure();
      SensorBench bench(Answering(*list, reply));
      EXPECT_EQ(list->Read(bench.collector, selector), 0);
      EXPECT_EQ(bench.record.Logs(), NoDataTrail(*list, reply));
      EXPECT_EQ(list->Records(bench.collector).size(), 0U);
    }
  }
}

TEST(KestleReaders, AFailedCommandIsNoDataThoughItsBytesCameAndAreShown) {
  for (const KestleCase* const list : kKestleCases) {
    const platform::Reply reply = Failure(Bytes({18, 2, 3}), 3);
    SensorBench bench(Answering(*list, reply));
    list->Read(bench.collector, 0);
    EXPECT_EQ(bench.record.Logs(), NoDataTrail(*list, reply));
    EXPECT_EQ(bench.record.Logs().at(5), "4 h8Data = 18 2 3 ");
    EXPECT_EQ(list->Records(bench.collector).size(), 0U);
  }
}

TEST(KestleReaders, ASuccessWithoutBytesIsNoData) {
  for (const KestleCase* const list : kKestleCases) {
    const platform::Reply reply = Success("");
    SensorBench bench(Answering(*list, reply));
    EXPECT_EQ(list->Read(bench.collector, 0), 0);
    EXPECT_EQ(bench.record.Logs(), NoDataTrail(*list, reply));
    EXPECT_EQ(bench.record.Logs().at(4), "4 h8Data = ");
  }
}

TEST(KestleReaders, ASelectorThatIsNoFamilySendsAllThreeCommandsAndYieldsNothing) {
  for (const unsigned int selector : {4U, 5U, 255U, 256U, std::numeric_limits<unsigned>::max()}) {
    Scenario scenario = Scenario::Tavit("5120-AC1");
    const platform::Reply reply = Success(PatternReply(18));
    Lines trail;
    for (const KestleCase* const list : kKestleCases) {
      scenario.Kestle(list->code, reply);
      Append(trail, DataTrail(*list, reply,
                              {std::string("3 No matching Kestle_Type for ") + list->command}));
    }
    SensorBench bench(scenario);
    EXPECT_EQ(bench.collector.GetKestleVoltage(selector).Code(), 0);
    EXPECT_EQ(bench.collector.GetKestleFan(selector).Code(), 0);
    EXPECT_EQ(bench.collector.GetKestleTemperature(selector).Code(), 0);
    EXPECT_EQ(bench.record.Logs(), trail);
    EXPECT_EQ(bench.record.Beginning({"kestle"}).size(), 3U);
    for (const KestleCase* const list : kKestleCases) {
      EXPECT_EQ(list->Records(bench.collector).size(), 0U);
    }
  }
}

TEST(KestleReaders, AThrowingDriverLeavesNoRecordAndNoCommandBehind) {
  for (const KestleCase* const list : kKestleCases) {
    SensorBench bench(Answering(*list, Success(PatternReply(18))));
    bench.record.Inject(BoundaryCall::KestleSend, Fault::StandardException);
    EXPECT_THROW(list->Read(bench.collector, 0), std::runtime_error);
    EXPECT_EQ(list->Records(bench.collector).size(), 0U);
  }
}

TEST(KestleFamilies, EveryMachineBelongsToItsFamilyAndNoOtherIndexToAny) {
  constexpr unsigned int kFamilies[] = {0, 0, 0, 1, 1, 2, 3, 3, 3};
  const Lines machines(std::begin(MachineTypeArray), std::end(MachineTypeArray));
  EXPECT_EQ(machines,
            (Lines{"5120", "5121", "5122", "5123", "5124", "5125", "5126", "5127", "5128"}));
  for (std::size_t index = 0; index < std::size(kFamilies); ++index) {
    EXPECT_EQ(KestleTypeOf(index), kFamilies[index]) << index;
  }
  for (std::size_t index = 9; index <= 300; ++index) {
    EXPECT_EQ(KestleTypeOf(index), 4U) << index;
  }
  EXPECT_EQ(KestleTypeOf(std::numeric_limits<std::size_t>::max()), 4U);
}

}  // namespace
}  // namespace strake::tests

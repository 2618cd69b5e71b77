#include "findings/SensorReplies.h"

#include <algorithm>
#include <cstddef>

namespace strake::findings {
namespace {

// Of a list whose length was never right, the fewest sensors that it can have.
unsigned char KnownLength(const TavitListReplies& replies, const TavitFamily& family,
                          TavitList list) {
  const auto expected = ExpectedLengths(family, list);
  if (replies.lastCorrect != 0 || expected.empty()) {
    return replies.lastCorrect;
  }
  return *std::ranges::min_element(expected);
}

void AddList(std::vector<SensorReplies>& sensors, const TavitListReplies& replies,
             const TavitFamily& family, TavitList list) {
  if (replies.replies.asked == 0) {
    return;
  }
  const Tally tally{replies.replies.asked, replies.replies.failed + replies.wrong};
  const auto kind = kTavitLists.at(static_cast<std::size_t>(list)).kind;
  for (const char* const name : SensorNames(family, list, KnownLength(replies, family, list))) {
    sensors.push_back({name, kind, tally});
  }
}

}  // namespace

std::vector<SensorReplies> SensorRepliesOf(const OrloFacts& sp) {
  std::vector<SensorReplies> sensors;
  for (std::size_t place = 0; place < sp.sensors.size(); ++place) {
    const Tally& tally = sp.sensors.at(place);
    if (tally.asked > 0) {
      const OrloSensor& sensor = OrloSensors()[place];
      sensors.push_back({sensor.name, sensor.kind, tally});
    }
  }
  return sensors;
}

std::vector<SensorReplies> SensorRepliesOf(const TavitFacts& tavit) {
  std::vector<SensorReplies> sensors;
  for (std::size_t family = 0; family < tavit.families.size(); ++family) {
    for (std::size_t list = 0; list < kTavitLists.size(); ++list) {
      AddList(sensors, tavit.families.at(family).at(list), std::span(kTavitFamilies)[family],
              static_cast<TavitList>(list));
    }
  }
  return sensors;
}

}  // namespace strake::findings

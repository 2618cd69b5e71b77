// A sensor collector on a server put together by hand, everything that crosses
// its boundary recorded.
#pragma once

#include "platform/session/HostSession.h"
#include "plugin/environ/TSPEnviron.h"
#include "tests/support/FaultyObserver.h"
#include "tests/support/Scenario.h"

#include <functional>
#include <string>
#include <vector>

namespace strake::tests {

// A recorder that can make one kind of call fail and look around when a line
// is logged: what the look throws, the logger throws.
class BenchRecorder : public FaultyObserver<Recorder> {
 public:
  void AtLog(std::function<void(const std::string& message)> look) { fAtLog = std::move(look); }

  void OnLog(int level, const std::string& message) override {
    Recorder::OnLog(level, message);
    if (fAtLog) {
      fAtLog(message);
    }
  }

 private:
  std::function<void(const std::string&)> fAtLog;
};

// Any address: the collector asks only whether there is one.
inline constexpr char kLogSwitch = 0;

struct SensorBench {
  explicit SensorBench(const Scenario& scenario, const void* logSwitch = &kLogSwitch)
      : session(scenario.server, &record),
        collector(session.Namespace(), NVELKZEV20::SPLibrary::GetSplibraryInstance(0), logSwitch) {
    record.Forget();
  }

  BenchRecorder record;
  platform::HostSession session;
  TSPEnviron collector;
};

// "node 0 index 12 reading 2700 units 2 modifier -2 [DASD Sensor 2 Temperature ]"
inline std::string RecordText(int node, std::size_t index, int reading, int units, int modifier,
                              const std::string& description) {
  return "node " + std::to_string(node) + " index " + std::to_string(index) + " reading " +
         std::to_string(reading) + " units " + std::to_string(units) + " modifier " +
         std::to_string(modifier) + " [" + description + "]";
}

inline Lines RecordTexts(const std::vector<SensorRecord>& records) {
  Lines texts;
  for (const SensorRecord& record : records) {
    texts.push_back(RecordText(record.Node(), record.DeviceIndex(), record.CurrentReading(),
                               record.Units(), record.UnitModifier(), record.Description()));
  }
  return texts;
}

inline void Append(Lines& lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

}  // namespace strake::tests

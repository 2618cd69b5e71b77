// Stored instances put together by hand, for the reports.
#pragma once

#include "report/Report.h"

#include <string>
#include <utility>
#include <vector>

namespace strake::tests {

using Properties = std::vector<std::pair<std::string, NVELKZEV20::TCIMValue>>;

inline cim::StoredInstance Instance(const std::string& className, const Properties& properties) {
  return {className, 0, properties};
}

// A value of an eight-bit number: the node's type.
inline NVELKZEV20::TCIMValue Node(unsigned char number) { return {number}; }
inline NVELKZEV20::TCIMValue Units(unsigned short number) { return {number}; }

inline cim::StoredInstance Sensor(unsigned char node, const std::string& name, int reading,
                                  unsigned short units, int modifier) {
  return Instance("VELKSG_SP_NumericSensor", {{"CreationClassName", "VELKSG_SP_NumericSensor"},
                                              {"SourceNode", Node(node)},
                                              {"SensorDescription", name},
                                              {"CurrentReading", reading},
                                              {"BaseUnits", Units(units)},
                                              {"UnitModifier", modifier}});
}

// 15 June 2010, 13:45:30, two hours behind.
inline NVELKZEV20::TCIMDateTime SomeTime() {
  NVELKZEV20::TCIMDateTime time;
  time.Set(2010, 6, 15, 13, 45, 30, 0, -120);
  return time;
}

inline report::Report ReportOf(const std::vector<cim::StoredInstance>& instances) {
  report::Report report;
  report.server = {"rack7", "", "orlo"};
  report.instances = instances;
  report.queries = 1;
  return report;
}

}  // namespace strake::tests

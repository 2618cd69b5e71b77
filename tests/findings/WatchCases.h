// Servers, what is asked of them, and what a watch of that tells.
#pragma once

#include "tests/findings/Watched.h"

#include <ostream>
#include <string>
#include <vector>

namespace strake::tests {

struct WatchCase {
  std::string name;
  platform::ServerDescription server;
  std::vector<Classes> queries;
  Lines processors = {};
  Lines findings = {};
  Lines silentSensors = {};

  friend std::ostream& operator<<(std::ostream& out, const WatchCase& one) {
    return out << one.name;
  }
};

inline const Classes kSensors = {"VELKSG_SP_NumericSensor"};
inline const Classes kComputer = {"VELKSG_SP_ComputerSystem"};
inline const Classes kNetwork = cim::ClassNamesOf(cim::QueryGroup::Network);
inline const Classes kDial = cim::ClassNamesOf(cim::QueryGroup::Dial);
inline const Lines kOneAnswered = {"1 answered"};
inline const Lines kOneSilent = {"1 silent"};
inline const Lines kOneNotAsked = {"1 not asked"};

const std::vector<WatchCase>& OrloCases();
const std::vector<WatchCase>& TavitCases();

}  // namespace strake::tests

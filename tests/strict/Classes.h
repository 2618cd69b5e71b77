// The eight classes as queries of their own, on the server that has them, and
// what each makes of it. Every one is to run under the recording host.
#pragma once

#include "tests/strict/StrictHost.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace strake::strict {

inline constexpr const char* kComputerSystem = "VELKSG_SP_ComputerSystem";
inline constexpr const char* kIPEndpoint = "VELKSG_ServProc_IPProtocolEndpoint";
inline constexpr const char* kIPEndpoint2 = "VELKSG_ServProc_IPProtocolEndpoint2";
inline constexpr const char* kDialout = "VELKSG_ServProc_DialProtocolEndpoint1";
inline constexpr const char* kDialin = "VELKSG_ServProc_DialProtocolEndpoint2";
inline constexpr const char* kSerialPort = "VELKSG_ServProc_DialProtocolEndpoint3";
inline constexpr const char* kAlerts = "VELKSG_ServProc_DialProtocolEndpoint4";
inline constexpr const char* kSensor = "VELKSG_SP_NumericSensor";

// Two SPs, with two entries of each component on an Orlo card.
inline constexpr int kSPs = 2;

struct ClassCase {
  const char* name;
  const char* className;
  bool isTavit;
  std::size_t instances;  // of the whole server
  std::vector<std::pair<std::string, Made>> properties;
  std::vector<std::string> identifiers;  // sent to one SP, the presence test apart
};

const std::vector<ClassCase>& AllClasses();
const ClassCase& CaseOf(const std::string& name);
std::string NameOf(const testing::TestParamInfo<ClassCase>& info);
void PrintTo(const ClassCase& classCase, std::ostream* stream);

// Sets the host's server up so that all instances of the case are made.
void Prepare(StrictHost& host, const ClassCase& classCase);

// Every class, on a server where all of its commands bring data.
class EveryClass : public testing::TestWithParam<ClassCase> {
 protected:
  void SetUp() override { Prepare(host, GetParam()); }
  void Query() { host.Query({GetParam().className}); }

  StrictHost host;
};

// The one SP of a server that answers every command.
class OneSP : public testing::Test {
 protected:
  void Query(const char* classCase) {
    Prepare(host, CaseOf(classCase));
    host.spCount = 1;
    host.Query({CaseOf(classCase).className});
  }

  StrictHost host;
};

}  // namespace strake::strict

// How the host's own calls answer: plain data that the host core is loaded with.
#pragma once

#include "plugin/host/TCIMDateTime.h"

#include <optional>
#include <string>

namespace strake::platform {

// The answer of a host call that may throw.
struct HostAnswer {
  std::string text;  // the result, or the text of the exception
  bool throws = false;

  bool operator==(const HostAnswer&) const = default;
};

struct HostSettings {
  HostAnswer machineTypeModel{"9999-AC1", false};
  HostAnswer systemName{"SRV1", false};
  std::string systemCreationClassName = "CIM_ComputerSystem";
  std::optional<NVELKZEV20::TCIMDateTime> localTime;  // empty: the real local time
};

}  // namespace strake::platform

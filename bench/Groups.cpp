#include "bench/Groups.h"

#include <filesystem>
#include <stdexcept>

namespace strake::bench {

std::span<const Group> Groups() {
  static const std::vector<Group> groups = {
      {"sensors_orlo", "demo-orlo", {"VELKSG_SP_NumericSensor"}},
      {"sensors_tavit", "demo-tavit", {"VELKSG_SP_NumericSensor"}},
      {"network",
       "demo-orlo",
       {"VELKSG_ServProc_IPProtocolEndpoint", "VELKSG_ServProc_IPProtocolEndpoint2"}},
      {"dial",
       "demo-orlo",
       {"VELKSG_ServProc_DialProtocolEndpoint1", "VELKSG_ServProc_DialProtocolEndpoint2",
        "VELKSG_ServProc_DialProtocolEndpoint3", "VELKSG_ServProc_DialProtocolEndpoint4"}},
      {"system", "demo-orlo", {"VELKSG_SP_ComputerSystem"}},
  };
  return groups;
}

const Group& GroupNamed(const std::string& name) {
  for (const Group& group : Groups()) {
    if (group.name == name) return group;
  }
  throw std::invalid_argument("no group of the name " + name);
}

platform::ServerDescription ServerOf(const Group& group) {
  auto server =
      platform::ReadServerDescription(std::filesystem::path(STRAKE_SOURCE_DIR) / "servers" /
                                      (group.server + std::string(".server.json")));
  server.sp.latencyMs = 0;
  return server;
}

}  // namespace strake::bench

#include "bench/Groups.h"

#include "cim/Catalogue.h"

#include <filesystem>
#include <stdexcept>

namespace strake::bench {

std::span<const Group> Groups() {
  using cim::ClassNamesOf;
  using enum cim::QueryGroup;
  static const std::vector<Group> groups = {
      {"sensors_orlo", "demo-orlo", ClassNamesOf(Sensors)},
      {"sensors_tavit", "demo-tavit", ClassNamesOf(Sensors)},
      {"network", "demo-orlo", ClassNamesOf(Network)},
      {"dial", "demo-orlo", ClassNamesOf(Dial)},
      {"system", "demo-orlo", ClassNamesOf(ComputerSystem)},
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

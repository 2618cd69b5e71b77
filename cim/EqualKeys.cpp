#include "cim/EqualKeys.h"

#include "cim/InstanceKeys.h"

#include <unordered_map>

namespace strake::cim {
std::vector<EqualKeys> FindEqualKeys(std::span<const StoredInstance> instances) {
  struct Group {
    const StoredInstance* first;
    std::size_t count = 0;
  };
  std::unordered_map<const StoredInstance*, std::size_t, HashKeys, HaveEqualKeys> places;
  places.reserve(instances.size());
  std::vector<Group> groups;
  for (const StoredInstance& instance : instances) {
    const auto [place, isNew] = places.try_emplace(&instance, groups.size());
    if (isNew) {
      groups.push_back({&instance});
    }
    ++groups[place->second].count;
  }
  std::vector<EqualKeys> found;
  for (const Group& group : groups) {
    if (group.count > 1) {
      found.push_back({group.first->schema, DescribeKeys(*group.first), group.count});
    }
  }
  return found;
}

}  // namespace strake::cim

// Reports of random instances.
#pragma once

#include "tests/report/Instances.h"
#include "tests/report/RandomInstances.h"

#include <utility>

namespace strake::tests {

// One that was asked for the class of one of its instances, if there are any.
inline report::Report RandomReport(std::mt19937& random) {
  report::Collected collected{.facts = SomeFacts(), .instances = RandomInstances(random)};
  for (std::size_t count = random() % 4; count > 0; --count) {
    collected.instances.push_back(RandomSensor(random));
  }
  if (!collected.instances.empty()) {
    collected.facts.classes = {collected.instances[random() % collected.instances.size()].schema};
  }
  return report::Report(std::move(collected), report::Secrets::Shown, RandomLimits(random));
}

}  // namespace strake::tests

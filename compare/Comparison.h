// What changed from one collection to another.
#pragma once

#include "cim/StoredInstance.h"
#include "report/ReadReport.h"

#include <chrono>
#include <span>
#include <vector>

namespace strake::compare {

// What was collected, and when.
struct Collection {
  std::chrono::sys_seconds at;
  std::span<const cim::StoredInstance> instances;
};

inline Collection CollectionOf(const report::ReadReport& report) {
  return {report.collectedAt, report.instances};
}

struct Change {
  const cim::SchemaProperty* property = nullptr;  // never null
  const cim::Value* before = nullptr;             // null: it was not set
  const cim::Value* after = nullptr;
};

// An instance that is not what it was. Both point into the collections.
struct Difference {
  const cim::StoredInstance* before = nullptr;  // null: added
  const cim::StoredInstance* after = nullptr;   // null: removed
  std::vector<Change> changes = {};             // of one that is in both
};

// Pairs instances by class and keys; of several with equal keys the first with
// the first. Their order says nothing. Left out is
//  - a sensor's reading that is within so many per cent of the one before,
//  - a clock that went on as the time between the collections did, give or take
//    a minute.
// First what changed or went, in the order of the first collection, then what
// came, in the order of the second.
std::vector<Difference> Compare(const Collection& before, const Collection& after,
                                double tolerancePercent);

}  // namespace strake::compare

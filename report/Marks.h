// What of a report a reader is pointed to: what changed since the one before.
#pragma once

#include "report/Report.h"

#include <unordered_set>

namespace strake::report {

// Knows parts of one report by their places in it.
class Marks {
 public:
  void Add(const cim::StoredProperty& value) { fPlaces.insert(&value); }
  void Add(const cim::StoredInstance& instance) { fPlaces.insert(&instance); }
  void Add(const Sensor& sensor) { fPlaces.insert(&sensor); }
  void Add(const Finding& finding) { fPlaces.insert(&finding); }

  template <typename Part>
  [[nodiscard]] bool Has(const Part& part) const {
    return fPlaces.contains(&part);
  }

 private:
  std::unordered_set<const void*> fPlaces;
};

}  // namespace strake::report

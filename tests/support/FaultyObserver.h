// The observer that makes calls of the boundary fail, over whatever it records
// with: a trace, a recorder, nothing.
#pragma once

#include "platform/boundary/BoundaryObserver.h"

#include <optional>

namespace strake::tests {

// Which calls show a fault. Calls are counted from 1; 0 is never.
struct FaultPlan {
  platform::Fault fault = platform::Fault::None;
  long atCall = 0;
  // Counts and troubles the calls of this kind alone.
  std::optional<platform::BoundaryCall> only = std::nullopt;
  bool andAllBehind = false;  // every call from atCall on
};

// Allocates nothing itself.
template <typename Record = platform::BoundaryObserver>
class FaultyObserver : public Record {
 public:
  using Record::Record;

  // From now on: calls count from 1 again.
  void Plan(const FaultPlan& plan) {
    fPlan = plan;
    fCalls = 0;
  }
  // Every call of the kind, from now on.
  void Inject(platform::BoundaryCall call, platform::Fault fault) {
    Plan({.fault = fault, .atCall = 1, .only = call, .andAllBehind = true});
  }

  platform::Fault BeforeCall(platform::BoundaryCall call) override {
    if (fPlan.only && call != *fPlan.only) return platform::Fault::None;
    ++fCalls;
    const bool isBehind = fPlan.andAllBehind && fPlan.atCall > 0 && fCalls > fPlan.atCall;
    if (fCalls != fPlan.atCall && !isBehind) return platform::Fault::None;
    ++fFaults;
    return fPlan.fault;
  }

  // How many calls were counted since the plan, and how many met a fault ever.
  [[nodiscard]] long Calls() const { return fCalls; }
  [[nodiscard]] long Faults() const { return fFaults; }

 private:
  FaultPlan fPlan;
  long fCalls = 0;
  long fFaults = 0;
};

}  // namespace strake::tests

// A query of a built-in server, again and again, with one thing going wrong each
// time; and what must hold afterwards whatever went wrong.
#pragma once

#include "platform/boundary/BoundaryObserver.h"
#include "platform/hostcore/Repository.h"
#include "platform/server/ServerDescription.h"

#include <string>
#include <vector>

namespace strake::tests {

// What goes wrong: a fault at the k-th boundary call, or the k-th allocation
// (with all behind it); k counts from 1, 0 is never.
struct Trouble {
  long atCall = 0;
  platform::Fault fault = platform::Fault::None;
  long atAllocation = 0;
  bool allAllocationsAfter = false;
};

class Collection {
 public:
  // A server of servers/, a query of the whole collection.
  Collection(const std::string& serverName, const std::string& queryName);

  // Runs the query with the trouble and expects of the end: no leak beyond the
  // presence-test commands, no handle still held, what was committed before the
  // trouble stands as without it, and the object answers the next query. Gives
  // how many calls and allocations failed.
  long Run(const Trouble& trouble) const;

  [[nodiscard]] long Allocations() const { return fAllocations; }
  [[nodiscard]] long BoundaryCalls() const { return static_cast<long>(fCalls.size()); }
  // The faults that the k-th boundary call can show.
  [[nodiscard]] std::vector<platform::Fault> FaultsOf(long call) const;

 private:
  platform::ServerDescription fServer;
  std::vector<std::string> fQuery;
  std::vector<std::string> fNextQuery;
  // As it goes without trouble.
  std::vector<platform::BoundaryCall> fCalls;
  std::vector<cim::StoredInstance> fCommitted;
  std::vector<cim::StoredInstance> fNextCommitted;
  long fAllocations = 0;
};

}  // namespace strake::tests

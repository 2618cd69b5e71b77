// The least that a query could cost: the boundary calls of a recorded trace, in
// its order, with ready-made arguments and nothing between them.
#pragma once

#include "bench/Groups.h"
#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace strake::bench {

// The trace of one query of the group on its server.
std::string RecordTrace(const platform::ServerDescription& server, const Group& group);

class Floor {
 public:
  // Makes the calls of the trace ready; without `logs` it leaves the log out.
  Floor(const std::string& trace, bool logs);
  ~Floor();
  Floor(const Floor&) = delete;
  Floor& operator=(const Floor&) = delete;

  void Replay(const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace,
              const std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>>& classes);

 private:
  class Calls;
  std::unique_ptr<Calls> fCalls;
};

}  // namespace strake::bench

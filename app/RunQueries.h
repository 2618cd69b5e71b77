// Runs queries in the plug-in.
#pragma once

#include "app/QueryPlan.h"
#include "platform/session/HostSession.h"

#include <vector>

namespace strake::app {

// Attaches the module, initializes the plug-in, runs the queries on it and
// detaches it. Throws RunError that says which of these ended with what.
void Attach(platform::HostSession& session, platform::ModuleEntry entry);
void RunQueries(platform::HostSession& session, const std::vector<ClassNames>& queries);

}  // namespace strake::app

// Runs queries in the plug-in. All throw RunError that says which step ended with
// what.
#pragma once

#include "app/QueryPlan.h"
#include "platform/session/HostSession.h"

#include <vector>

namespace strake::app {

void Attach(platform::HostSession& session, const platform::ModuleEntry& entry);
void Initialize(platform::HostSession& session);
void RunQueries(platform::HostSession& session, const std::vector<ClassNames>& queries);
// Deinitializes the plug-in and detaches the module.
void Finish(platform::HostSession& session);

}  // namespace strake::app

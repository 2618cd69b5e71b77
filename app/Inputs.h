// What a run collects from, and with what.
#pragma once

#include "app/CollectOptions.h"
#include "app/QueryPlan.h"
#include "app/Server.h"
#include "platform/session/PluginModule.h"
#include "report/Limits.h"
#include "report/Report.h"

#include <chrono>
#include <optional>
#include <vector>

namespace strake::app {

struct Inputs {
  std::optional<report::Limits> limits;
  Server server;
  std::vector<ClassNames> queries;
  platform::PluginModule module;
};

// Reads the files and loads the module. Throws text::InputError and RunError.
Inputs ReadInputs(const CollectOptions& options);

// Of a collection that begins now.
report::CollectionFacts FactsOf(const Inputs& inputs, std::chrono::sys_seconds now);

// Classes that the schema does not have are asked for like any others.
void WarnOfUnknownClasses(const std::vector<ClassNames>& queries);

}  // namespace strake::app

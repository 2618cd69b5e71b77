#include "app/Inputs.h"

#include "app/LimitsFile.h"
#include "app/Messages.h"
#include "app/ModulePath.h"
#include "app/NearestName.h"
#include "cim/Catalogue.h"
#include "os/CommandFolder.h"
#include "report/ClockOffset.h"

#include <set>
#include <string>
#include <string_view>

namespace strake::app {
namespace {

// What the host's clock says: the description's text, or the time.
std::chrono::sys_seconds HostTime(const platform::HostSettings& host,
                                  std::chrono::sys_seconds now) {
  return host.localTime ? report::MomentOf(host.localTime->ToString()).value_or(now) : now;
}

}  // namespace

// Each by its turn: what is refused first is told.
Inputs ReadInputs(const CollectOptions& options) {
  std::optional<report::Limits> limits =
      options.limits ? std::optional(ReadLimits(*options.limits)) : std::nullopt;
  Server server = options.server ? ReadServer(*options.server) : LoadBuiltInServer(options.demo);
  return {.limits = std::move(limits),
          .server = std::move(server),
          .queries = QueriesOf(options),
          .module = platform::PluginModule(options.plugin ? *options.plugin
                                                          : FindModule(os::CommandFolder()))};
}

report::CollectionFacts FactsOf(const Inputs& inputs, std::chrono::sys_seconds now) {
  return {.server = inputs.server.facts,
          .version = STRAKE_VERSION,
          .collectedAt = now,
          .queries = inputs.queries.size(),
          .classes = ClassesOf(inputs.queries),
          .hostTime = HostTime(inputs.server.description.host, now)};
}

void WarnOfUnknownClasses(const std::vector<ClassNames>& queries) {
  std::vector<std::string_view> known;
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    known.push_back(one.name);
  }
  std::set<std::string> told;
  for (const ClassNames& query : queries) {
    for (const std::string& name : query) {
      if (!IsKnownClass(name) && told.insert(name).second) {
        TellWarning("--query: no class of the schema is called '" + name + "'" +
                    DidYouMean(name, known));
      }
    }
  }
}

}  // namespace strake::app

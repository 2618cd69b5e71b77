#include "cim/Catalogue.h"
#include "fuzz/ReportBytes.h"
#include "fuzz/Seeds.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/WholeCollection.h"

#include <array>
#include <map>

namespace strake::fuzz {
namespace {

// The first few of each class: the rest of a collection teaches a report nothing.
std::vector<cim::StoredInstance> FirstOfEachClass(
    const std::vector<cim::StoredInstance>& instances) {
  constexpr int kEnough = 2;
  std::map<const cim::SchemaClass*, int> seen;
  std::vector<cim::StoredInstance> first;
  for (const cim::StoredInstance& instance : instances) {
    if (++seen[instance.schema] <= kEnough) first.push_back(instance);
  }
  return first;
}

std::vector<cim::StoredInstance> Collected(const platform::ServerDescription& server,
                                           const Query& query) {
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(server);
  session.Attach(&StrakeModuleEntry);
  session.Query(query);
  session.Detach();
  return FirstOfEachClass(session.Instances().Committed());
}

// Every class with every property, all of one text.
std::vector<cim::StoredInstance> AllOf(const std::string& text) {
  std::vector<cim::StoredInstance> instances;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    cim::StoredInstance instance{&schema, static_cast<unsigned long>(instances.size() + 1), {}};
    for (const cim::SchemaProperty& property : schema.properties) {
      instance.properties.push_back({&property, text});
    }
    instances.push_back(instance);
  }
  return instances;
}

}  // namespace

Seeds ReportSeeds(const std::vector<NamedServer>& servers) {
  Seeds seeds;
  for (const NamedServer& named : servers) {
    for (const tests::NamedQuery& query : tests::WholeCollection()) {
      const auto instances = Collected(named.server, query.classes);
      if (instances.empty()) continue;
      ReportCase reportCase{false, false, named.name, named.server.description, instances};
      seeds[named.name + "-" + query.name] = EncodeReport(reportCase);
      reportCase.showSecrets = true;
      reportCase.colours = true;
      seeds[named.name + "-" + query.name + "-shown"] = EncodeReport(reportCase);
    }
  }
  const std::map<std::string, std::string> texts = {
      {"nothing", ""},
      {"controls", std::string("\0\x1b[2J\r\n\t\x7f", 9)},
      {"c1-controls", "\xC2\x80\xC2\x9B\xC2\x9F"},
      {"quotes", "\"\\/'<&>"},
      {"no-utf8", "\xC3\xFF\xED\xA0\x80\xF4\x90\x80\x80"},
      {"wide", "\xE6\xBC\xA2\xF0\x9F\x98\x80"},
      {"directions", "\xE2\x80\xAE\xE2\x81\xA6\xE2\x80\x8B\xEF\xBB\xBF"},
      {"addresses", "10.0.0.5"},
      {"masks", "255.255.0.255"},
  };
  for (const auto& [name, text] : texts) {
    seeds["all-" + name] = EncodeReport({false, false, text, text, AllOf(text)});
    seeds["all-" + name + "-shown"] = EncodeReport({true, true, text, text, AllOf(text)});
  }
  seeds["empty"] = "";
  return seeds;
}

}  // namespace strake::fuzz

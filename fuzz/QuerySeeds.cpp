#include "fuzz/Seeds.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/WholeCollection.h"

#include <set>

namespace strake::fuzz {

using tests::WholeCollection;
using tests::WholeCollectionQueries;

namespace {

// Which commands a query sends.
class SendRecorder : public platform::BoundaryObserver {
 public:
  void OnDotSend(const platform::DotSend& send) override {
    fIdentifiers.emplace(send.identifier.begin(), send.identifier.end());
  }
  void OnKestleSend(const platform::KestleSend& send) override {
    fCodes.insert(static_cast<unsigned char>(send.code));
  }

  void EraseOthers(platform::SpDescription& sp) const {
    for (auto& commands : sp.instances) {
      std::erase_if(commands,
                    [&](const auto& entry) { return !fIdentifiers.contains(entry.first); });
    }
    std::erase_if(sp.kestleCommands,
                  [&](const auto& entry) { return !fCodes.contains(entry.first); });
  }

 private:
  std::set<platform::Identifier> fIdentifiers;
  std::set<unsigned char> fCodes;
};

}  // namespace

ServerCase CutDown(platform::ServerDescription server, const Query& query) {
  if (!server.sp.instances.empty()) {
    server.sp.instances.resize(1);
    server.sp.count = 1;
  }
  SendRecorder recorder;
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(server, &recorder);
  session.Attach(&StrakeModuleEntry);
  session.Query(query);
  session.Detach();
  recorder.EraseOthers(server.sp);
  return {server, {query}, {}};
}

Seeds QuerySeeds(const std::vector<NamedServer>& servers) {
  Seeds seeds;
  for (const auto& [name, text, server] : servers) {
    seeds[name + "-all"] = EncodeServer({server, WholeCollectionQueries(), {}});
    if (server.sp.kind != platform::SpKind::Orlo) continue;
    for (const auto& [queryName, classes] : WholeCollection()) {
      seeds[name + "-" + queryName] = EncodeServer(CutDown(server, classes));
    }
  }
  return seeds;
}

}  // namespace strake::fuzz

#include "platform/session/HostSession.h"

#include "platform/boundary/BoundaryObserver.h"
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/server/ServerDescription.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/frame/ModuleEntry.h"

#include <boost/make_shared.hpp>
#include <exception>
#include <utility>

namespace strake::platform {
namespace {

constexpr unsigned int kProcessDetach = 0;

}  // namespace

HostSession::HostSession(const ServerDescription& server, BoundaryObserver* observer, LogSink sink)
    : fRepository(boost::make_shared<Repository>()), fObserver(observer) {
  SetHost(server.host);
  SetServiceProcessors(server.sp);
  SetHostObserver(observer);
  SetDriverObserver(observer);
  SetLogSink(std::move(sink));
}

HostSession::~HostSession() {
  try {
    Detach();
  } catch (...) {  // NOLINT(bugprone-empty-catch)
    // Whoever wants to hear of a failing detach calls it; here nobody listens.
  }
  SetHostObserver(nullptr);
  SetDriverObserver(nullptr);
  SetLogSink({});
}

void HostSession::Attach(const ModuleEntry& entry) {
  if (fEntry != nullptr) {
    throw SessionError("a module is attached already");
  }
  ForgetPlugin();
  if (entry(kProcessAttach) == 0) {
    throw SessionError("the module's entry reports a failure");
  }
  fPlugin = RegisteredPlugin();
  if (fPlugin == nullptr) {
    entry(kProcessDetach);
    throw SessionError("the module registered no plug-in");
  }
  fEntry = entry;
}

NVELKZEV20::IPluginCallbacks& HostSession::Plugin() const {
  if (fPlugin == nullptr) {
    throw SessionError("no plug-in is attached");
  }
  return *fPlugin;
}

// What the session leads to changes, so these are no const members.
// NOLINTBEGIN(readability-make-member-function-const)
void HostSession::Initialize() { Plugin().Initialize(); }
void HostSession::Deinitialize() { Plugin().Deinitialize(); }
// NOLINTEND(readability-make-member-function-const)

void HostSession::Query(const std::vector<std::string>& classNames) {
  auto* const face = dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks*>(&Plugin());
  if (face == nullptr) {
    throw SessionError("the plug-in takes no queries");
  }
  std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>> classes;
  classes.reserve(classNames.size());
  for (const std::string& name : classNames) {
    classes.push_back(fRepository->RequestedClass(name));
  }
  if (fObserver == nullptr) {
    face->Query(fRepository, classes);
    return;
  }
  fObserver->OnQuery(classNames);
  try {
    face->Query(fRepository, classes);
  } catch (const std::exception& error) {
    fObserver->OnQueryThrew(error.what());
    throw;
  } catch (...) {
    fObserver->OnQueryThrew("unknown exception");
    throw;
  }
  fObserver->OnQueryEnd();
}

void HostSession::Detach() {
  if (fEntry == nullptr) {
    return;
  }
  // Forgotten first: a plug-in that fails to end is not ended twice.
  const ModuleEntry entry = std::exchange(fEntry, nullptr);
  NVELKZEV20::IPluginCallbacks* const plugin = std::exchange(fPlugin, nullptr);
  ForgetPlugin();
  plugin->Destroy();
  entry(kProcessDetach);
}

const Repository& HostSession::Instances() const { return *fRepository; }

const boost::shared_ptr<Repository>& HostSession::Namespace() const { return fRepository; }

}  // namespace strake::platform

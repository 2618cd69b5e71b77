#include "platform/pluginmanager/ManagerControl.h"
#include "plugin/host/TRootObject.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace NVELKZEV20 {

class TPluginManagerProvider {};

}  // namespace NVELKZEV20

namespace strake::platform {
namespace {

using NVELKZEV20::ContextMap;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::IPluginCallbacks;
using NVELKZEV20::TPluginManagerNamespace;
using NVELKZEV20::TPluginManagerProvider;

class PlainNamespace : public ICIMNamespace {
 public:
  void GetClass(boost::shared_ptr<ICIMClass>& cimClass, const std::string& /*name*/,
                ContextMap /*context*/) override {
    cimClass.reset();
  }
};

struct ManagerState {
  ManagerAnswer answer = ManagerAnswer::Manager;
  bool providerGiven = true;
  IPluginCallbacks* plugin = nullptr;
  TPluginManagerProvider provider;
  boost::shared_ptr<ICIMNamespace> manager = boost::make_shared<TPluginManagerNamespace>();
  boost::shared_ptr<ICIMNamespace> plain = boost::make_shared<PlainNamespace>();
};

ManagerState& TheManager() {
  static ManagerState state;
  return state;
}

}  // namespace

void SetManagerAnswer(ManagerAnswer answer) { TheManager().answer = answer; }
void SetProviderGiven(bool given) { TheManager().providerGiven = given; }
IPluginCallbacks* RegisteredPlugin() { return TheManager().plugin; }
void ForgetPlugin() { TheManager().plugin = nullptr; }

long ManagerHandlesHeld() {
  const ManagerState& state = TheManager();
  return (state.manager.use_count() - 1) + (state.plain.use_count() - 1);
}

}  // namespace strake::platform

namespace NVELKZEV20 {

using strake::platform::ManagerAnswer;
using strake::platform::TheManager;

boost::shared_ptr<ICIMNamespace> TRootObject::GetPluginManager() {
  switch (TheManager().answer) {
    case ManagerAnswer::Manager:
      return TheManager().manager;
    case ManagerAnswer::PlainNamespace:
      return TheManager().plain;
    case ManagerAnswer::Empty:
      break;
  }
  return {};
}

TPluginManagerNamespace::~TPluginManagerNamespace() = default;

// The manager holds plug-ins, not classes.
void TPluginManagerNamespace::GetClass(boost::shared_ptr<ICIMClass>& cimClass,
                                       const std::string& /*name*/, ContextMap /*context*/) {
  cimClass.reset();
}

// A member by the host's declaration.
// NOLINTNEXTLINE(readability-convert-member-functions-to-static)
TPluginManagerProvider* TPluginManagerNamespace::RegisterPlugin(IPluginCallbacks* plugin) {
  TheManager().plugin = plugin;
  return TheManager().providerGiven ? &TheManager().provider : nullptr;
}

}  // namespace NVELKZEV20

// The smallest plug-in manager library.
#include "plugin/host/TRootObject.h"

#include <boost/make_shared.hpp>
#include <example/Platform.h>

namespace {

NVELKZEV20::IPluginCallbacks* theRegistered = nullptr;

}  // namespace

namespace NVELKZEV20 {

class TPluginManagerProvider {};

boost::shared_ptr<ICIMNamespace> TRootObject::GetPluginManager() {
  return boost::make_shared<TPluginManagerNamespace>();
}

TPluginManagerNamespace::~TPluginManagerNamespace() = default;

void TPluginManagerNamespace::GetClass(boost::shared_ptr<ICIMClass>& cimClass,
                                       const std::string& /*name*/, ContextMap /*context*/) {
  cimClass.reset();
}

TPluginManagerProvider* TPluginManagerNamespace::RegisterPlugin(IPluginCallbacks* plugin) {
  static TPluginManagerProvider provider;
  theRegistered = plugin;
  return &provider;
}

}  // namespace NVELKZEV20

NVELKZEV20::IPluginCallbacks* platform::Registered() { return theRegistered; }

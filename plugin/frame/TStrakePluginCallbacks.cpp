#include "plugin/frame/TStrakePluginCallbacks.h"

#include "plugin/host/Handle.h"

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::TPluginManagerNamespace;
using NVELKZEV20::TRootObject;

// Logs nothing: until registration has answered, the gate is closed anyway.
TStrakePluginCallbacks::TStrakePluginCallbacks() {
  const boost::shared_ptr<ICIMNamespace> manager = TRootObject::GetPluginManager();
  const auto pluginManager = boost::dynamic_pointer_cast<TPluginManagerNamespace>(manager);
  fProvider = Deref(pluginManager).RegisterPlugin(this);
}

TStrakePluginCallbacks::~TStrakePluginCallbacks() = default;

void* TStrakePluginCallbacks::GetReserved() { return nullptr; }

std::string TStrakePluginCallbacks::GetDisplayName() { return "SP Configuration"; }

std::string TStrakePluginCallbacks::GetVersion() { return "1.0"; }

std::string TStrakePluginCallbacks::GetFrameworkVersion() { return "1.0"; }

void TStrakePluginCallbacks::Destroy() { DestroyObject(this); }

void TStrakePluginCallbacks::DestroyObject(TStrakePluginCallbacks* object) { delete object; }

void TStrakePluginCallbacks::Initialize() {
  LogLevel3("Initializing Service Processor Configuration Collector");
}

void TStrakePluginCallbacks::Deinitialize() {
  LogLevel3("De-Initializing Service Processor Configuration Collector");
}

}  // namespace strake

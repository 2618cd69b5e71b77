// The shortest host: host MODULE says what registers itself. RegisterPlugin is its
// own; all else that the module needs comes from the libraries beside the module.
#include "plugin/frame/ModuleEntry.h"
#include "plugin/host/TRootObject.h"

#include <cstdio>
#include <dlfcn.h>

static NVELKZEV20::IPluginCallbacks* theRegistered = nullptr;

NVELKZEV20::TPluginManagerProvider* NVELKZEV20::TPluginManagerNamespace::RegisterPlugin(
    IPluginCallbacks* plugin) {
  theRegistered = plugin;
  return nullptr;
}

int main(int argc, char** argv) {
  void* const module = argc == 2 ? dlopen(argv[1], RTLD_NOW) : nullptr;
  void* const entry = module != nullptr ? dlsym(module, "StrakeModuleEntry") : nullptr;
  if (entry == nullptr || reinterpret_cast<decltype(&StrakeModuleEntry)>(entry)(1) != 1) {
    return 1;
  }
  std::printf("%s %s\n", theRegistered->GetDisplayName().c_str(),
              theRegistered->GetVersion().c_str());
  theRegistered->Destroy();
}

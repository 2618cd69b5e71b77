// A whole host: host MODULE [LIBRARY...] prints the computer systems of the
// module's server. Each LIBRARY offers its names before those that the module is
// linked against.
#include "plugin/frame/ModuleEntry.h"

#include <cstdio>
#include <dlfcn.h>
#include <example/Platform.h>

int main(int argc, char** argv) {
  for (int i = 2; i < argc; ++i) {
    if (dlopen(argv[i], RTLD_NOW | RTLD_GLOBAL) == nullptr) {
      std::fprintf(stderr, "host: no library: %s\n", dlerror());
      return 1;
    }
  }
  void* const module = argc >= 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
  void* const symbol = module != nullptr ? dlsym(module, "StrakeModuleEntry") : nullptr;
  if (symbol == nullptr) {
    const char* const reason = dlerror();
    std::fprintf(stderr, "host: no module: %s\n", reason != nullptr ? reason : "none is named");
    return 1;
  }
  const auto entry = reinterpret_cast<decltype(&StrakeModuleEntry)>(symbol);
  if (entry(strake::kProcessAttach) != 1 || platform::Registered() == nullptr) {
    std::fputs("host: nothing registered\n", stderr);
    return 1;
  }
  NVELKZEV20::IPluginCallbacks* const plugin = platform::Registered();
  plugin->Initialize();
  {
    const auto cimNamespace = platform::MakeNamespace();
    boost::shared_ptr<NVELKZEV20::ICIMClass> wanted;
    cimNamespace->GetClass(wanted, "VELKSG_SP_ComputerSystem", {});
    dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks&>(*plugin).Query(cimNamespace, {wanted});
  }
  plugin->Deinitialize();
  plugin->Destroy();
  entry(0);
  return dlclose(module);
}

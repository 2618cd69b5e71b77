// A plug-in module and its entry.
#pragma once

#include "os/LoadableModule.h"
#include "platform/session/HostSession.h"

#include <filesystem>

namespace strake::platform {

class PluginModule {
 public:
  // Throws os::ModuleError: the file is missing, is no module, or lacks the entry.
  explicit PluginModule(const std::filesystem::path& file);

  [[nodiscard]] ModuleEntry Entry() const { return fEntry; }

 private:
  os::LoadableModule fModule;
  ModuleEntry fEntry;
};

}  // namespace strake::platform

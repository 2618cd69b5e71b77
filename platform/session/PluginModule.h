// A plug-in module and its entry.
#pragma once

#include "os/LoadableModule.h"
#include "platform/session/HostSession.h"

#include <filesystem>
#include <memory>

namespace strake::platform {

class PluginModule {
 public:
  // Throws os::ModuleError: the file is missing, is no module, or lacks the entry.
  explicit PluginModule(const std::filesystem::path& file);

  // Calls the module, which lives no longer than this. Where the system's loader
  // calls modules itself, 1 can throw os::ModuleError, too.
  [[nodiscard]] ModuleEntry Entry() const;

 private:
  std::unique_ptr<os::LoadableModule> fModule;
};

}  // namespace strake::platform

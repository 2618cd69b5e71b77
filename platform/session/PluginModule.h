// A plug-in module loaded with the system's loader.
#pragma once

#include "platform/session/HostSession.h"

#include <filesystem>

namespace strake::platform {

class PluginModule {
 public:
  // Throws SessionError: the file is missing, is no module, or lacks the entry.
  explicit PluginModule(const std::filesystem::path& file);
  PluginModule(const PluginModule&) = delete;
  PluginModule& operator=(const PluginModule&) = delete;
  ~PluginModule();  // unloads

  [[nodiscard]] ModuleEntry Entry() const { return fEntry; }

 private:
  void* fLibrary = nullptr;
  ModuleEntry fEntry = nullptr;
};

}  // namespace strake::platform

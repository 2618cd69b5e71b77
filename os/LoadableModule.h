// A module loaded with the system's loader.
#pragma once

#include <filesystem>
#include <stdexcept>

namespace strake::os {

// A module that cannot be used: one line that says which and why.
class ModuleError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class LoadableModule {
 public:
  // Throws ModuleError: the file is missing or is no module.
  explicit LoadableModule(const std::filesystem::path& file);
  LoadableModule(const LoadableModule&) = delete;
  LoadableModule& operator=(const LoadableModule&) = delete;
  ~LoadableModule();  // unloads

  // Null when the module has no such symbol.
  [[nodiscard]] void* Find(const char* symbol) const;

 private:
  void* fLibrary;
};

}  // namespace strake::os

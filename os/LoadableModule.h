// A module loaded with the system's loader.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

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

  // Tells the module through its entry that it joins the process (1) or leaves it
  // (0), and gives its answer. Windows' loader does this itself: there the module
  // is only looked at before it joins, and telling it is loading and unloading; of
  // an exception out of the entry, this throws one with its text or one without.
  int Notify(const char* entry, unsigned int reason);

 private:
  std::string fFile;  // as it was given, for messages
  void* fLibrary;
};

}  // namespace strake::os

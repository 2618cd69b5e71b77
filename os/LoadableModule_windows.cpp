#include "os/Handle_windows.h"
#include "os/LoadableModule.h"
#include "text/TextEscape.h"

#include <string>
#include <system_error>

namespace strake::os {
namespace {

constexpr unsigned int kJoins = 1;

// What the module is linked with is looked for beside it first.
constexpr DWORD kLoad = LOAD_WITH_ALTERED_SEARCH_PATH;
// Neither calls the module nor looks for what it is linked with.
constexpr DWORD kLook = kLoad | DONT_RESOLVE_DLL_REFERENCES;

[[noreturn]] void Refuse(const std::string& file, const std::string& reason) {
  throw ModuleError(text::EscapeForPeople(file) + ": " + reason);
}

HMODULE Load(const std::wstring& name, DWORD how) {
  return ::LoadLibraryExW(name.c_str(), nullptr, how);
}

std::string LoaderReason() { return "is not a loadable module: " + ErrorText(::GetLastError()); }

std::wstring FileOf(HMODULE library) {
  std::wstring name(MAX_PATH, L'\0');
  DWORD length = 0;
  while ((length = ::GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size()))) ==
         name.size()) {
    name.resize(name.size() * 2);
  }
  name.resize(length);
  return name;
}

}  // namespace

LoadableModule::LoadableModule(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    Refuse(file.string(), "there is no such module file");
  }
  fLibrary = Load(FullName(file), kLook);
  if (fLibrary == nullptr) {
    Refuse(file.string(), LoaderReason());
  }
}

LoadableModule::~LoadableModule() {
  if (fLibrary != nullptr) {
    ::FreeLibrary(static_cast<HMODULE>(fLibrary));
  }
}

void* LoadableModule::Find(const char* symbol) const {
  return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(fLibrary), symbol));
}

// What was only looked at is let go first: the loader would take it as it is.
int LoadableModule::Notify(const char* /*entry*/, unsigned int reason) {
  auto* const library = static_cast<HMODULE>(std::exchange(fLibrary, nullptr));
  if (reason != kJoins) {
    return ::FreeLibrary(library) != 0 ? 1 : 0;
  }
  const std::wstring file = FileOf(library);
  ::FreeLibrary(library);
  fLibrary = Load(file, kLoad);
  if (fLibrary == nullptr && ::GetLastError() != ERROR_DLL_INIT_FAILED) {
    Refuse(ToUtf8(file), LoaderReason());
  }
  return fLibrary != nullptr ? 1 : 0;
}

}  // namespace strake::os

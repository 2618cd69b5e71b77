// A handle that is closed with its owner, errors and names of Windows. For the
// sources of this folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <windows.h>

namespace strake::os {

class Handle {
 public:
  explicit Handle(HANDLE handle = nullptr) noexcept
      : fHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  Handle(Handle&& other) noexcept : fHandle(std::exchange(other.fHandle, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(fHandle, other.fHandle);
    return *this;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }

  [[nodiscard]] bool IsOpen() const noexcept { return fHandle != nullptr; }
  [[nodiscard]] HANDLE Get() const noexcept { return fHandle; }
  void Close() noexcept {
    if (fHandle != nullptr) {
      ::CloseHandle(std::exchange(fHandle, nullptr));
    }
  }

 private:
  HANDLE fHandle;
};

// Of standard input, output or error, as 0, 1 or 2; null: there is none.
HANDLE StandardHandle(int descriptor) noexcept;

// Gives the error, 0 when everything is written.
DWORD WriteAll(HANDLE handle, const char* bytes, std::size_t count) noexcept;

// Of a write: whoever read it is gone.
bool IsClosedPipe(DWORD error);

// Errors that POSIX has, too, in its words; others in the system's.
std::string ErrorText(DWORD error);
// std::system_error of the last or this error.
[[noreturn]] void FailBy(DWORD error = ::GetLastError());

// What is not valid becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);
std::wstring ToWide(std::string_view text);

// The whole name, in the system's spelling: "\\.\NUL" of a device.
std::wstring FullName(const std::filesystem::path& file);
bool IsDeviceName(std::wstring_view fullName);

// As the system spells an open file's name; empty: it has none.
std::wstring NameOf(HANDLE file);
// Null: the command's own. Throws std::system_error.
std::wstring NameOfModule(HMODULE module);

}  // namespace strake::os

#include "os/Handle_windows.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <system_error>

namespace strake::os {
namespace {

struct ErrorRow {
  DWORD windows;
  int posix;
};

constexpr std::array<ErrorRow, 23> kErrors{{
    {ERROR_FILE_NOT_FOUND, ENOENT},      {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_INVALID_NAME, EINVAL},        {ERROR_BAD_PATHNAME, ENOENT},
    {ERROR_BAD_NETPATH, ENOENT},         {ERROR_INVALID_DRIVE, ENOENT},
    {ERROR_ACCESS_DENIED, EACCES},       {ERROR_SHARING_VIOLATION, EACCES},
    {ERROR_LOCK_VIOLATION, EACCES},      {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_DIRECTORY, ENOTDIR},          {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},      {ERROR_DISK_FULL, ENOSPC},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE}, {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_OUTOFMEMORY, ENOMEM},         {ERROR_INVALID_HANDLE, EBADF},
    {ERROR_BROKEN_PIPE, EPIPE},          {ERROR_NO_DATA, EPIPE},
    {ERROR_PIPE_NOT_CONNECTED, EPIPE},
}};

std::error_code CodeOf(DWORD error) {
  const auto* const row = std::ranges::find(kErrors, error, &ErrorRow::windows);
  return row == kErrors.end() ? std::error_code(static_cast<int>(error), std::system_category())
                              : std::error_code(row->posix, std::generic_category());
}

// Its texts call what the error is about %1.
std::string SystemText(DWORD error) {
  wchar_t* text = nullptr;
  const DWORD length = ::FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, error, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), reinterpret_cast<LPWSTR>(&text),
      0, nullptr);
  const std::unique_ptr<wchar_t, decltype(&::LocalFree)> owner(text, &::LocalFree);
  if (text == nullptr) {
    return "error " + std::to_string(error);
  }
  std::string line = ToUtf8({text, length});
  while (line.ends_with(' ') || line.ends_with('.') || line.ends_with('\r') ||
         line.ends_with('\n')) {
    line.pop_back();
  }
  constexpr std::string_view kInsert = "%1";
  if (const std::size_t place = line.find(kInsert); place != std::string::npos) {
    line.replace(place, kInsert.size(), "the file");
  }
  return line;
}

}  // namespace

HANDLE StandardHandle(int descriptor) noexcept {
  constexpr std::array<DWORD, 3> kNames{STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
  if (descriptor < 0 || static_cast<std::size_t>(descriptor) >= kNames.size()) {
    return nullptr;
  }
  HANDLE const handle = ::GetStdHandle(kNames.at(static_cast<std::size_t>(descriptor)));
  return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

DWORD WriteAll(HANDLE handle, const char* bytes, std::size_t count) noexcept {
  constexpr std::size_t kPiece = std::size_t{1} << 20U;
  std::string_view rest(bytes, count);
  while (!rest.empty()) {
    DWORD written = 0;
    const auto piece = static_cast<DWORD>(std::min(rest.size(), kPiece));
    if (::WriteFile(handle, rest.data(), piece, &written, nullptr) == 0) {
      return ::GetLastError();
    }
    if (written == 0) {
      return ERROR_NO_DATA;  // a pipe that does not wait
    }
    rest.remove_prefix(written);
  }
  return 0;
}

bool IsClosedPipe(DWORD error) {
  return CodeOf(error) == std::error_code(EPIPE, std::generic_category());
}

std::string ErrorText(DWORD error) {
  const std::error_code code = CodeOf(error);
  return code.category() == std::generic_category() ? code.message() : SystemText(error);
}

void FailBy(DWORD error) { throw std::system_error(CodeOf(error)); }

std::string ToUtf8(std::wstring_view text) {
  const auto count = static_cast<int>(text.size());
  std::string utf8(text.size() * 3, '\0');
  const int size = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), count, utf8.data(),
                                         static_cast<int>(utf8.size()), nullptr, nullptr);
  utf8.resize(static_cast<std::size_t>(size));
  return utf8;
}

std::wstring ToWide(std::string_view text) {
  const auto count = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(::MultiByteToWideChar(
      CP_UTF8, 0, text.data(), count, wide.data(), static_cast<int>(wide.size()))));
  return wide;
}

// A name of blanks alone has no full one: whoever opens it refuses it.
std::wstring FullName(const std::filesystem::path& file) {
  std::wstring name;
  DWORD length = MAX_PATH;
  while (length > name.size()) {
    name.resize(length);
    length = ::GetFullPathNameW(file.c_str(), length, name.data(), nullptr);
  }
  if (length == 0) {
    return file.native();
  }
  name.resize(length);
  return name;
}

std::wstring NameOfModule(HMODULE module) {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = ::GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size()));
    if (length == 0) {
      FailBy();
    }
    if (length < name.size()) {
      name.resize(length);
      return name;
    }
    name.resize(name.size() * 2);
  }
}

bool IsDeviceName(std::wstring_view fullName) { return fullName.starts_with(L"\\\\.\\"); }

std::wstring NameOf(HANDLE file) {
  std::wstring name;
  DWORD length = MAX_PATH;
  while (length > name.size()) {
    name.resize(length);
    length = ::GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()),
                                         FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
  }
  name.resize(length);
  return name;
}

}  // namespace strake::os

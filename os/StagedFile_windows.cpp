#include "os/StagedFile_windows.h"

#include <aclapi.h>
#include <cstddef>
#include <memory>
#include <sddl.h>
#include <utility>
#include <vector>

namespace strake::os {
namespace {

constexpr int kMostAttempts = 1000;

// Of the user who runs this: "S-1-5-...".
std::wstring UserText() {
  HANDLE opened = nullptr;
  if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) {
    FailBy();
  }
  const Handle token(opened);
  DWORD size = 0;
  ::GetTokenInformation(token.Get(), TokenUser, nullptr, 0, &size);
  std::vector<std::byte> bytes(size);
  wchar_t* text = nullptr;
  if (::GetTokenInformation(token.Get(), TokenUser, bytes.data(), size, &size) == 0 ||
      ::ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER*>(bytes.data())->User.Sid,
                               &text) == 0) {
    FailBy();
  }
  const std::unique_ptr<wchar_t, decltype(&::LocalFree)> owner(text, &::LocalFree);
  return text;
}

// Whether the file goes when it is closed, by its process' end, too.
bool Mark(HANDLE file, BOOLEAN goes) noexcept {
  FILE_DISPOSITION_INFO mark{.DeleteFile = goes};
  return ::SetFileInformationByHandle(file, FileDispositionInfo, &mark, sizeof mark) != 0;
}

}  // namespace

// Protected: nothing is inherited from the folder.
Access Access::OfOwner() {
  const std::wstring user = UserText();
  const std::wstring text = L"O:" + user + L"D:P(A;;FA;;;" + user + L")";
  Access access;
  if (::ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1,
                                                             &access.fDescriptor, nullptr) == 0) {
    FailBy();
  }
  return access;
}

Access Access::Of(HANDLE file) {
  Access access;
  if (const DWORD error =
          ::GetSecurityInfo(file, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                            nullptr, nullptr, &access.fDescriptor);
      error != 0) {
    FailBy(error);
  }
  return access;
}

Access::Access(Access&& other) noexcept : fDescriptor(std::exchange(other.fDescriptor, nullptr)) {}

Access& Access::operator=(Access&& other) noexcept {
  std::swap(fDescriptor, other.fDescriptor);
  return *this;
}

Access::~Access() { ::LocalFree(fDescriptor); }

StagedFile::StagedFile(const std::filesystem::path& folder, const Access& access) {
  SECURITY_ATTRIBUTES attributes{.nLength = sizeof attributes,
                                 .lpSecurityDescriptor = access.Descriptor(),
                                 .bInheritHandle = FALSE};
  const std::wstring begin = L".strake-" + std::to_wstring(::GetCurrentProcessId()) + L"-";
  for (int number = 0; number < kMostAttempts; ++number) {
    fName = (folder / (begin + std::to_wstring(number))).native();
    fFile = Handle(::CreateFileW(fName.c_str(), GENERIC_WRITE | DELETE,
                                 FILE_SHARE_READ | FILE_SHARE_DELETE, &attributes, CREATE_NEW,
                                 FILE_ATTRIBUTE_NORMAL, nullptr));
    if (fFile.IsOpen()) {
      fIsThere = true;
      fIsMarked = Mark(fFile.Get(), TRUE);
      return;
    }
    if (::GetLastError() != ERROR_FILE_EXISTS) {
      break;
    }
  }
  FailBy();
}

// Its bytes are on the disk then, and it has its name.
DWORD StagedFile::Close() noexcept {
  DWORD error = 0;
  if (fFile.IsOpen() && (::FlushFileBuffers(fFile.Get()) == 0 ||
                         (std::exchange(fIsMarked, false) && !Mark(fFile.Get(), FALSE)))) {
    error = ::GetLastError();
  }
  fFile.Close();
  return error;
}

DWORD StagedFile::MoveTo(const wchar_t* name) noexcept {
  if (const DWORD error = Close(); error != 0) {
    return error;
  }
  if (::MoveFileExW(fName.c_str(), name, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
    return ::GetLastError();
  }
  fIsThere = false;
  return 0;
}

DWORD StagedFile::CopyTo(const wchar_t* name) noexcept {
  if (const DWORD error = Close(); error != 0) {
    return error;
  }
  return ::CopyFileW(fName.c_str(), name, FALSE) == 0 ? ::GetLastError() : 0;
}

void StagedFile::Discard() noexcept {
  fFile.Close();
  if (fIsThere) {
    ::DeleteFileW(fName.c_str());
    fIsThere = false;
  }
}

}  // namespace strake::os

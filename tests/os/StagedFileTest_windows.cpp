// Files under construction, and who may see them.
#include "os/StagedFile_windows.h"
#include "tests/support/Helper.h"
#include "tests/support/Processes_windows.h"
#include "tests/support/Said.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <memory>
#include <sddl.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using os::Access;
using os::StagedFile;

void Write(const StagedFile& file, const std::string& text) {
  EXPECT_EQ(os::WriteAll(file.File(), text.data(), text.size()), 0U);
}

// The owner and the access list, as the system writes them.
std::wstring TextOf(PSECURITY_DESCRIPTOR descriptor) {
  wchar_t* text = nullptr;
  EXPECT_NE(::ConvertSecurityDescriptorToStringSecurityDescriptorW(
                descriptor, SDDL_REVISION_1, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                &text, nullptr),
            0);
  const std::unique_ptr<wchar_t, decltype(&::LocalFree)> owner(text, &::LocalFree);
  return text == nullptr ? L"" : text;
}

TEST(StagedFile, GetsItsNameWhenItIsMoved) {
  for (const Names& before : {Names{}, Names{"report"}}) {
    const TemporaryFolder folder;
    if (!before.empty()) {
      static_cast<void>(folder.Write("report", "old"));
    }
    StagedFile file(folder.Path(), Access());
    Write(file, "new");
    EXPECT_EQ(folder.Names().contains("report"), !before.empty());
    EXPECT_EQ(file.MoveTo((folder.Path() / "report").c_str()), 0U);
    file.Discard();
    EXPECT_EQ(folder.Names(), Names{"report"});
    EXPECT_EQ(ReadFile(folder / "report"), "new");
  }
}

TEST(StagedFile, LeavesNothingWhenItCannotBeMoved) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "deep");
  StagedFile file(folder.Path(), Access());
  EXPECT_NE(file.MoveTo((folder.Path() / "deep").c_str()), 0U);
  EXPECT_NE(file.MoveTo((folder.Path() / "absent/report").c_str()), 0U);
  file.Discard();
  EXPECT_EQ(folder.Names(), Names{"deep"});
}

TEST(StagedFile, IsCopiedOverAShorterAndALongerFile) {
  for (const std::size_t length : {std::size_t{0}, std::size_t{3}, std::size_t{300000}}) {
    const TemporaryFolder folder;
    const std::string other = folder.Write("other", std::string(length, 'o'));
    StagedFile file(folder.Path(), Access());
    Write(file, "new");
    EXPECT_EQ(file.CopyTo((folder.Path() / "other").c_str()), 0U);
    file.Discard();
    EXPECT_EQ(ReadFile(other), "new");
    EXPECT_EQ(folder.Names(), Names{"other"});
  }
}

TEST(StagedFile, IsGoneWithItsProcess) {
  const TemporaryFolder folder;
  const std::string report = folder.Write("report", "old");
  os::ChildProcess child(Helper(), {"output", report, "100000"}, os::ChildProcess::Input::None);
  const os::Handle process = Open(NumbersFrom(child, 1).at(0));
  EXPECT_EQ(folder.Names().size(), 2U);
  ASSERT_NE(::TerminateProcess(process.Get(), 1), 0);
  EXPECT_EQ(AllOf(child).status, 1);
  EXPECT_EQ(folder.Names(), Names{"report"});
  EXPECT_EQ(ReadFile(report), "old");
}

TEST(Access, OfOwnerLetsInNobodyElseAndInheritsNothing) {
  const std::wstring text = TextOf(Access::OfOwner().Descriptor());
  const std::size_t list = text.find(L"D:");
  ASSERT_TRUE(text.starts_with(L"O:S-1-5-") && list != std::wstring::npos);
  const std::wstring user = text.substr(2, list - 2);
  EXPECT_EQ(text.substr(list), L"D:P(A;;FA;;;" + user + L")");
}

TEST(Access, OfAFileIsThatOfItsSuccessor) {
  const TemporaryFolder folder;
  StagedFile secret(folder.Path(), Access::OfOwner());
  StagedFile usual(folder.Path(), Access());
  const std::wstring ofSecret = TextOf(Access::Of(secret.File()).Descriptor());
  const std::wstring ofUsual = TextOf(Access::Of(usual.File()).Descriptor());
  EXPECT_NE(ofSecret, ofUsual);
  StagedFile next(folder.Path(), Access::Of(secret.File()));
  EXPECT_EQ(TextOf(Access::Of(next.File()).Descriptor()), ofSecret);
}

}  // namespace
}  // namespace strake::tests

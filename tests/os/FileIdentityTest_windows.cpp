// Names that differ in case, devices, and what standard output is.
#include "os/Handle_windows.h"
#include "tests/support/FileNames.h"
#include "tests/support/TemporaryFolder.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(FileIdentity, IsTheSameWhateverTheCaseOfItsName) {
  const TemporaryFolder folder;
  for (const std::string text : {"not there yet", "there"}) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(AreSame(folder / "report", folder / "REPORT"));
    EXPECT_TRUE(AreSame(folder.Path() / L"\u00E4", folder.Path() / L"\u00C4"));
    EXPECT_TRUE(AreSame(folder / "absent/a", folder / "ABSENT/A"));
    static_cast<void>(folder.Write("report", text));
  }
}

TEST(FileIdentity, OfADeviceIsTheSameInEveryFolder) {
  const TemporaryFolder folder;
  EXPECT_TRUE(AreSame("NUL", "nul"));
  EXPECT_TRUE(AreSame("NUL", folder / "NUL"));
  EXPECT_FALSE(AreSame("NUL", folder / "NUL2"));
}

// This process' standard output, and afterwards the one from before.
class StandardOutput {
 public:
  explicit StandardOutput(HANDLE handle) : fBefore(::GetStdHandle(STD_OUTPUT_HANDLE)) {
    ::SetStdHandle(STD_OUTPUT_HANDLE, handle);
  }
  StandardOutput(const StandardOutput&) = delete;
  StandardOutput& operator=(const StandardOutput&) = delete;
  ~StandardOutput() { ::SetStdHandle(STD_OUTPUT_HANDLE, fBefore); }

 private:
  HANDLE fBefore;
};

os::Handle Open(const std::filesystem::path& name, DWORD access) {
  return os::Handle(::CreateFileW(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

TEST(FileIdentity, OfStandardOutputIsTheFileBehindIt) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "");
  const os::Handle file = Open(name, GENERIC_WRITE);
  const StandardOutput output(file.Get());
  EXPECT_TRUE(AreSame("-", name));
  EXPECT_FALSE(AreSame("-", folder.Write("log", "")));
}

TEST(FileIdentity, TellsWhatCanBeWritten) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "");
  struct Case {
    std::filesystem::path name;
    DWORD access;
    bool isWritable;
  };
  for (const Case& one : {Case{name, GENERIC_READ, false},
                          {name, GENERIC_WRITE, true},
                          {name, FILE_APPEND_DATA, true},
                          {name, GENERIC_READ | GENERIC_WRITE, true},
                          {name, FILE_READ_ATTRIBUTES, false},
                          {"NUL", GENERIC_READ, false},
                          {"NUL", GENERIC_WRITE, true}}) {
    const os::Handle file = Open(one.name, one.access);
    ASSERT_TRUE(file.IsOpen());
    const StandardOutput output(file.Get());
    EXPECT_EQ(os::IsOpenForWriting(os::kStandardOutput), one.isWritable)
        << one.name << " " << one.access;
  }
  for (HANDLE const none : {HANDLE(nullptr), INVALID_HANDLE_VALUE}) {
    const StandardOutput output(none);
    EXPECT_FALSE(os::IsOpenForWriting(os::kStandardOutput));
  }
}

TEST(FileIdentity, TellsWhichEndOfAPipeCanBeWritten) {
  std::array<HANDLE, 2> ends{};
  ASSERT_NE(::CreatePipe(&ends[0], &ends[1], nullptr, 0), 0);
  const os::Handle read(ends[0]);
  const os::Handle write(ends[1]);
  for (const os::Handle* const end : {&read, &write}) {
    const StandardOutput output(end->Get());
    EXPECT_EQ(os::IsOpenForWriting(os::kStandardOutput), end == &write);
  }
}

}  // namespace
}  // namespace strake::tests

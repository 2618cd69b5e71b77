// Links and descriptors.
#include "tests/support/FileNames.h"
#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using os::IdentityOf;
using os::IdentityOfDescriptor;

TEST(FileIdentity, IsTheSameThroughLinks) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "deep");
  const std::string file = folder / "report";
  fs::create_symlink("report", folder / "link");
  fs::create_symlink("link", folder / "chain");
  fs::create_symlink("deep", folder / "way");
  for (const std::string text : {"not there yet", "there"}) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(AreSame(file, folder / "link"));
    EXPECT_TRUE(AreSame(file, folder / "chain"));
    EXPECT_TRUE(AreSame(folder / "deep/new", folder / "way/new"));
    EXPECT_FALSE(AreSame(folder / "deep/new", folder / "new"));
    EXPECT_EQ(folder.Write("report", text), file);
  }
}

TEST(FileIdentity, OfADescriptorIsTheFileBehindIt) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("report", "");
  const int one = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
  const int other = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
  const int another = ::open(folder.Write("log", "").c_str(), O_WRONLY | O_CLOEXEC);
  EXPECT_TRUE(IdentityOfDescriptor(one).IsSameAs(IdentityOf(file)));
  EXPECT_TRUE(IdentityOfDescriptor(one).IsSameAs(IdentityOfDescriptor(other)));
  EXPECT_FALSE(IdentityOfDescriptor(one).IsSameAs(IdentityOfDescriptor(another)));
  for (const int descriptor : {one, other, another}) {
    ::close(descriptor);
  }
}

TEST(FileIdentity, OfTwoDescriptorsOfAPipeIsTwo) {
  int ends[2]{};
  ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
  const int twin = ::fcntl(ends[1], F_DUPFD_CLOEXEC, 0);
  EXPECT_FALSE(IdentityOfDescriptor(ends[1]).IsSameAs(IdentityOfDescriptor(twin)));
  EXPECT_TRUE(IdentityOfDescriptor(twin).IsSameAs(IdentityOfDescriptor(twin)));
  for (const int descriptor : {ends[0], ends[1], twin}) {
    ::close(descriptor);
  }
}

TEST(FileIdentity, KnowsTheNamesOfDescriptors) {
  const TemporaryFolder folder;
  fs::create_symlink("/dev/stdout", folder / "link");
  fs::create_symlink("/proc/self/fd", folder / "way");
  const std::string own = "/proc/" + std::to_string(::getpid());
  struct Case {
    std::string name;
    std::optional<int> descriptor;
  };
  const std::vector<Case> cases = {
      {"-", 1},
      {"/dev/stdin", 0},
      {"/dev/stdout", 1},
      {"/dev/stderr", 2},
      {"/dev/fd/3", 3},
      {"/dev/./fd/../fd/3", 3},
      {"/proc/self/fd/12", 12},
      {"/proc/thread-self/fd/12", 12},
      {own + "/fd/1", 1},
      {own + "/task/" + std::to_string(::getpid()) + "/fd/1", 1},
      {folder / "link", 1},
      {folder / "way/7", 7},
      {"./-", std::nullopt},
      {"/dev/null", std::nullopt},
      {"/dev/fd/", std::nullopt},
      {"/dev/fd/x", std::nullopt},
      {"/dev/fd/3x", std::nullopt},
      {"/dev/fd/-1", std::nullopt},
      {"/dev/fd/99999999999", std::nullopt},
      {"/proc/1/fd/1", std::nullopt},
      {"", std::nullopt},
      {"absent/1", std::nullopt},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(os::NamedDescriptor(one.name), one.descriptor) << one.name;
  }
}

TEST(FileIdentity, TellsWhatCanBeWritten) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("file", "");
  struct Case {
    int mode;
    bool isWritable;
  };
  for (const Case one :
       {Case{O_RDONLY, false}, {O_WRONLY, true}, {O_RDWR, true}, {O_PATH, false}}) {
    const int descriptor = ::open(file.c_str(), one.mode | O_CLOEXEC);
    EXPECT_EQ(os::IsOpenForWriting(descriptor), one.isWritable) << one.mode;
    ::close(descriptor);
    EXPECT_FALSE(os::IsOpenForWriting(descriptor));
  }
}

}  // namespace
}  // namespace strake::tests

// What an output does with the file that is there already: its mode, its owner,
// and places where no file can be replaced.
#include "os/OutputFile.h"
#include "tests/support/Child.h"
#include "tests/support/StepDown.h"
#include "tests/support/TemporaryFolder.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using os::OutputFile;
using os::Privacy;

constexpr const char* kDone = "done";
constexpr uid_t kNobody = 65534;

struct stat StatusOf(const std::string& name) {
  struct stat status {};
  EXPECT_EQ(::stat(name.c_str(), &status), 0) << name;
  return status;
}

// Writes "new" over the file, which stays as it is until everything is there.
std::string Overwrite(const std::string& name, Privacy privacy) {
  try {
    const std::string before = ReadFile(name);
    OutputFile file(name, privacy);
    file.Write("new");
    if (ReadFile(name) != before) {
      return "too early";
    }
    file.Complete();
  } catch (const os::OutputError& error) {
    return error.what();
  }
  return kDone;
}

std::string OverwriteSteppedDown(const std::string& name, Privacy privacy) {
  const StepDown user;
  return Overwrite(name, privacy);
}

std::string FileOfMode(const TemporaryFolder& folder, const std::string& name, mode_t mode) {
  const std::string file = folder.Write(name, "old");
  EXPECT_EQ(::chmod(file.c_str(), mode), 0);
  return file;
}

TEST(ReplacedFile, KeepsItsModeAndClosesToOthersWhatIsSecret) {
  struct Case {
    mode_t old;
    mode_t usual;
    mode_t secret;
  };
  const TemporaryFolder folder;
  for (const Case one : {Case{0600, 0600, 0600},
                         {0640, 0640, 0600},
                         {0664, 0664, 0600},
                         {0666, 0666, 0600},
                         {0200, 0200, 0200},
                         {0755, 0755, 0600},
                         {04777, 0777, 0600}}) {
    const std::string usual = FileOfMode(folder, "usual", one.old);
    const ino_t node = StatusOf(usual).st_ino;
    EXPECT_EQ(Overwrite(usual, Privacy::Usual), kDone);
    EXPECT_EQ(ModeOf(usual), one.usual);
    EXPECT_NE(StatusOf(usual).st_ino, node);  // another file in its place
    const std::string secret = FileOfMode(folder, "secret", one.old);
    EXPECT_EQ(Overwrite(secret, Privacy::Owner), kDone);
    EXPECT_EQ(ModeOf(secret), one.secret);
    fs::remove(usual);
    fs::remove(secret);
  }
}

TEST(ReplacedFile, IsWrittenInPlaceWhereNothingCanBeCreated) {
  const TemporaryFolder folder;
  folder.OpenToAll();
  const StepDown user;
  const std::string deep = folder / "deep";
  fs::create_directory(deep);
  const std::string name = FileOfMode(folder, "deep/report", 0644);
  const ino_t node = StatusOf(name).st_ino;
  fs::permissions(deep, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Overwrite(name, Privacy::Usual), kDone);
  EXPECT_EQ(ModeOf(name), 0644U);
  EXPECT_EQ(Overwrite(name, Privacy::Owner), kDone);
  EXPECT_EQ(ModeOf(name), 0600U);
  EXPECT_EQ(StatusOf(name).st_ino, node);
  EXPECT_EQ(ReadFile(name), "new");
  fs::permissions(deep, fs::perms::owner_all);
}

// An owner who may read and write, another user who may read, and their mask.
struct AccessEntry {
  std::uint16_t tag;
  std::uint16_t permissions;
  std::uint32_t id;
};
struct AccessList {
  std::uint32_t version;
  std::array<AccessEntry, 5> entries;
};
constexpr std::uint32_t kNoId = 0xFFFFFFFF;
constexpr AccessList kAccessList{
    2,
    {{{0x01, 6, kNoId}, {0x02, 4, kNobody}, {0x04, 0, kNoId}, {0x10, 4, kNoId}, {0x20, 0, kNoId}}}};
constexpr const char* kListOfFile = "system.posix_acl_access";
constexpr const char* kListOfNewFiles = "system.posix_acl_default";

bool SetAccessList(const std::string& name, const char* list) {
  return ::setxattr(name.c_str(), list, &kAccessList, sizeof kAccessList, 0) == 0;
}

bool HasAccessList(const std::string& name) {
  return ::getxattr(name.c_str(), kListOfFile, nullptr, 0) > 0;
}

TEST(ReplacedFile, ThatHasAnAccessListKeepsIt) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "old");
  if (!SetAccessList(name, kListOfFile)) {
    GTEST_SKIP() << "this file system has no access lists";
  }
  EXPECT_EQ(ModeOf(name), 0640U);
  const ino_t node = StatusOf(name).st_ino;
  EXPECT_EQ(Overwrite(name, Privacy::Usual), kDone);
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(StatusOf(name).st_ino, node);
  EXPECT_TRUE(HasAccessList(name));
}

TEST(ReplacedFile, GetsNoAccessListThatItDidNotHave) {
  const TemporaryFolder folder;
  const std::string name = FileOfMode(folder, "report", 0640);
  if (!SetAccessList(folder.Path(), kListOfNewFiles)) {
    GTEST_SKIP() << "this file system has no access lists";
  }
  EXPECT_TRUE(HasAccessList(folder.Write("other", "")));
  EXPECT_EQ(Overwrite(name, Privacy::Usual), kDone);
  EXPECT_FALSE(HasAccessList(name));
  EXPECT_EQ(ModeOf(name), 0640U);
}

// For this process alone.
bool MountOver(const std::string& name, const std::string& behind) {
  return (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
         ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount(behind.c_str(), name.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

TEST(ReplacedFile, ThatIsAMountPointIsWrittenInPlace) {
  const TemporaryFolder folder;
  const std::string behind = folder.Write("behind", "old");
  const std::string name = folder.Write("report", "mounted over");
  const ChildEnd end = InChild([&]() -> std::string {
    return MountOver(name, behind) ? Overwrite(name, Privacy::Usual) : "no mounts";
  });
  if (end.text == "no mounts") {
    GTEST_SKIP() << "this user may not mount";
  }
  EXPECT_EQ(end, (ChildEnd{0, kDone}));
  EXPECT_EQ(ReadFile(behind), "new");
  EXPECT_EQ(ReadFile(name), "mounted over");
  EXPECT_EQ(folder.Names(), (Names{"behind", "report"}));
}

TEST(ReplacedFile, ThatBecomesAMountPointIsWrittenInPlaceAllTheSame) {
  const TemporaryFolder folder;
  const std::string behind = folder.Write("behind", "mounted");
  const std::string name = folder.Write("report", "old");
  const ChildEnd end = InChild([&]() -> std::string {
    OutputFile file(name, Privacy::Usual);
    file.Write("new");
    if (!MountOver(name, behind)) {
      return "no mounts";
    }
    file.Complete();
    return kDone;
  });
  if (end.text == "no mounts") {
    GTEST_SKIP() << "this user may not mount";
  }
  EXPECT_EQ(end, (ChildEnd{0, kDone}));
  EXPECT_EQ(ReadFile(behind), "mounted");
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(folder.Names(), (Names{"behind", "report"}));
}

// Files of two users, which only root can make.
class FilesOfTwo : public testing::Test {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) {
      GTEST_SKIP() << "only root can make another user's file";
    }
    fFolder.OpenToAll();
  }
  TemporaryFolder fFolder;
};

TEST_F(FilesOfTwo, KeepTheirOwnerWhereRootReplacesThem) {
  const std::string name = FileOfMode(fFolder, "report", 0640);
  ASSERT_EQ(::chown(name.c_str(), kNobody, 12), 0);
  EXPECT_EQ(Overwrite(name, Privacy::Usual), kDone);
  EXPECT_EQ(StatusOf(name).st_uid, kNobody);
  EXPECT_EQ(StatusOf(name).st_gid, 12U);
  EXPECT_EQ(ModeOf(name), 0640U);
}

TEST_F(FilesOfTwo, GiveNobodyAccessWhoHadNoneWhenTheOwnerChanges) {
  struct Case {
    mode_t old;
    mode_t replaced;
  };
  for (const Case one : {Case{0666, 0666}, {0606, 0600}, {0646, 0644}, {0602, 0600}}) {
    const std::string name = FileOfMode(fFolder, "report", one.old);
    EXPECT_EQ(OverwriteSteppedDown(name, Privacy::Usual), kDone);
    EXPECT_EQ(ModeOf(name), one.replaced) << one.old;
    EXPECT_EQ(StatusOf(name).st_uid, kNobody);
    fs::remove(name);
  }
}

TEST_F(FilesOfTwo, AreWrittenInPlaceInAStickyFolder) {
  ASSERT_EQ(::chmod(fFolder.Path().c_str(), 01777), 0);
  const std::string name = FileOfMode(fFolder, "report", 0666);
  const ino_t node = StatusOf(name).st_ino;
  EXPECT_EQ(OverwriteSteppedDown(name, Privacy::Usual), kDone);
  EXPECT_EQ(StatusOf(name).st_ino, node);
  EXPECT_EQ(StatusOf(name).st_uid, 0U);
  EXPECT_EQ(ModeOf(name), 0666U);
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(OverwriteSteppedDown(name, Privacy::Owner),
            "cannot write " + name +
                ": it can hold secrets, and only the file's owner can close it to others");
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(fFolder.Names(), Names{"report"});
}

}  // namespace
}  // namespace strake::tests

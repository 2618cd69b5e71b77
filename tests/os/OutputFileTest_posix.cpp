// Modes, links, devices and descriptors.
#include "os/OutputFile.h"
#include "tests/support/OutputFailure.h"
#include "tests/support/StepDown.h"
#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using os::OutputFile;
using os::Privacy;
using Names = std::set<std::string>;

TEST(OutputFile, ThatCanHoldSecretsIsItsOwnersFromTheFirstByte) {
  const TemporaryFolder folder;
  const mode_t old = ::umask(0);
  OutputFile secret(folder / "secret", Privacy::Owner);
  for (const std::string& name : folder.Names()) {
    EXPECT_EQ(ModeOf(folder / name), 0600U);
  }
  secret.Complete();
  EXPECT_EQ(ModeOf(folder / "secret"), 0600U);
  ::umask(027);
  OutputFile usual(folder / "usual", Privacy::Usual);
  usual.Complete();
  EXPECT_EQ(ModeOf(folder / "usual"), 0640U);
  ::umask(old);
}

TEST(OutputFile, OfAnOpenTargetIsClosedToOthersAllTheSame) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("trace", "old");
  fs::permissions(name, fs::perms::all);
  OutputFile(name, Privacy::Owner).Complete();
  EXPECT_EQ(ModeOf(name), 0600U);
}

TEST(OutputFile, FollowsALinkAndKeepsIt) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "deep");
  const std::string real = folder.Write("deep/real", "old");
  fs::create_symlink("deep/real", folder / "link");
  fs::create_symlink("link", folder / "chain");
  OutputFile file(folder / "chain", Privacy::Usual);
  file.Write("new");
  file.Complete();
  EXPECT_EQ(ReadFile(real), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(folder.Names(), (Names{"chain", "deep", "link"}));
}

TEST(OutputFile, CreatesTheTargetOfALinkThatLeadsNowhere) {
  const TemporaryFolder folder;
  fs::create_symlink("absent", folder / "link");
  OutputFile(folder / "link", Privacy::Usual).Complete();
  EXPECT_EQ(folder.Names(), (Names{"absent", "link"}));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST(OutputFile, ThatIsNotCompleteLeavesALinkThatLeadsNowhereAsItWas) {
  const TemporaryFolder folder;
  fs::create_symlink("absent", folder / "link");
  {
    OutputFile file(folder / "link", Privacy::Usual);
    file.Write("text");
    EXPECT_FALSE(fs::exists(folder / "absent"));
  }
  EXPECT_EQ(folder.Names(), Names{"link"});
}

TEST(OutputFile, DoesNotFollowACircleOfLinks) {
  const TemporaryFolder folder;
  fs::create_symlink("b", folder / "a");
  fs::create_symlink("a", folder / "b");
  EXPECT_EQ(FailureOf(folder / "a"),
            "cannot write " + (folder / "a") + ": Too many levels of symbolic links");
}

TEST(OutputFile, NamesAFileThatStandsForAFolder) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("file", "");
  EXPECT_EQ(FailureOf(file + "/report"), "cannot write " + file + "/report: Not a directory");
  EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST(OutputFile, IsNotReplacedBehindItsProtection) {
  const TemporaryFolder folder;
  fs::permissions(folder.Path(), fs::perms::all);
  const std::string name = folder.Write("report", "old");
  fs::permissions(name, fs::perms::owner_read);
  const StepDown user;
  EXPECT_EQ(FailureOf(name), "cannot write " + name + ": Permission denied");
}

TEST(OutputFile, KeepsAWriteErrorUntilItIsComplete) {
  OutputFile file("/dev/full", Privacy::Usual);
  file.Write(std::string(100000, 'x'));
  file.Write("more");
  EXPECT_THROW(file.Complete(), os::OutputError);
  EXPECT_EQ(FailureOf("/dev/full"), "cannot write /dev/full: No space left on device");
}

TEST(OutputFile, WritesADeviceAndAFifoAsTheyStand) {
  EXPECT_EQ(FailureOf("/dev/null"), "no failure");
  const TemporaryFolder folder;
  const std::string fifo = folder / "fifo";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  std::string received;
  std::thread reader([&] { received = ReadFile(fifo); });
  EXPECT_EQ(FailureOf(fifo), "no failure");
  reader.join();
  EXPECT_EQ(received, "text");
  EXPECT_TRUE(fs::is_fifo(fifo));
}

TEST(OutputFile, NamedAfterADescriptorGoesOnWhereTheDescriptorStands) {
  const TemporaryFolder folder;
  const int descriptor =
      ::open((folder / "log").c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  ASSERT_EQ(::write(descriptor, "before ", 7), 7);
  for (const char* const place : {"/dev/fd/", "/proc/self/fd/"}) {
    EXPECT_EQ(FailureOf(place + std::to_string(descriptor)), "no failure");
  }
  ::close(descriptor);
  EXPECT_EQ(ReadFile(folder / "log"), "before texttext");
  EXPECT_EQ(FailureOf("/dev/fd/" + std::to_string(descriptor)),
            "cannot write /dev/fd/" + std::to_string(descriptor) + ": Bad file descriptor");
}

}  // namespace
}  // namespace strake::tests

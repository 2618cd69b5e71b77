#include "platform/server/ServerDescription.h"
#include "tests/support/StepDown.h"
#include "text/InputError.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <unistd.h>

namespace strake::platform {
namespace {

class DescriptionFileTest : public testing::Test {
 protected:
  DescriptionFileTest()
      : fFolder(std::filesystem::path(testing::TempDir()) /
                ("description-files-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(fFolder);
  }
  ~DescriptionFileTest() override { std::filesystem::remove_all(fFolder); }

  [[nodiscard]] std::filesystem::path Write(const std::string& name,
                                            const std::string& text) const {
    std::ofstream(fFolder / name, std::ios::binary) << text;
    return fFolder / name;
  }

  std::filesystem::path fFolder;
};

std::string RefusalOf(const std::filesystem::path& file) {
  try {
    ReadServerDescription(file);
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "taken";
}

TEST_F(DescriptionFileTest, IsReadWhole) {
  const auto file =
      Write("a.server.json", R"({"format":"strake-server/1","description":")" +
                                 std::string(200000, 'd') + R"(","sp":{"kind":"tavit"}})" + "\n");
  EXPECT_EQ(ReadServerDescription(file).description.size(), 200000U);
}

TEST_F(DescriptionFileTest, IsNamedWhenItIsMissing) {
  const auto file = fFolder / "missing.json";
  EXPECT_EQ(RefusalOf(file), file.string() + ": cannot be read: No such file or directory");
}

TEST_F(DescriptionFileTest, IsNamedWhenItIsADirectory) {
  EXPECT_EQ(RefusalOf(fFolder), fFolder.string() + ": cannot be read: Is a directory");
}

TEST_F(DescriptionFileTest, IsNamedWhenItMayNotBeRead) {
  const auto file = Write("secret.json", "{}");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  const tests::StepDown user;
  EXPECT_EQ(RefusalOf(file), file.string() + ": cannot be read: Permission denied");
}

TEST_F(DescriptionFileTest, IsReadFromAStreamUnderTheNameThatItIsGiven) {
  const auto file = Write("a", R"({"format":"strake-server/1","sp":{"kind":"tavit"}})");
  const auto read = [](const std::filesystem::path& name, const char* mode) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(name.c_str(), mode),
                                                                 std::fclose);
    return ReadServerDescription(stream.get(), "the stream");
  };
  EXPECT_EQ(read(file, "r").sp.kind, SpKind::Tavit);
  const auto refusal = [&read](const std::filesystem::path& name, const char* mode) {
    try {
      read(name, mode);
    } catch (const text::InputError& error) {
      return std::string(error.what());
    }
    return std::string("taken");
  };
  EXPECT_EQ(refusal(Write("b", "7"), "r"),
            "the stream: at the top level: expected an object, got 7");
  EXPECT_EQ(refusal(Write("c", ""), "a"), "the stream: cannot be read: Bad file descriptor");
}

TEST_F(DescriptionFileTest, IsNamedWhenItIsEmpty) {
  const auto file = Write("empty.json", "");
  EXPECT_TRUE(RefusalOf(file).starts_with(file.string() + ": line 1, column 1: "))
      << RefusalOf(file);
}

TEST_F(DescriptionFileTest, IsRefusedWhenItIsHuge) {
  const auto file = Write("huge.json", "");
  std::filesystem::resize_file(file, 100'000'000);
  EXPECT_EQ(RefusalOf(file), file.string() + ": expected at most 16777216 bytes, got more");
}

TEST_F(DescriptionFileTest, IsRefusedWhenItNeverEnds) {
  EXPECT_EQ(RefusalOf("/dev/zero"), "/dev/zero: expected at most 16777216 bytes, got more");
}

}  // namespace
}  // namespace strake::platform

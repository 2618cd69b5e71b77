#include "tests/platform/DescriptionFileTest.h"

#include <cstdio>
#include <memory>

namespace strake::platform {
namespace {

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

TEST_F(DescriptionFileTest, IsReadFromAStreamUnderTheNameThatItIsGiven) {
  const auto read = [this](const std::string& text) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
        std::fopen(Write("a", text).string().c_str(), "rb"), std::fclose);
    return ReadServerDescription(stream.get(), "the stream");
  };
  EXPECT_EQ(read(R"({"format":"strake-server/1","sp":{"kind":"tavit"}})").sp.kind, SpKind::Tavit);
  try {
    read("7");
    FAIL() << "taken";
  } catch (const text::InputError& error) {
    EXPECT_STREQ(error.what(), "the stream: at the top level: expected an object, got 7");
  }
}

}  // namespace
}  // namespace strake::platform

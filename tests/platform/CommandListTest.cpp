#include "plugin/spaccess/SPLibrary.h"
#include "tests/platform/TestServer.h"
#include "text/DotNotation.h"

#include <memory>
#include <random>

namespace strake::platform {
namespace {

using NVELKZEV20::SPLibrary;

SPLibrary& Library() { return *SPLibrary::GetSplibraryInstance(0); }

// Three buffers of exactly 4096 bytes, each an allocation of its own.
class List {
 public:
  explicit List(unsigned char fill) {
    for (auto& buffer : fBuffers) {
      buffer = std::make_unique<unsigned char[]>(4096);
      std::fill_n(buffer.get(), 4096, fill);
    }
  }
  bool Build() { return Library().buildDotCommandList(At(0), At(1), At(2)); }
  int Count(const std::string& dotNotation) {
    std::string asked = text::ParseDotNotation(dotNotation).value();
    return Library().getComponentdotCmdList(reinterpret_cast<unsigned char*>(asked.data()),
                                            static_cast<int>(asked.size()), At(0), At(1), At(2));
  }
  unsigned char* At(std::size_t buffer) { return fBuffers.at(buffer).get(); }

 private:
  std::array<std::unique_ptr<unsigned char[]>, 3> fBuffers;
};

Identifier Id(const std::string& dotNotation) {
  return text::ParseDotNotation(dotNotation).value();
}

class CommandListTest : public PlatformTest {
 protected:
  CommandListTest() {
    SetServiceProcessors({.components = {{Id("4.1.3.0.255"), 0},
                                         {Id("4.1.4.0.255"), 254},
                                         {Id("4.9.1.0.255"), 2},
                                         {Id("0.0.0.0.0"), 3},
                                         {Id("255.255.255.0.255"), 4}}});
  }
  List fList{0xEE};
};

TEST_F(CommandListTest, CountsComponentsWhateverTheirFourthByte) {
  ASSERT_TRUE(fList.Build());
  const struct {
    const char* asked;
    int count;
  } cases[] = {{"4.1.3.1.255", 0},   {"4.1.3.7.255", 0},  {"4.1.4.255.255", 254},
               {"4.9.1.2.255", 2},   {"0.0.0.9.0", 3},    {"255.255.255.255.255", 4},
               {"4.1.5.1.255", -1},  {"4.1.3.1.254", -1}, {"4.1.3.1", -1},
               {"4.1.3.1.255.0", -1}};
  for (const auto& one : cases) {
    EXPECT_EQ(fList.Count(one.asked), one.count) << one.asked;
  }
}

TEST_F(CommandListTest, KnowsNothingButTheBuffers) {
  ASSERT_TRUE(fList.Build());
  SetServiceProcessors({});
  EXPECT_EQ(fList.Count("4.9.1.1.255"), 2);
  ASSERT_TRUE(fList.Build());
  EXPECT_EQ(fList.Count("4.9.1.1.255"), -1);
}

TEST_F(CommandListTest, LeavesTheBuffersAloneWhenItCannotBeBuilt) {
  SetServiceProcessors({.commandList = false, .components = {{Id("4.1.3.0.255"), 1}}});
  EXPECT_FALSE(fList.Build());
  for (std::size_t buffer = 0; buffer < 3; ++buffer) {
    EXPECT_EQ(std::count(fList.At(buffer), fList.At(buffer) + 4096, 0xEE), 4096);
  }
  EXPECT_EQ(fList.Count("4.1.3.1.255"), -1);
}

TEST_F(CommandListTest, CountsNothingInBuffersThatWereNeverFilled) {
  for (const int fill : {0x00, 0xFF, 0xEE, int{'D'}}) {
    List garbage(static_cast<unsigned char>(fill));
    EXPECT_EQ(garbage.Count("4.1.3.1.255"), -1);
  }
}

TEST_F(CommandListTest, CountsNothingInBuffersInAnotherOrder) {
  ASSERT_TRUE(fList.Build());
  std::string asked = Id("4.9.1.1.255");
  auto* const bytes = reinterpret_cast<unsigned char*>(asked.data());
  EXPECT_EQ(Library().getComponentdotCmdList(bytes, 5, fList.At(1), fList.At(0), fList.At(2)), -1);
  EXPECT_EQ(Library().getComponentdotCmdList(bytes, 5, fList.At(0), fList.At(2), fList.At(1)), -1);
  EXPECT_EQ(Library().getComponentdotCmdList(bytes, 5, fList.At(0), fList.At(0), fList.At(0)), -1);
}

TEST_F(CommandListTest, BearsNullPointersAndOddLengths) {
  ASSERT_TRUE(fList.Build());
  EXPECT_FALSE(Library().buildDotCommandList(nullptr, fList.At(1), fList.At(2)));
  EXPECT_FALSE(Library().buildDotCommandList(fList.At(0), nullptr, fList.At(2)));
  EXPECT_FALSE(Library().buildDotCommandList(fList.At(0), fList.At(1), nullptr));
  unsigned char asked[5] = {4, 9, 1, 1, 255};
  const auto count = [&](unsigned char* identifier, int length, int missing) {
    return Library().getComponentdotCmdList(
        identifier, length, missing == 1 ? nullptr : fList.At(0),
        missing == 2 ? nullptr : fList.At(1), missing == 3 ? nullptr : fList.At(2));
  };
  EXPECT_EQ(count(asked, 5, 0), 2);
  EXPECT_EQ(count(nullptr, 5, 0), -1);
  EXPECT_EQ(count(asked, 0, 0), -1);
  EXPECT_EQ(count(asked, -5, 0), -1);
  for (const int missing : {1, 2, 3}) {
    EXPECT_EQ(count(asked, 5, missing), -1);
  }
}

TEST_F(CommandListTest, HoldsAsManyComponentsAsADescriptionMayHave) {
  SpDescription description;
  for (std::size_t i = 0; i < kMostComponents; ++i) {
    const Identifier identifier{static_cast<char>(i / 256), static_cast<char>(i % 256), 1, 0, 9};
    description.components[identifier] = static_cast<int>(i % 255);
  }
  SetServiceProcessors(description);
  ASSERT_TRUE(fList.Build());
  for (std::size_t i = 0; i < kMostComponents; ++i) {
    const std::string asked = std::to_string(i / 256) + '.' + std::to_string(i % 256) + ".1.77.9";
    ASSERT_EQ(fList.Count(asked), static_cast<int>(i % 255)) << asked;
  }
}

TEST_F(CommandListTest, NeverReadsOutsideBuffersThatWereTamperedWith) {
  ASSERT_TRUE(fList.Build());
  std::mt19937 random(20240601);
  std::uniform_int_distribution<unsigned> anyPlace(0, 3 * 4096 - 1);
  std::uniform_int_distribution<unsigned> headerPlace(0, 5);
  std::uniform_int_distribution<unsigned> anyByte(0, 255);
  for (int round = 0; round < 20000; ++round) {
    // Every other change hits a header, the last two bytes of which are a count.
    const unsigned place =
        round % 2 == 0 ? anyPlace(random) : headerPlace(random) + 4096 * (anyByte(random) % 3);
    unsigned char& byte = fList.At(place / 4096)[place % 4096];
    const unsigned char before = byte;
    byte = static_cast<unsigned char>(anyByte(random));
    const int count = fList.Count("9.9.9.9.9");
    ASSERT_GE(count, -1);
    ASSERT_LE(count, 254);
    if (round % 2 != 0) {
      byte = before;
    }
  }
  for (const unsigned rows : {2043U, 2044U, 65535U}) {
    for (std::size_t buffer = 0; buffer < 3; ++buffer) {
      fList.At(buffer)[0] = 'D';
      fList.At(buffer)[1] = 'C';
      fList.At(buffer)[2] = 'L';
      fList.At(buffer)[3] = static_cast<unsigned char>('1' + buffer);
      fList.At(buffer)[4] = static_cast<unsigned char>(rows % 256);
      fList.At(buffer)[5] = static_cast<unsigned char>(rows / 256);
    }
    EXPECT_EQ(fList.Count("9.8.7.6.5"), -1) << rows;
  }
}

TEST_F(CommandListTest, TakesACountThatNoComponentHasForAFailure) {
  SetServiceProcessors({.components = {{Id("1.1.1.0.1"), 254}}});
  ASSERT_TRUE(fList.Build());
  EXPECT_EQ(fList.Count("1.1.1.1.1"), 254);
  ASSERT_EQ(fList.At(0)[11], 254);
  fList.At(0)[11] = 255;
  EXPECT_EQ(fList.Count("1.1.1.1.1"), -1);
}

}  // namespace
}  // namespace strake::platform

// Every input of the corpus, once: what the fuzzers start from and what they
// found before.
#include "fuzz/Harnesses.h"
#include "tests/support/Places.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;

using fuzz::Harness;

class Corpus : public testing::TestWithParam<Harness> {
 protected:
  static std::vector<fs::path> Files() {
    const fs::path folder = fs::path(tests::SourceFolder()) / "fuzz" / "corpus" / GetParam().name;
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
  }
};

TEST_P(Corpus, EveryInputRunsThroughItsHarness) {
  const std::vector<fs::path> files = Files();
  ASSERT_GE(files.size(), 20U);
  for (const fs::path& file : files) {
    // A harness that finds something ends the process; its last line says where.
    std::cout << file.filename().string() << '\n' << std::flush;
    std::ifstream in(file, std::ios::binary);
    ASSERT_TRUE(in);
    const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(in), {});
    EXPECT_EQ(GetParam().run(bytes.data(), bytes.size()), 0);
  }
}

TEST_P(Corpus, NoBytesAreAnInputToo) { EXPECT_EQ(GetParam().run(nullptr, 0), 0); }

std::string HarnessName(const testing::TestParamInfo<Harness>& harness) {
  return std::string(harness.param.name);
}

INSTANTIATE_TEST_SUITE_P(Of, Corpus, testing::ValuesIn(fuzz::kHarnesses), HarnessName);

}  // namespace
}  // namespace strake::tests

// What hostile descriptions cost in memory, and what happens when there is none.
#include "tests/app/Command_posix.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <set>

namespace strake::tests {
namespace {

// AddressSanitizer maps more than any limit.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif

constexpr unsigned long kMebibyte = 1024UL * 1024;
constexpr std::size_t kLargest = 16 * kMebibyte;

// As often as it fits.
std::string Repeated(const std::string& part, std::size_t size) {
  const std::size_t whole = size - size % part.size();
  std::string text = part;
  while (text.size() < whole) {
    text.append(text, 0, whole - text.size());
  }
  return text;
}

std::string WithCommand(const std::string& reply) {
  return R"({"format":"strake-server/1","sp":{"kind":"orlo","instances":[{"dot_commands":{"1.1":)" +
         reply + "}}]}}";
}

TEST(DescriptionMemory, StaysUnder256MebibytesForAnyFileOf16) {
  if (!kLimitsMemory) {
    GTEST_SKIP() << "the sanitizer needs more";
  }
  const std::size_t most = kLargest - 200;
  const struct {
    const char* what;
    std::string text;
    int status;
  } cases[] = {
      {"small values", "[" + Repeated("0,", most) + "0]", 2},
      {"as many replies as are taken",
       WithCommand("[" + Repeated("\"" + std::string(36, '0') + "\",", 39 * 399'000) + "\"\"]"), 0},
      {"one text", WithCommand("{\"text\":\"" + std::string(most, 'a') + "\"}"), 0},
      {"one reply", WithCommand("\"" + Repeated("00", most) + "\""), 0},
      {"one key", "{\"" + std::string(most, 'k') + "\":1}", 2},
      {"one number", std::string(most, '1'), 2},
      {"one text without an end", "\"" + std::string(most, 'a'), 2},
      {"white space", std::string(most, '\n'), 2},
      {"white space between values",
       "[" + Repeated("{}," + std::string(37, '\n'), 40 * 399'000) + "x", 2},
      {"nesting", std::string(most, '['), 2},
  };
  const TemporaryFolder folder;
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    const Outcome outcome =
        PosixCommand({"check", folder.Write("s", one.text)}).AddressSpace(256 * kMebibyte).Run();
    EXPECT_EQ(outcome.status, one.status) << outcome.err;
  }
}

TEST(DescriptionMemory, EndsARunWithOneLineWhenThereIsTooLittle) {
  if (!kLimitsMemory) {
    GTEST_SKIP() << "the sanitizer needs more";
  }
  constexpr int kLoaderFailed = 127;
  const TemporaryFolder folder;
  const std::string file = folder.Write(
      "s", R"({"format":"strake-server/1","description":[)" + Repeated("{},", 900'000) + "0]}");
  std::set<int> statuses;
  // Apart from about 8 MiB, where the loader is content and the C++ library, before
  // main, is not.
  for (unsigned long limit = 4 * kMebibyte; limit <= 64 * kMebibyte; limit += 5 * kMebibyte) {
    const Outcome outcome = PosixCommand({"check", file}).AddressSpace(limit).Run();
    statuses.insert(outcome.status);
    if (outcome.status == 1) {
      EXPECT_EQ(outcome.err, "strake: " + file + ": there is not enough memory to read it\n");
    }
  }
  EXPECT_EQ(statuses, (std::set<int>{1, 2, kLoaderFailed}));
}

}  // namespace
}  // namespace strake::tests

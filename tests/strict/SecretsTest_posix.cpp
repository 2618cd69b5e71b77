// Nothing that a query read stays within reach of a static object.
#include "tests/strict/Classes.h"
#include "tests/strict/StaticData.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <malloc.h>
#include <new>
#include <string_view>
#include <unistd.h>

// Memory is wiped when it is given back, so that what is found is in use.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
  void* const block = operator new(size, std::nothrow);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void operator delete(void* block) noexcept {
  if (block == nullptr) return;
  std::memset(block, 0, malloc_usable_size(block));
  std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }

namespace strake::strict {
namespace {

// Made up at run time: the text itself stands nowhere in the program.
std::string MakeSecret() {
  std::string secret = "rdbsduenfsdbsrm8291";
  for (char& letter : secret) letter = static_cast<char>(letter ^ 1);
  return secret;
}

// Reads memory that may not be there.
class OwnMemory {
 public:
  OwnMemory() : fFile(open("/proc/self/mem", O_RDONLY | O_CLOEXEC)) {}
  OwnMemory(const OwnMemory&) = delete;
  OwnMemory& operator=(const OwnMemory&) = delete;
  ~OwnMemory() { close(fFile); }
  [[nodiscard]] bool IsOpen() const { return fFile != -1; }

  [[nodiscard]] std::uintptr_t Word(std::uintptr_t address) const {
    std::uintptr_t word = 0;
    const ssize_t count = pread(fFile, &word, sizeof word, static_cast<off_t>(address));
    return count == sizeof word ? word : 0;
  }

  // True when `text` stands in the 512 bytes behind `address`.
  [[nodiscard]] bool Holds(std::uintptr_t address, const std::string& text) const {
    char bytes[512];
    const ssize_t count = pread(fFile, bytes, sizeof bytes, static_cast<off_t>(address));
    return count > 0 &&
           memmem(bytes, static_cast<std::size_t>(count), text.data(), text.size()) != nullptr;
  }

 private:
  int fFile;
};

// True when a static object holds the text or points to it.
bool IsWithinReach(const OwnMemory& memory, const std::string& text) {
  const auto [begin, end] = OwnStaticData();
  for (auto at = begin; at + sizeof at <= end; at += sizeof at) {
    if (memory.Holds(at, text) || memory.Holds(memory.Word(at), text)) return true;
  }
  return false;
}

// A string element: its data begin with the text's longest length.
void AppendString(Bytes& record, const std::string& text) {
  const auto longest = static_cast<unsigned char>(text.size());
  record.insert(record.end(), {1, 0, static_cast<unsigned char>(longest + 1), longest});
  record.insert(record.end(), text.begin(), text.end());
}

// Reads records whose strings are all `secret`, `forms` telling strings ('s') and
// numbers apart; true when the string of that name was told.
bool Read(const char* classCase, std::string_view forms, const char* name,
          const std::string& secret) {
  StrictHost host;
  Prepare(host, CaseOf(classCase));
  Bytes record;
  for (const char form : forms) {
    if (form == 's') {
      AppendString(record, secret);
    } else {
      record.insert(record.end(), {1, 0, 1, 2});
    }
  }
  host.otherReply.bytes = record;
  host.Query({CaseOf(classCase).className});
  return host.CountLines(std::string(name) + " = " + secret) != 0;
}

std::string& KeptText() {
  static std::string text;
  return text;
}

TEST(ReadSecrets, AreOutOfReachBehindTheQuery) {
  const OwnMemory memory;
  ASSERT_TRUE(memory.IsOpen());
  const std::string secret = MakeSecret();
  ASSERT_FALSE(IsWithinReach(memory, secret));
  ASSERT_TRUE(Read("Dialout", "nssnssssssn", "PPPPassword", secret));
  EXPECT_FALSE(IsWithinReach(memory, secret));
  // The last string of this record is its last value.
  ASSERT_TRUE(Read("SerialPort", "nnnnsnssnsssssss", "ModemHangupString", secret));
  EXPECT_FALSE(IsWithinReach(memory, secret));
  // What is kept is found.
  KeptText() = secret;
  EXPECT_TRUE(IsWithinReach(memory, secret));
  KeptText() = std::string();
  KeptText().shrink_to_fit();
  EXPECT_FALSE(IsWithinReach(memory, secret));
}

}  // namespace
}  // namespace strake::strict

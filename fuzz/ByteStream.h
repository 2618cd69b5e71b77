// Numbers and texts as bytes, low byte first. Any bytes can be read: past the
// end of the input everything reads as zeros.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace strake::fuzz {

class ByteReader {
 public:
  explicit ByteReader(std::span<const unsigned char> bytes) : fBytes(bytes) {}

  [[nodiscard]] bool AtEnd() const { return fBytes.empty(); }

  unsigned char Byte() {
    if (fBytes.empty()) return 0;
    const unsigned char byte = fBytes.front();
    fBytes = fBytes.subspan(1);
    return byte;
  }

  std::uint16_t Word() {
    const unsigned int low = Byte();
    return static_cast<std::uint16_t>(low | static_cast<unsigned int>(Byte()) << 8U);
  }

  std::int32_t Number() {
    const std::uint32_t low = Word();
    return static_cast<std::int32_t>(low | static_cast<std::uint32_t>(Word()) << 16U);
  }

  // At most `count` bytes, fewer where the input ends.
  std::string Bytes(std::size_t count) {
    const auto taken = fBytes.first(std::min(count, fBytes.size()));
    fBytes = fBytes.subspan(taken.size());
    return {taken.begin(), taken.end()};
  }

  // A byte that counts them, and the bytes.
  std::string Text() { return Bytes(Byte()); }

 private:
  std::span<const unsigned char> fBytes;
};

class ByteWriter {
 public:
  [[nodiscard]] const std::string& Written() const { return fBytes; }

  void Byte(std::size_t value) {
    if (value > 0xFF) throw std::length_error(std::to_string(value) + " is no byte");
    fBytes += static_cast<char>(value);
  }

  void Word(std::size_t value) {
    if (value > 0xFFFF) throw std::length_error(std::to_string(value) + " is no word");
    Byte(value & 0xFFU);
    Byte(value >> 8U);
  }

  void Number(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    Word(bits & 0xFFFFU);
    Word(bits >> 16U);
  }

  void Bytes(std::string_view bytes) { fBytes += bytes; }

  void Text(std::string_view text) {
    Byte(text.size());
    Bytes(text);
  }

 private:
  std::string fBytes;
};

}  // namespace strake::fuzz

// A bounds-checked view of reply bytes, and the buffer that it looks at. Replies
// are not to be believed: what lies past the end reads as zero, as in the cleared
// buffer that a short reply leaves behind.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace strake {

class ByteView {
 public:
  ByteView() = default;
  explicit ByteView(std::span<const unsigned char> bytes) : fBytes(bytes) {}

  [[nodiscard]] std::size_t Size() const { return fBytes.size(); }

  unsigned char operator[](std::size_t offset) const {
    return offset < fBytes.size() ? fBytes[offset] : static_cast<unsigned char>(0);
  }

  // At most `count` bytes from `offset` on, fewer where the view ends.
  [[nodiscard]] ByteView From(std::size_t offset, std::size_t count) const {
    const std::size_t begin = std::min(offset, fBytes.size());
    return ByteView(fBytes.subspan(begin, std::min(count, fBytes.size() - begin)));
  }

  // The text up to the first zero byte or the end of the view.
  [[nodiscard]] std::string_view Text() const {
    const std::string_view all(reinterpret_cast<const char*>(fBytes.data()), fBytes.size());
    return all.substr(0, all.find('\0'));
  }

  [[nodiscard]] std::uint16_t LittleEndian16(std::size_t offset) const {
    return static_cast<std::uint16_t>((*this)[offset] + ((*this)[offset + 1] << 8));
  }

  [[nodiscard]] std::uint16_t BigEndian16(std::size_t offset) const {
    return static_cast<std::uint16_t>(((*this)[offset] << 8) + (*this)[offset + 1]);
  }

 private:
  std::span<const unsigned char> fBytes;
};

// Two's complement, the one place where a sign is extended.
inline std::int32_t Signed(std::uint16_t word) { return static_cast<std::int16_t>(word); }
inline std::int32_t Signed(unsigned char byte) { return static_cast<std::int8_t>(byte); }

// The bytes that a reply is said to have brought, out of the buffer that it
// was read into. The length is the SP's word, an unsigned number: more than the
// buffer holds is the whole buffer.
inline ByteView ReceivedBytes(std::span<const unsigned char> buffer, int replyLength) {
  return ByteView(buffer).From(0, static_cast<unsigned int>(replyLength));
}

// The room for a reply, and the length that came back with it.
template <std::size_t Size>
struct ReplyBuffer {
  std::array<unsigned char, Size> bytes{};
  int length = 0;

  void Clear() { bytes.fill(0); }
  // The whole buffer: records are walked in it whatever length was reported.
  [[nodiscard]] ByteView Whole() const { return ByteView(bytes); }
  [[nodiscard]] ByteView Received() const { return ReceivedBytes(bytes, length); }
};

}  // namespace strake

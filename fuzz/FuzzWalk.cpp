#include "fuzz/ByteStream.h"
#include "fuzz/Harnesses.h"
#include "fuzz/WalkChecks.h"

#include <array>
#include <vector>

namespace strake::fuzz {
namespace {

// The buffers that readers offer: as many bytes as came, the network's, the
// dial readers'.
std::vector<unsigned char> BufferOf(std::span<const unsigned char> bytes, unsigned int kind) {
  constexpr std::array<std::size_t, 2> kSizes = {256, 350};
  // A block of its own, so that reading past its end is seen.
  std::vector<unsigned char> buffer(bytes.begin(), bytes.end());
  if (kind != 0) buffer.resize(kSizes.at(kind - 1));
  buffer.shrink_to_fit();
  return buffer;
}

}  // namespace

// One byte says which record and which buffer, two words are places in the
// reply, a number is the length that is reported; the rest is the reply.
int FuzzWalk(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kHead = 9;
  const std::span<const unsigned char> input(data, size);
  ByteReader in(input);
  const unsigned int kind = in.Byte();
  const std::size_t place = in.Word();
  const std::size_t other = in.Word();
  const std::int32_t length = in.Number();
  const std::vector<unsigned char> reply =
      BufferOf(input.subspan(std::min(kHead, input.size())), kind % 3);
  CheckView(ByteView(reply), reply, 0, reply.size());
  CheckView(ByteView(reply).From(place, other), reply, place, other);
  CheckView(ReceivedBytes(reply, length), reply, 0, static_cast<std::uint32_t>(length));
  CheckWalk(reply, kind / 3);
  CheckDecoders(ByteView(reply).From(place, other));
  CheckSensors(ByteView(reply), place, other);
  CheckTimes(ByteView(reply).From(place, other), ByteView(reply).From(other, place));
  return 0;
}

}  // namespace strake::fuzz

#include "platform/spdriver/CommandList.h"

#include "platform/server/SpDescription.h"

#include <algorithm>
#include <cstdint>

namespace strake::platform {
namespace {

constexpr std::size_t kHeaderBytes = 6;
constexpr std::size_t kRowBytes = kComponentIdentifierBytes + 1;
constexpr std::size_t kMostRows = kListBuffers * ((kListBufferBytes - kHeaderBytes) / kRowBytes);
static_assert(kMostComponents <= kMostRows);

// A count byte that no component has.
constexpr int kNoCount = 255;

std::array<unsigned char, kHeaderBytes> Header(std::size_t buffer, std::size_t rows) {
  return {'D',
          'C',
          'L',
          static_cast<unsigned char>('1' + buffer),
          static_cast<unsigned char>(rows & 0xFF),
          static_cast<unsigned char>(rows >> 8)};
}

std::size_t RowOffset(std::size_t row) { return kHeaderBytes + (row / kListBuffers) * kRowBytes; }

// The number of rows that all three headers agree on; 0 for buffers that hold
// no list.
std::size_t ReadRowCount(const ListView& buffers) {
  const std::size_t rows = buffers[0][4] + std::size_t{buffers[0][5]} * 256;
  if (rows > kMostRows) {
    return 0;
  }
  for (std::size_t buffer = 0; buffer < kListBuffers; ++buffer) {
    if (!std::ranges::equal(Header(buffer, rows), buffers.at(buffer).first(kHeaderBytes))) {
      return 0;
    }
  }
  return rows;
}

}  // namespace

void WriteCommandList(const std::map<Identifier, int>& components, const ListBuffers& buffers) {
  for (std::size_t buffer = 0; buffer < kListBuffers; ++buffer) {
    const std::span<unsigned char> out = buffers.at(buffer);
    std::ranges::fill(out, static_cast<unsigned char>(0));
    std::ranges::copy(Header(buffer, components.size()), out.begin());
  }
  std::size_t row = 0;
  for (const auto& [identifier, count] : components) {
    const auto out = buffers.at(row % kListBuffers).subspan(RowOffset(row), kRowBytes);
    std::ranges::copy(identifier, out.begin());
    out.back() = static_cast<unsigned char>(count);
    ++row;
  }
}

int CountInList(std::span<const unsigned char, kComponentIdentifierBytes> identifier,
                const ListView& buffers) {
  std::array<unsigned char, kComponentIdentifierBytes> wanted{};
  std::ranges::copy(identifier, wanted.begin());
  wanted.at(kInstanceNumberPlace) = 0;
  const std::size_t rows = ReadRowCount(buffers);
  for (std::size_t row = 0; row < rows; ++row) {
    const auto entry = buffers.at(row % kListBuffers).subspan(RowOffset(row), kRowBytes);
    if (!std::ranges::equal(entry.first(kComponentIdentifierBytes), wanted)) {
      continue;
    }
    return entry.back() == kNoCount ? -1 : entry.back();
  }
  return -1;
}

}  // namespace strake::platform

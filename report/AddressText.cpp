#include "report/AddressText.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

namespace strake::report {
namespace {

constexpr int kAddressBytes = 4;
constexpr unsigned int kHighestByte = 255;

// Four bytes in decimal, joined by points.
std::optional<std::uint32_t> ParseAddress(std::string_view text) {
  std::uint32_t address = 0;
  for (int index = 0; index < kAddressBytes; ++index) {
    if (index > 0) {
      if (text.empty() || text.front() != '.') {
        return std::nullopt;
      }
      text.remove_prefix(1);
    }
    std::uint32_t byte = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), byte);
    if (error != std::errc() || byte > kHighestByte) {
      return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
    address = (address << 8U) | byte;
  }
  return text.empty() ? std::optional<std::uint32_t>(address) : std::nullopt;
}

// Empty when a one follows a zero.
std::optional<int> CountLeadingOnes(std::uint32_t mask) {
  int ones = 0;
  for (; (mask & 0x80000000U) != 0; mask <<= 1U) {
    ++ones;
  }
  return mask == 0 ? std::optional<int>(ones) : std::nullopt;
}

}  // namespace

std::string AddressWithMask(const std::string& address, const std::string& mask) {
  if (const std::optional<std::uint32_t> parsed = ParseAddress(mask)) {
    if (const std::optional<int> ones = CountLeadingOnes(*parsed)) {
      return address + "/" + std::to_string(*ones) + " (" + mask + ")";
    }
  }
  return address + " mask " + mask;
}

}  // namespace strake::report

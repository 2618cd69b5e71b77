// Writes element records, the form in which an SP gives most of its
// configuration: each element is an ID, a second header byte, a data length
// and the data, and follows the one before without a gap.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace strake::platform {

inline constexpr std::size_t kMostElementData = 255;
// A string element's data holds the maximum before the text and a zero after it.
inline constexpr std::size_t kMostElementText = kMostElementData - 2;

// Both throw std::length_error for data or a text that is too long.
std::string PlainElement(unsigned char id, unsigned char header, std::string_view data);
std::string StringElement(unsigned char id, unsigned char header, std::string_view text,
                          unsigned char maximum);

}  // namespace strake::platform

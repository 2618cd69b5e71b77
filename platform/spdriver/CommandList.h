// The list of commands that a service processor supports, as it lies in three
// buffers of 4096 bytes between the call that builds it and the one that looks
// a component up.
//
// Each buffer begins with a header of six bytes: 'D', 'C', 'L', the buffer's
// number '1' to '3', and the number of components in the whole list, low byte
// first. Rows of six bytes follow: the component's five identifier bytes, the
// fourth of them 0, and its instance count. Row r of the list lies in buffer
// r % 3 at place r / 3. The rest is zero.
#pragma once

#include "platform/server/Reply.h"

#include <array>
#include <cstddef>
#include <map>
#include <span>

namespace strake::platform {

inline constexpr std::size_t kListBuffers = 3;
inline constexpr std::size_t kListBufferBytes = 4096;
inline constexpr std::size_t kComponentIdentifierBytes = 5;
// The place of the instance number, which plays no part in a match.
inline constexpr std::size_t kInstanceNumberPlace = 3;

using ListBuffers = std::array<std::span<unsigned char, kListBufferBytes>, kListBuffers>;
using ListView = std::array<std::span<const unsigned char, kListBufferBytes>, kListBuffers>;

// The components must be at most kMostComponents.
void WriteCommandList(const std::map<Identifier, int>& components, const ListBuffers& buffers);

// The component's instance count; -1 when the buffers hold no list or the list
// does not name the component.
int CountInList(std::span<const unsigned char, kComponentIdentifierBytes> identifier,
                const ListView& buffers);

}  // namespace strake::platform

// What the element walk and the decoders promise about any bytes, checked
// (fuzz/Check.h) against a plain reading of the same bytes
// (tests/support/PlainRecords.h).
#pragma once

#include "plugin/spaccess/ByteView.h"

#include <cstddef>
#include <span>

namespace strake::fuzz {

using Bytes = std::span<const unsigned char>;

// The view holds the bytes of `all` from `begin` on, at most `count`; what lies
// past its end reads as zero, and its text ends before the first zero.
void CheckView(ByteView view, Bytes all, std::size_t begin, std::size_t count);
// Walks a record as one of the plain records (`number` modulo how many there
// are), and on until it must have come round.
void CheckWalk(Bytes record, std::size_t number);
// Every field of every record decodes the value.
void CheckDecoders(ByteView value);
void CheckSensors(ByteView reply, std::size_t firstByte, std::size_t number);
void CheckTimes(ByteView clock, ByteView timeZone);

}  // namespace strake::fuzz

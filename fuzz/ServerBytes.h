// A whole server and what is asked of it as bytes, the input of the query
// harness. Any bytes are a server; every server that fits in can be written, so
// that seeds are made from descriptions.
//
// Numbers are low byte first, a text is a byte that counts it and its bytes.
// In order:
//
//   flags        bits 0-1 the kind (Orlo, Tavit, both, none), bits 2-7: does not
//                communicate, management server runs, Dorn library, no command
//                list, machine type throws, system name throws
//   trouble      what goes wrong, its place in kFaults, in four bits; unless it is
//                none, a word follows: at which boundary call, counted from 1
//   queries      their number - 1 in two bits; each: the number of its classes in
//                four bits, and of each its place in the catalogue, or from there
//                to 15 a text
//   host         machine type, system name, system creation class name: texts
//   count        of service processors: a wide number
//   components   their number; each: a command, a wide number modulo 255. Only
//                identifiers of five bytes count
//   instances    their number in three bits; each: the number of its commands;
//                each: the command and its replies
//   Kestle       the number of codes; each: the code and its replies
//
//   wide number  below 240: its value in two bits; else a 32-bit number follows
//   command      its number in seven bits (KnownCommands.h), with the instance number when it has
//                one; a text behind a number that no command has
//   replies      their number - 1 in three bits, and that many of
//   reply        bits 0-1 the form: bytes behind a byte that counts them, behind a
//                word; a text and how many bytes it is repeated over (a word); a
//                ramp's first byte and its length (a word). Bit 2: the send fails.
//                Bit 3: a 32-bit number follows, the length that is reported
#pragma once

#include "platform/boundary/BoundaryObserver.h"
#include "platform/server/ServerDescription.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace strake::fuzz {

using Query = std::vector<std::string>;

// One boundary call that fails.
struct Trouble {
  platform::Fault fault = platform::Fault::None;
  std::uint16_t atCall = 0;
};

struct ServerCase {
  platform::ServerDescription server;
  std::vector<Query> queries;
  Trouble trouble;
};

inline constexpr std::size_t kMostQueries = 4;
inline constexpr std::size_t kMostClasses = 15;  // of a query
inline constexpr std::size_t kMostInstances = 7;
inline constexpr std::size_t kMostReplies = 8;  // of a command
inline constexpr std::size_t kMostReplyBytes = 0x1FFF;

// In the order in which the form numbers them: a new one stands behind the others.
inline constexpr std::array kFaults = {
    platform::Fault::None,
    platform::Fault::StandardException,
    platform::Fault::OtherException,
    platform::Fault::EmptyHandle,
    platform::Fault::SendFails,
    platform::Fault::SendIsEmpty,
    platform::Fault::OutOfMemory,
    platform::Fault::UntouchedHandle,
    platform::Fault::UntouchedLength,
};

// No latency, and a clock that stands.
ServerCase DecodeServer(std::span<const unsigned char> bytes);

// Description, clock and latency are left out. Throws std::length_error for a
// server that the form has no room for.
std::string EncodeServer(const ServerCase& serverCase);

}  // namespace strake::fuzz

// The identifiers of instance-numbered dot commands.
//
// They are process-wide and written in place: whoever addresses instance n
// overwrites the fourth byte right before the send, and the byte stays so. The
// look-ups that count instances pass the same identifiers as the last reader
// left them, over queries too. So there is one of each, here, and nobody copies
// them.
#pragma once

#include "plugin/spaccess/DotIdentifier.h"

#include <array>

namespace strake {

struct SharedIdentifiers {
  DotIdentifier serialPort = {4, 1, 2, 1, 255};
  DotIdentifier dialout = {4, 1, 3, 1, 255};  // also counted
  DotIdentifier dialin = {4, 1, 4, 1, 255};   // also counted
  DotIdentifier dialinAuthority = {4, 1, 4, 1, 9};
  DotIdentifier dialinLastLogin = {4, 1, 4, 1, 3};
  DotIdentifier dialOutAlerts = {4, 2, 1, 255};
  DotIdentifier networkInterface = {4, 9, 1, 1, 255};  // also counted
  // By the place of the DHCP value in its reader's table.
  std::array<DotIdentifier, 9> dhcpValues = {{
      {4, 9, 1, 1, 16, 1},
      {4, 9, 1, 1, 16, 2},
      {4, 9, 1, 1, 16, 3},
      {4, 9, 1, 1, 16, 4},
      {4, 9, 1, 1, 16, 5},
      {4, 9, 1, 1, 16, 6},
      {4, 9, 1, 1, 16, 7},
      {4, 9, 1, 1, 16, 8},
      {4, 9, 1, 1, 16, 9},
  }};
};

inline SharedIdentifiers& Identifiers() {
  static constinit SharedIdentifiers identifiers;
  return identifiers;
}

}  // namespace strake

// The identifiers of instance-numbered dot commands.
//
// They are process-wide and written in place: whoever addresses instance n
// overwrites the fourth byte right before the send, and the byte stays so. The
// look-ups that count instances pass the same identifiers as the last reader
// left them, over queries too, and a host's trail shows that. So there is one
// of each, here, and nobody copies them.
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace strake {

struct SharedIdentifier {
  std::array<unsigned char, 6> bytes;
  std::size_t length;

  void Address(unsigned char instance) { bytes[3] = instance; }
  [[nodiscard]] std::span<unsigned char> Bytes() { return std::span(bytes).first(length); }
};

struct SharedIdentifiers {
  SharedIdentifier serialPort = {{4, 1, 2, 1, 255}, 5};
  SharedIdentifier dialout = {{4, 1, 3, 1, 255}, 5};  // also counted
  SharedIdentifier dialin = {{4, 1, 4, 1, 255}, 5};   // also counted
  SharedIdentifier dialinAuthority = {{4, 1, 4, 1, 9}, 5};
  SharedIdentifier dialinLastLogin = {{4, 1, 4, 1, 3}, 5};
  SharedIdentifier dialOutAlerts = {{4, 2, 1, 255}, 4};
  SharedIdentifier networkInterface = {{4, 9, 1, 1, 255}, 5};  // also counted
  // By the place of the DHCP value in its reader's table.
  std::array<SharedIdentifier, 9> dhcpValues = {{
      {{4, 9, 1, 1, 16, 1}, 6},
      {{4, 9, 1, 1, 16, 2}, 6},
      {{4, 9, 1, 1, 16, 3}, 6},
      {{4, 9, 1, 1, 16, 4}, 6},
      {{4, 9, 1, 1, 16, 5}, 6},
      {{4, 9, 1, 1, 16, 6}, 6},
      {{4, 9, 1, 1, 16, 7}, 6},
      {{4, 9, 1, 1, 16, 8}, 6},
      {{4, 9, 1, 1, 16, 9}, 6},
  }};
};

SharedIdentifiers& Identifiers();

}  // namespace strake

// Where in a reply names, texts and addresses stand.
#pragma once

#include "platform/server/Reply.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace strake::replay {

enum class PieceKind { Text, Address, MacAddress };

struct Piece {
  PieceKind kind = PieceKind::Text;
  std::size_t offset = 0;
  std::size_t size = 0;
};

// In the order of their offsets; none overlaps another. What the records have no
// place for is a piece where it reads like text. Bytes that lay out a record and
// those of codes, readings and clocks are in none.
std::vector<Piece> PiecesOfDotReply(const platform::Identifier& identifier, std::string_view bytes);
std::vector<Piece> PiecesOfKestleReply(unsigned char code, std::string_view bytes);

}  // namespace strake::replay

// Walks an element record, the form of most Orlo configuration replies: a run
// of elements without gaps, each a vector ID, a second header byte, a data
// length L and L data bytes. A string element begins its data with a maximum
// length M; its characters follow from offset 4.
#pragma once

#include "plugin/spaccess/ByteView.h"

#include <algorithm>
#include <cstddef>

namespace strake {

class ElementCursor {
 public:
  // The record is the whole reply buffer; a length that the SP reports says
  // nothing about the elements in it.
  explicit ElementCursor(ByteView record) : fRecord(record) {}

  [[nodiscard]] unsigned char VectorId() const { return fRecord[fStart]; }
  [[nodiscard]] unsigned char Header() const { return fRecord[fStart + kHeader]; }
  [[nodiscard]] unsigned char DataLength() const { return fRecord[fStart + kLength]; }
  [[nodiscard]] unsigned char MaximumLength() const { return fRecord[fStart + kData]; }

  // A plain element's data.
  [[nodiscard]] ByteView Data() const { return fRecord.From(fStart + kData, DataLength()); }

  // A string element's characters, L of them. L counts the byte M although the
  // characters begin behind it, so a string without its closing zero takes in
  // the next element's first byte.
  [[nodiscard]] ByteView Characters() const {
    return fRecord.From(fStart + kCharacters, DataLength());
  }

  // The same, no more than M.
  [[nodiscard]] ByteView BoundedCharacters() const {
    return fRecord.From(fStart + kCharacters, std::min(DataLength(), MaximumLength()));
  }

  // The position has eight bits: an element that would begin at 256 or beyond
  // begins 256 bytes earlier.
  void Advance() { fStart = static_cast<unsigned char>(fStart + kData + DataLength()); }

 private:
  static constexpr std::size_t kHeader = 1;
  static constexpr std::size_t kLength = 2;
  static constexpr std::size_t kData = 3;
  static constexpr std::size_t kCharacters = 4;

  ByteView fRecord;
  unsigned char fStart = 0;
};

}  // namespace strake

// Buffers that an SP may leave behind, well-formed and not.
#pragma once

#include "tests/support/PlainRecords.h"

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace strake::tests {

class RandomRecords {
 public:
  explicit RandomRecords(std::uint64_t seed) : fState(seed) {}  // not 0

  // A buffer of the size with the record's elements in it, or with garbage.
  PlainBytes Next(const PlainRecord& record, std::size_t size) {
    const std::size_t kind = Below(10);
    if (kind <= 2) {
      return Garbage(kind, size);
    }
    PlainBytes bytes = WellFormed(record);
    if (kind == 3) {
      bytes.resize(Below(bytes.size() + 1));  // a short reply
    }
    bytes.resize(size);
    if (kind == 4) {
      for (std::size_t i = Below(5); i > 0; --i) {
        bytes[Below(size)] = Any();
      }
    }
    return bytes;
  }

 private:
  // The same numbers everywhere, and cheap (xorshift64*).
  std::uint64_t Draw() {
    fState ^= fState >> 12U;
    fState ^= fState << 25U;
    fState ^= fState >> 27U;
    return (fState * 0x2545F4914F6CDD1DU) >> 32U;
  }
  // Less than `limit`, which is not 0.
  std::size_t Below(std::size_t limit) { return Draw() % limit; }
  unsigned char Any() { return static_cast<unsigned char>(Draw()); }

  PlainBytes Garbage(std::size_t kind, std::size_t size) {
    PlainBytes bytes(size);
    for (unsigned char& byte : bytes) {
      switch (kind) {
        case 0:
          byte = Any();
          break;
        case 1:  // short elements
          byte = static_cast<unsigned char>(Below(8));
          break;
        default:
          byte = Below(4) == 0 ? static_cast<unsigned char>(0xFF) : Any();
          byte = Below(4) == 0 ? static_cast<unsigned char>(0) : byte;
      }
    }
    return bytes;
  }

  PlainBytes WellFormed(const PlainRecord& record) {
    PlainBytes bytes;
    // Some records are long enough to come around, some are as SPs write them.
    const std::size_t usual = Below(3) == 0 ? 60 : 12;
    for (const PlainField& field : record.fields) {
      PlainBytes data(Length(usual));
      for (unsigned char& byte : data) {
        byte = Below(8) == 0 ? static_cast<unsigned char>(Below(10)) : Any();
      }
      if (field.form != PlainForm::Data && !data.empty()) {
        data.front() = Maximum(data.size());
        if (Below(4) != 0) {
          data.back() = 0;
        }
      }
      bytes.push_back(Any());
      bytes.push_back(Any());
      bytes.push_back(static_cast<unsigned char>(data.size()));
      bytes.insert(bytes.end(), data.begin(), data.end());
    }
    return bytes;
  }

  std::size_t Length(std::size_t usual) {
    switch (Below(40)) {
      case 0:
        return 0;
      case 1:
        return 255;
      case 2:
        return Below(256);
      default:
        return 1 + Below(usual);
    }
  }

  unsigned char Maximum(std::size_t length) {
    const std::size_t choices[] = {0, 1, length - 1, length, length + 1, 255, Below(256)};
    return static_cast<unsigned char>(choices[Below(std::size(choices))]);
  }

  std::uint64_t fState;
};

}  // namespace strake::tests

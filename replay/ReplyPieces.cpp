#include "replay/ReplyPieces.h"

#include "describe/ReplyLayout.h"
#include "findings/Commands.h"
#include "plugin/environ/KestleSensors.h"

#include <algorithm>
#include <optional>
#include <span>

namespace strake::replay {
namespace {

// What a byte of a reply is for.
enum class Use { Unknown, Kept, Text, Address, MacAddress };

// The longest value that is neither text nor address: a clock.
constexpr std::size_t kClockBytes = 7;
constexpr std::size_t kAddressBytes = 4;
constexpr std::size_t kMacAddressBytes = 6;
// Bytes of unknown use that look like a text of so many characters are one.
constexpr std::size_t kShortestText = 4;

// The use of every byte of one reply.
class Uses {
 public:
  explicit Uses(std::string_view bytes) : fBytes(bytes), fUses(bytes.size(), Use::Unknown) {}

  void Mark(std::size_t offset, std::size_t size, Use use) {
    std::ranges::fill(From(offset, size), use);
  }
  // Where nothing else is known: a byte that is for two things is text or address.
  void Keep(std::size_t offset, std::size_t size) {
    std::ranges::replace(From(offset, size), Use::Unknown, Use::Kept);
  }
  // A value of this decoder; its reader looks at no byte behind it.
  void MarkValue(std::size_t offset, std::size_t size, ValueDecoder decode);

  [[nodiscard]] std::vector<Piece> Pieces() const;

 private:
  [[nodiscard]] std::span<Use> From(std::size_t offset, std::size_t size) {
    const std::size_t begin = std::min(offset, fUses.size());
    return std::span(fUses).subspan(begin, std::min(size, fUses.size() - begin));
  }
  // How many bytes from there are for the same and, of a text, one text.
  [[nodiscard]] std::size_t RunFrom(std::size_t offset) const;
  [[nodiscard]] bool IsPrintable(std::size_t offset) const {
    return fBytes[offset] >= ' ' && fBytes[offset] <= '~';
  }

  std::string_view fBytes;
  std::vector<Use> fUses;
};

void Uses::MarkValue(std::size_t offset, std::size_t size, ValueDecoder decode) {
  if (decode == &DecodeText) {
    Mark(offset, size, Use::Text);
  } else if (decode == DecodeAddress) {
    Mark(offset, std::min(size, kAddressBytes), Use::Address);
  } else if (decode == DecodeMacDecimal || decode == &DecodeMacHexadecimal) {
    Mark(offset, std::min(size, kMacAddressBytes), Use::MacAddress);
  } else {
    Keep(offset, std::min(size, kClockBytes));
  }
}

std::size_t Uses::RunFrom(std::size_t offset) const {
  const Use use = fUses[offset];
  std::size_t end = offset;
  while (end < fUses.size() && fUses[end] == use && (use != Use::Text || fBytes[end] != '\0') &&
         (use != Use::Unknown || IsPrintable(end))) {
    ++end;
  }
  return end - offset;
}

std::vector<Piece> Uses::Pieces() const {
  std::vector<Piece> pieces;
  for (std::size_t offset = 0; offset < fUses.size();) {
    const std::size_t run = RunFrom(offset);
    const Use use = fUses[offset];
    if (use == Use::Address) {
      pieces.push_back({PieceKind::Address, offset, run});
    } else if (use == Use::MacAddress) {
      pieces.push_back({PieceKind::MacAddress, offset, run});
    } else if ((use == Use::Text && run > 0) || (use == Use::Unknown && run >= kShortestText)) {
      pieces.push_back({PieceKind::Text, offset, run});
    }
    offset += std::max<std::size_t>(run, 1);
  }
  return pieces;
}

// Goes from element to element as the plug-in's reader does, whose position has
// eight bits.
class ElementPlaces {
 public:
  explicit ElementPlaces(std::string_view bytes) : fBytes(bytes) {}

  [[nodiscard]] std::size_t Start() const { return fStart; }
  [[nodiscard]] std::size_t LengthPlace() const { return fStart + 2U; }
  [[nodiscard]] std::size_t DataPlace() const { return fStart + 3U; }
  [[nodiscard]] std::size_t DataLength() const {
    return LengthPlace() < fBytes.size() ? static_cast<unsigned char>(fBytes[LengthPlace()]) : 0;
  }
  void Advance() { fStart = static_cast<unsigned char>(DataPlace() + DataLength()); }

 private:
  std::string_view fBytes;
  unsigned char fStart = 0;
};

void MarkRecord(Uses& uses, std::string_view bytes, const RecordLayout& layout) {
  ElementPlaces values(bytes);
  for (const RecordField& field : layout.fields) {
    uses.Keep(values.Start(), 2);
    if (field.form == FieldForm::Plain) {
      uses.MarkValue(values.DataPlace(), values.DataLength(), field.decode);
    } else {
      // All behind the maximum: what it cuts off is text too.
      uses.Mark(values.DataPlace(), values.DataLength(), Use::Text);
    }
    values.Advance();
  }
  // Last, so that the elements stay where they are however they overlap.
  ElementPlaces lengths(bytes);
  for (const RecordField& field : layout.fields) {
    uses.Mark(lengths.LengthPlace(), field.form == FieldForm::Plain ? 1 : 2, Use::Kept);
    lengths.Advance();
  }
}

}  // namespace

std::vector<Piece> PiecesOfDotReply(const platform::Identifier& identifier,
                                    std::string_view bytes) {
  Uses uses(bytes);
  const std::span key(reinterpret_cast<const unsigned char*>(identifier.data()), identifier.size());
  const std::optional<findings::KnownCommand> known = findings::FindCommand(key);
  if (!known || std::ranges::equal(key, kPresenceTest.Bytes())) {
    return uses.Pieces();
  }
  if (const RecordLayout* const layout = describe::FindRecord(known->command->name)) {
    MarkRecord(uses, bytes, *layout);
  } else {
    uses.MarkValue(0, bytes.size(), describe::FindDecoder(known->command->name));
  }
  return uses.Pieces();
}

std::vector<Piece> PiecesOfKestleReply(unsigned char code, std::string_view bytes) {
  const bool isList =
      code == kVoltageRequest.code || code == kTemperatureRequest.code || code == kFanRequest.code;
  return isList ? std::vector<Piece>() : Uses(bytes).Pieces();
}

}  // namespace strake::replay

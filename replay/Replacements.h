// What stands for a text, an address: always the same for the same one, of the
// same length and form, and nothing that it could be told from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>

namespace strake::replay {

// Shorter ones are replaced too; what stands for them may be another's text.
inline constexpr std::size_t kShortestOriginal = 4;

class Replacements {
 public:
  // Another key, other replacements.
  explicit Replacements(std::uint64_t key) : fKey(key) {}

  // No replacement of a text holds this one.
  void Avoid(std::string_view original);

  // Letters stand for letters, capitals for capitals, digits for digits; other
  // characters stay, unless there are no others. The same word is replaced by the
  // same one within all texts, whatever its capitals, and so is an address.
  [[nodiscard]] std::string OfText(std::string_view text) const;
  // An IP address's bytes: addresses that begin alike do so afterwards, and each
  // byte has as many decimal digits as before; 0 stays 0. So do network masks.
  [[nodiscard]] std::string OfAddress(std::string_view bytes) const;
  // A MAC address's bytes, in the same way.
  [[nodiscard]] std::string OfMacAddress(std::string_view bytes) const;

 private:
  [[nodiscard]] bool HoldsAnOriginal(std::string_view text) const;

  std::uint64_t fKey;
  std::set<std::string, std::less<>> fOriginals;
};

}  // namespace strake::replay

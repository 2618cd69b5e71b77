#include "replay/Replacements.h"

#include "text/DotNotation.h"
#include "text/Utf8.h"

#include <algorithm>
#include <optional>

namespace strake::replay {
namespace {

// A number that says nothing of the ones that it is made of.
std::uint64_t Mix(std::uint64_t key, std::uint64_t number) {
  std::uint64_t mixed = key + 0x9E3779B97F4A7C15U * (number + 1);
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31U);
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }
bool IsUpper(char character) { return character >= 'A' && character <= 'Z'; }
bool IsLower(char character) { return character >= 'a' && character <= 'z'; }
bool IsOfWord(char character) {
  return IsDigit(character) || IsUpper(character) || IsLower(character);
}
bool IsMark(char character) { return character > ' ' && character <= '~' && !IsOfWord(character); }

char ToLower(char character) {
  return IsUpper(character) ? static_cast<char>(character - 'A' + 'a') : character;
}

// Another value of the range first to last.
unsigned int Another(unsigned int value, unsigned int first, unsigned int last,
                     std::uint64_t random) {
  const unsigned int size = last - first + 1;
  return first + (value - first + 1 + static_cast<unsigned int>(random % (size - 1))) % size;
}

char AnotherCharacter(char character, char first, char last, std::uint64_t random) {
  return static_cast<char>(Another(static_cast<unsigned char>(character),
                                   static_cast<unsigned char>(first),
                                   static_cast<unsigned char>(last), random));
}

char AnotherOfItsKind(char character, std::uint64_t random) {
  if (IsDigit(character)) {
    return AnotherCharacter(character, '0', '9', random);
  }
  return IsUpper(character) ? AnotherCharacter(character, 'A', 'Z', random)
                            : AnotherCharacter(character, 'a', 'z', random);
}

std::string ReplaceWord(std::string_view word, std::uint64_t key) {
  for (const char character : word) {
    key = Mix(key, static_cast<unsigned char>(ToLower(character)));
  }
  std::string replaced;
  for (const char character : word) {
    key = Mix(key, 0);
    replaced += AnotherOfItsKind(character, key);
  }
  return replaced;
}

// Keeps the number of decimal digits, and a zero, which ends a text.
unsigned char AnotherByte(unsigned char byte, std::uint64_t random) {
  if (byte < 10) {
    return static_cast<unsigned char>(byte == 0 ? 0 : Another(byte, 1, 9, random));
  }
  return static_cast<unsigned char>(byte < 100 ? Another(byte, 10, 99, random)
                                               : Another(byte, 100, 255, random));
}

// What stands for a byte depends on those before it.
std::string ReplaceBytes(std::string_view bytes, std::uint64_t key) {
  std::string replaced;
  for (const char character : bytes) {
    const auto byte = static_cast<unsigned char>(character);
    replaced += static_cast<char>(AnotherByte(byte, key));
    key = Mix(key, byte);
  }
  return replaced;
}

bool IsZero(std::string_view bytes) {
  return std::ranges::all_of(bytes, [](char byte) { return byte == '\0'; });
}

bool IsMask(std::string_view bytes) {
  if (bytes.size() != 4 || bytes.front() != '\xFF') {
    return false;
  }
  std::uint32_t mask = 0;
  for (const char byte : bytes) {
    mask = mask << 8U | static_cast<unsigned char>(byte);
  }
  return (~mask & (~mask + 1U)) == 0;
}

constexpr std::uint64_t kWords = 1;
constexpr std::uint64_t kAddresses = 2;
constexpr std::uint64_t kMacAddresses = 3;
constexpr std::uint64_t kOthers = 4;

// Four numbers, not all of them 0.
std::optional<std::string> AddressOf(std::string_view numbers) {
  std::optional<std::string> bytes = text::ParseDotNotation(numbers);
  return bytes && bytes->size() == 4 && !IsZero(*bytes) ? bytes : std::nullopt;
}

// Of the characters that are in no word.
std::string ReplaceOther(std::string_view front, std::uint64_t key) {
  std::string replaced(front);
  // The last byte of a character of many: any of these makes another one.
  constexpr unsigned int kFirst = 0xA0;
  constexpr unsigned int kLast = 0xBF;
  const auto last = static_cast<unsigned char>(front.back());
  if (front.size() > 1) {
    replaced.back() =
        static_cast<char>(Another(std::max<unsigned int>(last, kFirst), kFirst, kLast, key));
  } else if (last >= 0x80) {
    replaced.back() =
        static_cast<char>(Another(std::max<unsigned int>(last, kFirst), kFirst, 0xFF, key));
  }
  return replaced;
}

std::size_t CountFront(std::string_view text, bool (*belongs)(char character)) {
  return static_cast<std::size_t>(std::ranges::find_if_not(text, belongs) - text.begin());
}

// Takes words, addresses and other characters from the front of a text.
std::string ReplaceEach(std::string_view text, std::uint64_t key) {
  std::string replaced;
  while (!text.empty()) {
    const std::size_t numbers =
        CountFront(text, [](char character) { return IsDigit(character) || character == '.'; });
    const std::size_t word = CountFront(text, IsOfWord);
    std::size_t taken = numbers;
    if (const auto address = AddressOf(text.substr(0, numbers))) {
      replaced += text::DotNotationOf(ReplaceBytes(*address, Mix(key, kAddresses)));
    } else if (word != 0) {
      taken = word;
      replaced += ReplaceWord(text.substr(0, word), Mix(key, kWords));
    } else {
      taken = std::max<std::size_t>(text::DecodeFront(text).length, 1);
      replaced += ReplaceOther(text.substr(0, taken), Mix(key, kOthers + text.size()));
    }
    text.remove_prefix(taken);
  }
  return replaced;
}

// A text that has nothing but marks.
std::string ReplaceMarks(std::string_view text, std::uint64_t key) {
  static constexpr std::string_view kMarks = "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
  std::string replaced;
  for (const char character : text) {
    key = Mix(key, static_cast<unsigned char>(character));
    const std::size_t place = kMarks.find(character);
    replaced +=
        IsMark(character)
            ? kMarks.at(Another(static_cast<unsigned int>(place), 0, kMarks.size() - 1, key))
            : character;
  }
  return replaced;
}

std::string Replace(std::string_view text, std::uint64_t key) {
  std::string replaced = ReplaceEach(text, key);
  return replaced == text ? ReplaceMarks(text, key) : replaced;
}

bool IsShown(char character) { return static_cast<unsigned char>(character) > ' '; }

}  // namespace

void Replacements::Avoid(std::string_view original) {
  if (original.size() >= kShortestOriginal && std::ranges::any_of(original, IsShown)) {
    fOriginals.emplace(original);
  }
}

bool Replacements::HoldsAnOriginal(std::string_view text) const {
  for (; text.size() >= kShortestOriginal; text.remove_prefix(1)) {
    // What stands in front of the text in this order, the longest last.
    for (auto original = fOriginals.lower_bound(text.substr(0, kShortestOriginal));
         original != fOriginals.end() && *original <= text; ++original) {
      if (text.starts_with(*original)) {
        return true;
      }
    }
  }
  return false;
}

std::string Replacements::OfText(std::string_view text) const {
  constexpr std::uint64_t kMostAttempts = 1000;
  for (std::uint64_t attempt = 0; attempt < kMostAttempts; ++attempt) {
    std::string replaced = Replace(text, fKey + attempt);
    if (!HoldsAnOriginal(replaced)) {
      return replaced;
    }
  }
  std::string blank(text.size(), '*');
  return HoldsAnOriginal(blank) ? std::string(text.size(), '#') : blank;
}

std::string Replacements::OfAddress(std::string_view bytes) const {
  return IsZero(bytes) || IsMask(bytes) ? std::string(bytes)
                                        : ReplaceBytes(bytes, Mix(fKey, kAddresses));
}

std::string Replacements::OfMacAddress(std::string_view bytes) const {
  return IsZero(bytes) ? std::string(bytes) : ReplaceBytes(bytes, Mix(fKey, kMacAddresses));
}

}  // namespace strake::replay

#include "plugin/frame/LogLine.h"

#include "plugin/host/TRootObject.h"

#include <array>

namespace strake {
namespace {

// The decimal text of every byte, right-aligned.
struct ByteText {
  std::array<char, 3> digits;
  unsigned char length;
};

constexpr std::array<ByteText, 256> MakeByteTexts() {
  std::array<ByteText, 256> texts{};
  for (unsigned int byte = 0; byte < texts.size(); ++byte) {
    const auto digit = [](unsigned int value) { return static_cast<char>('0' + value % 10); };
    texts.at(byte) = {.digits = {digit(byte / 100), digit(byte / 10), digit(byte)},
                      .length = static_cast<unsigned char>(byte >= 100  ? 3
                                                           : byte >= 10 ? 2
                                                                        : 1)};
  }
  return texts;
}

constexpr std::array<ByteText, 256> kByteTexts = MakeByteTexts();

}  // namespace

void AppendPart(std::string& text, unsigned char number) {
  const ByteText& entry = kByteTexts.at(number);
  const std::string_view digits(entry.digits.data(), entry.digits.size());
  text.append(digits.substr(digits.size() - entry.length));
}

std::string& LineInTheMaking() {
  static std::string line;
  return line;
}

void WriteLogLine(int level, const std::string& message) {
  if (!message.empty()) {
    NVELKZEV20::TRootObject::GetCoreLogger()->Log(level, message);
  }
}

}  // namespace strake

#include "fuzz/ByteStream.h"
#include "fuzz/Seeds.h"

namespace strake::fuzz {
namespace {

// As FuzzWalk.cpp reads it.
std::string Input(std::size_t kind, std::size_t place, std::size_t other, const std::string& bytes,
                  std::int32_t length) {
  ByteWriter out;
  out.Byte(kind);
  out.Word(place);
  out.Word(other);
  out.Number(length);
  out.Bytes(bytes);
  return out.Written();
}

std::string Element(unsigned int length, std::size_t count, char data) {
  return std::string({1, 1, static_cast<char>(length)}) + std::string(count, data);
}

}  // namespace

Seeds WalkSeeds(const std::vector<NamedServer>& servers) {
  // Shorter replies teach a walk nothing.
  constexpr std::size_t kLeastBytes = 7;
  Seeds seeds;
  std::size_t number = 0;
  const auto add = [&](const std::string& name, const std::string& bytes) {
    const std::size_t kind = number++ % 21;
    seeds[name] = Input(kind, number % 40, 255, bytes, static_cast<std::int32_t>(bytes.size()));
  };
  for (const NamedServer& named : servers) {
    const auto addReplies = [&](const platform::ReplySequence& replies) {
      const std::string& bytes = replies.front().bytes;
      if (bytes.size() >= kLeastBytes) add(named.name + "-" + std::to_string(number), bytes);
    };
    for (const auto& commands : named.server.sp.instances) {
      for (const auto& [identifier, replies] : commands) addReplies(replies);
    }
    for (const auto& [code, replies] : named.server.sp.kestleCommands) addReplies(replies);
  }
  for (const unsigned int length : {0U, 1U, 127U, 128U, 252U, 253U, 254U, 255U}) {
    add("length-" + std::to_string(length), Element(length, 253, 'a'));
    add("length-" + std::to_string(length) + "-cut", Element(length, 2, '\xFF'));
  }
  seeds["empty"] = "";
  seeds["far-places"] = Input(0, 0xFFFF, 0xFFFF, "abc", INT32_MIN);
  return seeds;
}

}  // namespace strake::fuzz

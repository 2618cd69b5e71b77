#include "cim/Catalogue.h"
#include "fuzz/ByteStream.h"
#include "fuzz/KnownCommands.h"
#include "fuzz/ServerBytes.h"

#include <algorithm>

namespace strake::fuzz {

using platform::Identifier;
using platform::Reply;
using platform::ReplySequence;

namespace {

bool Bit(unsigned int bits, unsigned int place) { return (bits >> place & 1U) != 0; }

std::int32_t ReadWide(ByteReader& in) {
  const unsigned int value = in.Byte();
  return value < 240 ? static_cast<std::int32_t>(value & 3U) : in.Number();
}

Identifier ReadCommand(ByteReader& in) {
  const KnownCommand* const command = CommandNumbered(in.Byte());
  if (command == nullptr) return in.Text();
  Identifier identifier = command->identifier;
  if (command->isNumbered) identifier.at(kInstancePlace) = static_cast<char>(in.Byte());
  return identifier;
}

std::string ReadRepeated(ByteReader& in) {
  const std::string pattern = in.Text();
  std::string bytes(in.Word() & kMostReplyBytes, '\0');
  if (pattern.empty()) return bytes;
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = pattern[i % pattern.size()];
  return bytes;
}

std::string ReadRamp(ByteReader& in) {
  unsigned char byte = in.Byte();
  std::string bytes(in.Word() & kMostReplyBytes, '\0');
  for (char& place : bytes) place = static_cast<char>(byte++);
  return bytes;
}

std::string ReadReplyBytes(ByteReader& in, unsigned int form) {
  switch (form) {
    case 0:
      return in.Text();
    case 1:
      return in.Bytes(in.Word() & kMostReplyBytes);
    case 2:
      return ReadRepeated(in);
    default:
      return ReadRamp(in);
  }
}

Reply ReadReply(ByteReader& in) {
  const unsigned int bits = in.Byte();
  Reply reply;
  reply.bytes = ReadReplyBytes(in, bits & 3U);
  reply.succeeds = !Bit(bits, 2);
  reply.length = Bit(bits, 3) ? in.Number() : static_cast<int>(reply.bytes.size());
  return reply;
}

ReplySequence ReadReplies(ByteReader& in) {
  ReplySequence replies(1U + in.Byte() % kMostReplies);
  for (Reply& reply : replies) reply = ReadReply(in);
  return replies;
}

Trouble ReadTrouble(ByteReader& in) {
  const std::size_t number = in.Byte() & 15U;
  Trouble trouble{number < kFaults.size() ? kFaults.at(number) : platform::Fault::None, 0};
  if (trouble.fault != platform::Fault::None) trouble.atCall = in.Word();
  return trouble;
}

std::vector<Query> ReadQueries(ByteReader& in) {
  const auto classes = cim::SchemaClasses();
  std::vector<Query> queries(1U + in.Byte() % kMostQueries);
  for (Query& query : queries) {
    query.resize(in.Byte() & kMostClasses);
    for (std::string& name : query) {
      const std::size_t place = in.Byte() & 15U;
      name = place < classes.size() ? std::string(classes[place].name) : in.Text();
    }
  }
  return queries;
}

std::map<Identifier, int> ReadComponents(ByteReader& in) {
  std::map<Identifier, int> components;
  const unsigned int number = in.Byte();
  for (unsigned int i = 0; i < number && !in.AtEnd(); ++i) {
    Identifier identifier = ReadCommand(in);
    const int count = static_cast<int>(static_cast<std::uint32_t>(ReadWide(in)) % 255U);
    if (identifier.size() != 5) continue;
    identifier.at(kInstancePlace) = '\0';
    components.try_emplace(identifier, count);
  }
  return components;
}

std::map<Identifier, ReplySequence> ReadDotCommands(ByteReader& in) {
  std::map<Identifier, ReplySequence> commands;
  const unsigned int number = in.Byte();
  for (unsigned int i = 0; i < number && !in.AtEnd(); ++i) {
    const Identifier identifier = ReadCommand(in);
    commands.try_emplace(identifier, ReadReplies(in));
  }
  return commands;
}

std::map<unsigned char, ReplySequence> ReadKestleCommands(ByteReader& in) {
  std::map<unsigned char, ReplySequence> commands;
  const unsigned int number = in.Byte();
  for (unsigned int i = 0; i < number && !in.AtEnd(); ++i) {
    const unsigned char code = in.Byte();
    commands.try_emplace(code, ReadReplies(in));
  }
  return commands;
}

}  // namespace

ServerCase DecodeServer(std::span<const unsigned char> bytes) {
  ByteReader in(bytes);
  ServerCase result;
  platform::HostSettings& host = result.server.host;
  platform::SpDescription& sp = result.server.sp;
  const unsigned int flags = in.Byte();
  sp.kind = static_cast<platform::SpKind>(flags & 3U);
  sp.communicates = !Bit(flags, 2);
  sp.managementServerStopped = !Bit(flags, 3);
  sp.dornLibrary = Bit(flags, 4);
  sp.commandList = !Bit(flags, 5);
  result.trouble = ReadTrouble(in);
  result.queries = ReadQueries(in);
  host.machineTypeModel = {in.Text(), Bit(flags, 6)};
  host.systemName = {in.Text(), Bit(flags, 7)};
  host.systemCreationClassName = in.Text();
  host.localTime.emplace().Set(2024, 3, 18, 9, 41, 27, 0, 60);
  sp.count = ReadWide(in);
  sp.components = ReadComponents(in);
  sp.instances.resize(in.Byte() & kMostInstances);
  for (auto& commands : sp.instances) commands = ReadDotCommands(in);
  sp.kestleCommands = ReadKestleCommands(in);
  return result;
}

}  // namespace strake::fuzz

#include "cim/Catalogue.h"
#include "fuzz/ByteStream.h"
#include "fuzz/KnownCommands.h"
#include "fuzz/ServerBytes.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace strake::fuzz {
namespace {

using platform::Identifier;
using platform::Reply;
using platform::ReplySequence;

void Limit(const char* what, std::size_t number, std::size_t least, std::size_t most) {
  if (number >= least && number <= most) return;
  throw std::length_error(std::string(what) + ": " + std::to_string(number) + " is not in " +
                          std::to_string(least) + ".." + std::to_string(most));
}

unsigned char ByteAt(const std::string& bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes.at(place));
}

void WriteWide(ByteWriter& out, std::int32_t value) {
  if (value >= 0 && value <= 3) {
    out.Byte(static_cast<std::size_t>(value));
  } else {
    out.Byte(0xFF);
    out.Number(value);
  }
}

bool Names(const KnownCommand& command, const Identifier& identifier) {
  if (!command.isNumbered) return command.identifier == identifier;
  if (identifier.size() != command.identifier.size()) return false;
  Identifier numbered = command.identifier;
  numbered.at(kInstancePlace) = identifier.at(kInstancePlace);
  return numbered == identifier;
}

void WriteCommand(ByteWriter& out, const Identifier& identifier) {
  const auto& known = KnownCommands();
  const auto found = std::ranges::find_if(known, [&](const KnownCommand& command) {
    return command.number && Names(command, identifier);
  });
  out.Byte(found == known.end() ? kUnnumbered : *found->number);
  if (found == known.end()) {
    out.Text(identifier);
  } else if (found->isNumbered) {
    out.Byte(ByteAt(identifier, kInstancePlace));
  }
}

bool IsRamp(const std::string& bytes) {
  return std::ranges::adjacent_find(bytes, [](char first, char second) {
           return static_cast<unsigned char>(second) != static_cast<unsigned char>(first + 1);
         }) == bytes.end();
}

// The shortest text that the bytes repeat; themselves when they repeat none.
std::string_view PatternOf(std::string_view bytes) {
  std::size_t period = 1;
  while (period < bytes.size() && !bytes.starts_with(bytes.substr(period))) ++period;
  return bytes.substr(0, period);
}

// The shortest of the forms.
void WriteReplyBytes(ByteWriter& out, const std::string& bytes, unsigned int flags) {
  constexpr std::size_t kWorthRepeating = 6;
  const std::string_view pattern = PatternOf(bytes);
  if (bytes.size() >= kWorthRepeating && IsRamp(bytes)) {
    out.Byte(3U | flags);
    out.Byte(ByteAt(bytes, 0));
    out.Word(bytes.size());
  } else if (bytes.size() >= kWorthRepeating && pattern.size() <= bytes.size() / 2 &&
             pattern.size() <= 255) {
    out.Byte(2U | flags);
    out.Text(pattern);
    out.Word(bytes.size());
  } else if (bytes.size() > 255) {
    out.Byte(1U | flags);
    out.Word(bytes.size());
    out.Bytes(bytes);
  } else {
    out.Byte(flags);
    out.Text(bytes);
  }
}

void WriteReply(ByteWriter& out, const Reply& reply) {
  Limit("reply bytes", reply.bytes.size(), 0, kMostReplyBytes);
  const bool hasOwnLength = reply.length != static_cast<int>(reply.bytes.size());
  WriteReplyBytes(out, reply.bytes, (reply.succeeds ? 0U : 4U) | (hasOwnLength ? 8U : 0U));
  if (hasOwnLength) out.Number(reply.length);
}

void WriteReplies(ByteWriter& out, const ReplySequence& replies) {
  Limit("replies of a command", replies.size(), 1, kMostReplies);
  out.Byte(replies.size() - 1);
  for (const Reply& reply : replies) WriteReply(out, reply);
}

std::size_t Flags(const platform::ServerDescription& server) {
  const auto bit = [](bool value, unsigned int place) { return (value ? 1U : 0U) << place; };
  return static_cast<unsigned int>(server.sp.kind) | bit(!server.sp.communicates, 2) |
         bit(!server.sp.managementServerStopped, 3) | bit(server.sp.dornLibrary, 4) |
         bit(!server.sp.commandList, 5) | bit(server.host.machineTypeModel.throws, 6) |
         bit(server.host.systemName.throws, 7);
}

void WriteTrouble(ByteWriter& out, const Trouble& trouble) {
  const auto* const number = std::ranges::find(kFaults, trouble.fault);
  out.Byte(static_cast<std::size_t>(number - kFaults.begin()));
  if (trouble.fault != platform::Fault::None) out.Word(trouble.atCall);
}

void WriteQueries(ByteWriter& out, const std::vector<Query>& queries) {
  Limit("queries", queries.size(), 1, kMostQueries);
  out.Byte(queries.size() - 1);
  const auto classes = cim::SchemaClasses();
  for (const Query& query : queries) {
    Limit("classes of a query", query.size(), 0, kMostClasses);
    out.Byte(query.size());
    for (const std::string& name : query) {
      const auto known = std::ranges::find(classes, name, &cim::SchemaClass::name);
      out.Byte(static_cast<std::size_t>(known - classes.begin()));
      if (known == classes.end()) out.Text(name);
    }
  }
}

void WriteProcessors(ByteWriter& out, const platform::SpDescription& sp) {
  WriteWide(out, sp.count);
  out.Byte(sp.components.size());
  for (const auto& [identifier, count] : sp.components) {
    WriteCommand(out, identifier);
    WriteWide(out, count);
  }
  Limit("instances", sp.instances.size(), 0, kMostInstances);
  out.Byte(sp.instances.size());
  for (const auto& commands : sp.instances) {
    out.Byte(commands.size());
    for (const auto& [identifier, replies] : commands) {
      WriteCommand(out, identifier);
      WriteReplies(out, replies);
    }
  }
  out.Byte(sp.kestleCommands.size());
  for (const auto& [code, replies] : sp.kestleCommands) {
    out.Byte(code);
    WriteReplies(out, replies);
  }
}

}  // namespace

std::string EncodeServer(const ServerCase& serverCase) {
  const platform::HostSettings& host = serverCase.server.host;
  ByteWriter out;
  out.Byte(Flags(serverCase.server));
  WriteTrouble(out, serverCase.trouble);
  WriteQueries(out, serverCase.queries);
  out.Text(host.machineTypeModel.text);
  out.Text(host.systemName.text);
  out.Text(host.systemCreationClassName);
  WriteProcessors(out, serverCase.server.sp);
  return out.Written();
}

}  // namespace strake::fuzz

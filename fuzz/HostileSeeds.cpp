#include "cim/Catalogue.h"
#include "fuzz/KnownCommands.h"
#include "fuzz/Seeds.h"
#include "tests/support/WholeCollection.h"

#include <array>
#include <cstdint>

namespace strake::fuzz {
namespace {

using platform::Fault;
using platform::Reply;
using platform::ReplySequence;
using platform::SpKind;
using tests::WholeCollection;
using tests::WholeCollectionQueries;

std::string Fill(unsigned char byte, std::size_t count) {
  std::string bytes(count, static_cast<char>(byte));
  return bytes;
}

std::string Ramp(std::size_t count) {
  std::string bytes;
  for (std::size_t i = 0; i < count; ++i) bytes += static_cast<char>(i);
  return bytes;
}

// The element again and again.
std::string Repeat(const std::string& element, std::size_t count) {
  std::string bytes;
  while (bytes.size() < count) bytes += element;
  bytes.resize(count);
  return bytes;
}

Reply Success(const std::string& bytes) { return {bytes, static_cast<int>(bytes.size()), true}; }

ServerCase Answering(const ReplySequence& replies) {
  ServerCase result{{}, WholeCollectionQueries(), {}};
  platform::SpDescription& sp = result.server.sp;
  sp.kind = SpKind::Orlo;
  sp.count = 1;
  sp.components = {{{4, 9, 1, 0, -1}, 2}, {{4, 1, 3, 0, -1}, 2}, {{4, 1, 4, 0, -1}, 2}};
  sp.instances.resize(1);
  for (const KnownCommand& command : KnownCommands()) {
    platform::Identifier identifier = command.identifier;
    if (!command.isNumbered) {
      sp.instances[0][identifier] = replies;
      continue;
    }
    for (const char instance : {'\1', '\2'}) {
      identifier.at(kInstancePlace) = instance;
      sp.instances[0][identifier] = replies;
    }
  }
  return result;
}

ServerCase TavitAnswering(const std::string& machineType, const Reply& reply) {
  ServerCase result{{}, {cim::ClassNamesOf(cim::QueryGroup::Sensors)}, {}};
  result.server.sp.kind = SpKind::Tavit;
  result.server.host.machineTypeModel = {machineType, false};
  for (const unsigned char code : std::array<unsigned char, 3>{0xA6, 0xA2, 0xA4}) {
    result.server.sp.kestleCommands[code] = {reply};
  }
  return result;
}

// Every command is answered alike.
void AddOrlo(Seeds& seeds) {
  const std::map<std::string, ReplySequence> replies = {
      {"zeros", {Success(Fill(0, 256))}},
      {"ones", {Success(Fill(0xFF, 256))}},
      {"ramp", {Success(Ramp(256))}},
      {"oversized", {Success(Ramp(4097))}},
      {"empty", {Success("")}},
      {"failing-with-bytes", {{Ramp(9), 9, false}}},
      {"length-minus-one", {{Ramp(3), -1, true}}},
      {"length-lowest", {{Ramp(3), INT32_MIN, true}}},
      {"length-highest", {{Ramp(3), INT32_MAX, true}}},
      {"length-zero-with-bytes", {{Ramp(7), 0, true}}},
      {"elements-length-0", {Success(Repeat({1, 1, 0}, 256))}},
      {"elements-length-255", {Success(Repeat({1, 2, -1, -1, 'a'}, 256))}},
      {"elements-standing", {Success(Repeat({1, 2, -3, -1}, 256))}},
      {"elements-one-short-of-round", {Success(Repeat({1, 2, -4, -1}, 256))}},
      {"elements-maximum-0", {Success(Repeat({1, 2, 4, 0, 'a', 'b', 'c'}, 256))}},
      {"texts-unterminated", {Success(Repeat({1, 2, 4, 9, 'a', 'b', 'c'}, 256))}},
      {"texts-formats", {Success(Repeat(std::string({1, 2, 9, 9}) + "%n%s%999d", 256))}},
      {"texts-controls", {Success(Repeat({1, 2, 6, 6, '\r', '\n', 27, '[', 127}, 256))}},
      {"changing", {Success(Ramp(1)), Success(Ramp(64)), {{}, 0, false}, Success(Fill(9, 9))}},
  };
  for (const auto& [name, sequence] : replies) {
    const platform::ServerDescription server = Answering(sequence).server;
    for (const auto& [queryName, classes] : WholeCollection()) {
      seeds["orlo-" + name + "-" + queryName] = EncodeServer(CutDown(server, classes));
    }
  }
}

void AddTavit(Seeds& seeds) {
  constexpr std::array<const char*, 4> kFamilies = {"5120", "5123", "5125", "5128"};
  const std::map<std::string, Reply> replies = {
      {"zeros", Success(Fill(0, 255))},
      {"ones", Success(Fill(0xFF, 255))},
      {"ramp", Success(Ramp(256))},
      {"length-18-of-1", Success(Fill(18, 1))},
      {"length-22", {Fill(22, 300), -1, true}},
      {"length-28", {Fill(28, 28), INT32_MAX, true}},
      {"length-15-failing", {Fill(15, 15), 15, false}},
  };
  for (const auto& [name, reply] : replies) {
    for (const char* const family : kFamilies) {
      seeds["tavit-" + std::string(family) + "-" + name] =
          EncodeServer(TavitAnswering(family, reply));
    }
  }
}

// Odd servers, odd hosts.
void AddOdd(Seeds& seeds) {
  ServerCase many = Answering({Success(Ramp(256))});
  many.server.sp.count = -1;
  many.server.sp.components.begin()->second = 254;
  seeds["orlo-255-processors"] = EncodeServer(many);

  ServerCase unlisted = Answering({Success(Fill(0, 9))});
  unlisted.server.sp.commandList = false;
  unlisted.server.sp.kind = SpKind::Both;
  seeds["both-without-command-list"] = EncodeServer(unlisted);

  ServerCase names = TavitAnswering("5", Success(Ramp(9)));
  names.server.host.machineTypeModel = {"no machine type %s", true};
  names.server.host.systemName = {std::string("\0\x7F\xFF%n", 5), true};
  names.queries = {{}, {"CIM_ComputerSystem", std::string(255, 'x'), ""}, {""}};
  seeds["odd-names"] = EncodeServer(names);

  for (std::uint16_t call = 20; call < 700; call = static_cast<std::uint16_t>(call * 2 + 7)) {
    const Query& dial = WholeCollection().at(1).classes;
    ServerCase failing = CutDown(Answering({Success(Ramp(256))}).server, dial);
    failing.trouble = {static_cast<Fault>(1 + call % 5), call};
    seeds["failing-call-" + std::to_string(call)] = EncodeServer(failing);
  }
}

}  // namespace

Seeds HostileQuerySeeds() {
  Seeds seeds;
  AddOrlo(seeds);
  AddTavit(seeds);
  AddOdd(seeds);
  return seeds;
}

}  // namespace strake::fuzz

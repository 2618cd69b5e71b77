#include "replay/Scrub.h"

#include "cim/Catalogue.h"
#include "replay/Replacements.h"
#include "replay/ReplyPieces.h"

#include <algorithm>
#include <string>

namespace strake::replay {
namespace {

// The first pass: all texts, before any is replaced.
struct Noting {
  Replacements& replacements;

  void Text(std::string& text) const { replacements.Avoid(text); }
  void Piece(const Piece& piece, std::string& bytes) const {
    if (piece.kind == PieceKind::Text) {
      replacements.Avoid(std::string_view(bytes).substr(piece.offset, piece.size));
    }
  }
};

// The second one.
struct Replacing {
  const Replacements& replacements;

  void Text(std::string& text) const { text = replacements.OfText(text); }
  void Piece(const Piece& piece, std::string& bytes) const {
    const std::string original = bytes.substr(piece.offset, piece.size);
    bytes.replace(piece.offset, piece.size, Replaced(piece.kind, original));
  }
  [[nodiscard]] std::string Replaced(PieceKind kind, const std::string& original) const {
    switch (kind) {
      case PieceKind::Address:
        return replacements.OfAddress(original);
      case PieceKind::MacAddress:
        return replacements.OfMacAddress(original);
      case PieceKind::Text:
        break;
    }
    return replacements.OfText(original);
  }
};

template <typename Pass>
void Visit(platform::HostSettings& host, const Pass& pass) {
  // Which readers run depends on the machine type: four digits that are no secret.
  constexpr std::size_t kMachineType = 4;
  platform::HostAnswer& model = host.machineTypeModel;
  const bool hasType =
      !model.throws && model.text.size() >= kMachineType &&
      std::all_of(model.text.begin(), model.text.begin() + kMachineType,
                  [](char character) { return character >= '0' && character <= '9'; });
  const std::string type = model.text.substr(0, hasType ? kMachineType : 0);
  std::string rest = model.text.substr(type.size());
  pass.Text(rest);
  model.text = type + rest;
  pass.Text(host.systemName.text);
  if (host.systemCreationClassName != platform::HostSettings().systemCreationClassName) {
    pass.Text(host.systemCreationClassName);
  }
}

template <typename Pass>
void Visit(platform::SpDescription& sp, const Pass& pass) {
  for (auto& commands : sp.instances) {
    for (auto& [identifier, replies] : commands) {
      for (platform::Reply& reply : replies) {
        for (const Piece& piece : PiecesOfDotReply(identifier, reply.bytes)) {
          pass.Piece(piece, reply.bytes);
        }
      }
    }
  }
  for (auto& [code, replies] : sp.kestleCommands) {
    for (platform::Reply& reply : replies) {
      for (const Piece& piece : PiecesOfKestleReply(code, reply.bytes)) {
        pass.Piece(piece, reply.bytes);
      }
    }
  }
}

template <typename Pass>
void Visit(Replay& replay, const Pass& pass) {
  Visit(replay.server.host, pass);
  Visit(replay.server.sp, pass);
  for (std::vector<std::string>& query : replay.queries) {
    for (std::string& name : query) {
      if (cim::FindSchemaClass(name) == nullptr) {
        pass.Text(name);
      }
    }
  }
}

}  // namespace

void Scrub(Replay& replay, std::uint64_t key) {
  Replacements replacements(key);
  Visit(replay, Noting{replacements});
  Visit(replay, Replacing{replacements});
  replay.server.description = "Replay of a scrubbed trace";
  replay.source = "a trace, scrubbed: names, addresses and texts are replaced";
}

}  // namespace strake::replay

#include "describe/DescriptionText.h"
#include "fuzz/Check.h"
#include "fuzz/Harnesses.h"
#include "replay/DescriptionWriter.h"
#include "replay/Replacements.h"
#include "replay/ReplayBuilder.h"
#include "replay/ReplyPieces.h"
#include "replay/Scrub.h"
#include "replay/TraceReader.h"
#include "text/InputError.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace strake::fuzz {
namespace {

using platform::ServerDescription;
using replay::Piece;
using replay::Replay;

constexpr std::string_view kSource = "fuzzed.trace";
constexpr std::uint64_t kKey = 7;

std::optional<Replay> Read(std::string_view text) {
  try {
    replay::ReplayBuilder builder;
    replay::ReadTrace(text, std::string(kSource),
                      [&builder](replay::TraceEvent event) { builder.Take(std::move(event)); });
    return builder.Complete(std::string(kSource), std::string(kSource));
  } catch (const text::InputError& error) {
    CheckRefusal(error.what(), kSource);
    return std::nullopt;
  }
}

// A description of an input this small has room for everything.
void CheckReadAgain(const std::string& text, const ServerDescription& server) {
  const ServerDescription read = platform::ParseServerDescription(text, "written");
  Check(read.description == server.description, "a description has its text");
  Check(read.host.machineTypeModel == server.host.machineTypeModel &&
            read.host.systemName == server.host.systemName &&
            read.host.systemCreationClassName == server.host.systemCreationClassName,
        "a description has what the host says");
  Check(read.sp.kind == server.sp.kind && read.sp.communicates == server.sp.communicates &&
            read.sp.count == server.sp.count &&
            read.sp.managementServerStopped == server.sp.managementServerStopped &&
            read.sp.dornLibrary == server.sp.dornLibrary &&
            read.sp.commandList == server.sp.commandList,
        "a description has what the driver says");
  Check(read.sp.components == server.sp.components, "a description has every component");
  Check(read.sp.instances == server.sp.instances, "a description has every dot command");
  Check(read.sp.kestleCommands == server.sp.kestleCommands,
        "a description has every Kestle command");
}

void CheckWritten(const Replay& replay) {
  CheckReadAgain(replay::WriteDescription(replay), replay.server);
  CheckReadAgain(
      describe::DescriptionText(replay.server, std::nullopt, describe::ReplyForm::Records),
      replay.server);
}

using VisitReply = std::function<void(const platform::Reply& reply, const std::vector<Piece>&)>;

void ForEachReply(const platform::SpDescription& sp, const VisitReply& visit) {
  for (const auto& commands : sp.instances) {
    for (const auto& [identifier, replies] : commands) {
      for (const platform::Reply& reply : replies) {
        visit(reply, replay::PiecesOfDotReply(identifier, reply.bytes));
      }
    }
  }
  for (const auto& [code, replies] : sp.kestleCommands) {
    for (const platform::Reply& reply : replies) {
      visit(reply, replay::PiecesOfKestleReply(code, reply.bytes));
    }
  }
}

// The texts of replies that are long enough to be told from others.
std::vector<std::string> OriginalsOf(const platform::SpDescription& sp) {
  std::vector<std::string> originals;
  ForEachReply(sp, [&](const platform::Reply& reply, const std::vector<Piece>& pieces) {
    for (const Piece& piece : pieces) {
      const std::string text = reply.bytes.substr(piece.offset, piece.size);
      const bool isShown =
          std::ranges::any_of(text, [](char byte) { return byte < 0 || byte > ' '; });
      if (piece.kind == replay::PieceKind::Text && text.size() >= replay::kShortestOriginal &&
          isShown) {
        originals.push_back(text);
      }
    }
  });
  return originals;
}

// At the places of the texts of the original reply, for scrubbing moves none.
void CheckScrubbedReplies(const Replay& original, const Replay& scrubbed) {
  const std::vector<std::string> originals = OriginalsOf(original.server.sp);
  std::vector<platform::Reply> replies;
  ForEachReply(scrubbed.server.sp,
               [&](const platform::Reply& reply, const auto&) { replies.push_back(reply); });
  auto reply = replies.begin();
  ForEachReply(original.server.sp, [&](const platform::Reply& from, const auto& pieces) {
    Check(reply->bytes.size() == from.bytes.size() && reply->length == from.length &&
              reply->succeeds == from.succeeds,
          "scrubbing keeps the form of a reply");
    for (const Piece& piece : pieces) {
      if (piece.kind != replay::PieceKind::Text) continue;
      const std::string text = reply->bytes.substr(piece.offset, piece.size);
      for (const std::string& one : originals) {
        Check(text.find(one) == std::string::npos, "a scrubbed text holds none of the originals");
      }
    }
    ++reply;
  });
}

}  // namespace

int FuzzReplay(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const std::optional<Replay> replay = Read(text);
  if (!replay) return 0;
  CheckWritten(*replay);
  Replay scrubbed = *replay;
  replay::Scrub(scrubbed, kKey);
  CheckWritten(scrubbed);
  Check(scrubbed.server.sp.instances.size() == replay->server.sp.instances.size(),
        "scrubbing keeps the service processors");
  CheckScrubbedReplies(*replay, scrubbed);
  return 0;
}

}  // namespace strake::fuzz

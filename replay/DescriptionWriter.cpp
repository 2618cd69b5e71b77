#include "replay/DescriptionWriter.h"

#include "text/DotNotation.h"
#include "text/HexBytes.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace strake::replay {
namespace {

using platform::Reply;
using platform::ReplySequence;

std::string Line(const nlohmann::ordered_json& json) { return text::EscapeJson(json.dump()); }

// Valid UTF-8 or not.
std::string Text(std::string_view text) { return Line(text::ToValidUtf8(text)); }

// Members or items one a line, between a pair of brackets.
class Block {
 public:
  Block(std::string& out, std::size_t depth, std::string_view brackets)
      : fOut(out), fIndent(2 * depth), fClosing(brackets.back()) {
    fOut += brackets.front();
  }
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  ~Block() {
    if (!fIsEmpty) {
      fOut += '\n';
      fOut.append(fIndent, ' ');
    }
    fOut += fClosing;
  }

  // The item's text follows.
  void Item() {
    fOut += fIsEmpty ? "\n" : ",\n";
    fOut.append(fIndent + 2, ' ');
    fIsEmpty = false;
  }
  void Key(std::string_view key) {
    Item();
    fOut += '"';
    fOut += key;
    fOut += "\": ";
  }
  void Member(std::string_view key, const std::string& json) {
    Key(key);
    fOut += json;
  }
  // Nothing when the value is the default.
  template <typename Value>
  void Unless(const Value& otherwise, std::string_view key, const Value& value) {
    if (value != otherwise) {
      Member(key, Line(value));
    }
  }

 private:
  std::string& fOut;
  std::size_t fIndent;
  char fClosing;
  bool fIsEmpty = true;
};

void AppendHex(std::string& out, const std::string& bytes) {
  out += '"';
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    out += i == 0 ? "" : " ";
    text::AppendHexPair(out, static_cast<unsigned char>(bytes[i]));
  }
  out += '"';
}

void AppendReply(std::string& out, const Reply& reply) {
  const bool isWhole = reply.length == static_cast<int>(reply.bytes.size());
  if (reply.succeeds && isWhole) {
    AppendHex(out, reply.bytes);
    return;
  }
  const char* separator = "";
  out += '{';
  if (!reply.bytes.empty()) {
    out += "\"hex\": ";
    AppendHex(out, reply.bytes);
    separator = ", ";
  }
  if (!isWhole) {
    out += separator;
    out += "\"length\": " + std::to_string(reply.length);
    separator = ", ";
  }
  if (!reply.succeeds) {
    out += separator;
    out += "\"succeeds\": false";
  }
  out += '}';
}

void AppendReplies(std::string& out, const ReplySequence& replies) {
  if (replies.size() == 1) {
    AppendReply(out, replies.front());
    return;
  }
  const char* separator = "[";
  for (const Reply& reply : replies) {
    out += separator;
    AppendReply(out, reply);
    separator = ", ";
  }
  out += ']';
}

void AppendInstances(std::string& out, std::size_t depth, const platform::SpDescription& sp) {
  Block instances(out, depth, "[]");
  for (const auto& instance : sp.instances) {
    instances.Item();
    Block members(out, depth + 1, "{}");
    members.Key("dot_commands");
    Block commands(out, depth + 2, "{}");
    for (const auto& [identifier, replies] : instance) {
      commands.Key(text::DotNotationOf(identifier));
      AppendReplies(out, replies);
    }
  }
}

void AppendComponents(std::string& out, const platform::SpDescription& sp) {
  const char* separator = "{";
  for (const auto& [identifier, count] : sp.components) {
    // The fourth byte plays no part; that of the first one is what people know.
    platform::Identifier first = identifier;
    first.at(3) = '\1';
    out += separator;
    out += Line(text::DotNotationOf(first)) + ": " + std::to_string(count);
    separator = ", ";
  }
  out += '}';
}

void AppendSp(std::string& out, std::size_t depth, const platform::SpDescription& sp) {
  const platform::SpDescription usual;
  Block members(out, depth, "{}");
  members.Member("kind", Line(platform::KindName(sp.kind)));
  members.Unless(usual.communicates, "communicates", sp.communicates);
  members.Unless(static_cast<int>(sp.instances.size()), "count", sp.count);
  members.Unless(usual.managementServerStopped, "management_server_stopped",
                 sp.managementServerStopped);
  members.Unless(usual.dornLibrary, "dorn_library", sp.dornLibrary);
  members.Unless(usual.latencyMs, "latency_ms", sp.latencyMs);
  members.Unless(usual.commandList, "command_list", sp.commandList);
  if (!sp.components.empty()) {
    members.Key("components");
    AppendComponents(out, sp);
  }
  if (!sp.instances.empty()) {
    members.Key("instances");
    AppendInstances(out, depth + 1, sp);
  }
  if (!sp.kestleCommands.empty()) {
    members.Key("kestle_commands");
    Block commands(out, depth + 1, "{}");
    for (const auto& [code, replies] : sp.kestleCommands) {
      commands.Key(std::to_string(code));
      AppendReplies(out, replies);
    }
  }
}

std::string HostAnswer(const platform::HostAnswer& answer) {
  return answer.throws ? "{\"throws\": " + Text(answer.text) + "}" : Text(answer.text);
}

void AppendCapture(std::string& out, std::size_t depth, const Replay& replay) {
  Block members(out, depth, "{}");
  members.Member("source", Text(replay.source));
  members.Key("notes");
  Block notes(out, depth + 1, "[]");
  notes.Item();
  out += Text("replay it with: " + CommandOf(replay, "FILE"));
  for (const std::string& warning : replay.warnings) {
    notes.Item();
    out += Text(warning);
  }
}

std::string ShellWord(std::string_view word) {
  const auto isPlain = [](char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') ||
           std::string_view("_-.,/+:=@").find(character) != std::string_view::npos;
  };
  if (!word.empty() && std::ranges::all_of(word, isPlain)) {
    return std::string(word);
  }
  std::string quoted(1, '\'');
  for (const char character : word) {
    if (character == '\'') {
      quoted += "'\\'";  // closed, one quote, opened
    }
    quoted += character;
  }
  quoted += '\'';
  return quoted;
}

}  // namespace

std::string CommandOf(const Replay& replay, std::string_view file) {
  std::string command = "strake collect --server " + ShellWord(file);
  for (const std::vector<std::string>& query : replay.queries) {
    std::string list;
    for (const std::string& name : query) {
      list += list.empty() ? name : "," + name;
    }
    command += " --query " + ShellWord(list);
  }
  return command;
}

std::string WriteDescription(const Replay& replay) {
  const platform::ServerDescription& server = replay.server;
  const platform::HostSettings usual;
  std::string out;
  {
    Block members(out, 0, "{}");
    members.Member("format", "\"strake-server/1\"");
    if (!server.description.empty()) {
      members.Member("description", Text(server.description));
    }
    members.Key("capture");
    AppendCapture(out, 1, replay);
    members.Member("machine_type_model", HostAnswer(server.host.machineTypeModel));
    members.Member("system_name", HostAnswer(server.host.systemName));
    members.Unless(usual.systemCreationClassName, "system_creation_class_name",
                   server.host.systemCreationClassName);
    members.Key("sp");
    AppendSp(out, 1, server.sp);
  }
  return out + "\n";
}

}  // namespace strake::replay

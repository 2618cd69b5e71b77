#include "describe/DescriptionText.h"

#include "describe/JsonBlock.h"
#include "describe/ReplyText.h"
#include "text/DotNotation.h"

#include <nlohmann/json.hpp>

namespace strake::describe {
namespace {

// Nothing when the value is the default.
template <typename Value>
void MemberUnless(JsonBlock& members, const Value& otherwise, std::string_view key,
                  const Value& value) {
  if (value != otherwise) {
    members.Member(key, nlohmann::json(value).dump());
  }
}

void AppendInstances(std::string& out, std::size_t depth, const platform::SpDescription& sp,
                     ReplyForm form) {
  JsonBlock instances(out, depth, "[]");
  for (const auto& instance : sp.instances) {
    instances.Item();
    JsonBlock members(out, depth + 1, "{}");
    members.Key("dot_commands");
    JsonBlock commands(out, depth + 2, "{}");
    for (const auto& [identifier, replies] : instance) {
      commands.Key(text::DotNotationOf(identifier));
      if (form == ReplyForm::Records) {
        AppendAsRecord(out, depth + 3, identifier, replies);
      } else {
        AppendReplies(out, replies);
      }
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
    out += JsonText(text::DotNotationOf(first)) + ": " + std::to_string(count);
    separator = ", ";
  }
  out += '}';
}

void AppendSp(std::string& out, std::size_t depth, const platform::SpDescription& sp,
              ReplyForm form) {
  const platform::SpDescription usual;
  JsonBlock members(out, depth, "{}");
  members.Member("kind", JsonText(platform::KindName(sp.kind)));
  MemberUnless(members, usual.communicates, "communicates", sp.communicates);
  MemberUnless(members, static_cast<int>(sp.instances.size()), "count", sp.count);
  MemberUnless(members, usual.managementServerStopped, "management_server_stopped",
               sp.managementServerStopped);
  MemberUnless(members, usual.dornLibrary, "dorn_library", sp.dornLibrary);
  MemberUnless(members, usual.latencyMs, "latency_ms", sp.latencyMs);
  MemberUnless(members, usual.commandList, "command_list", sp.commandList);
  if (!sp.components.empty()) {
    members.Key("components");
    AppendComponents(out, sp);
  }
  if (!sp.instances.empty()) {
    members.Key("instances");
    AppendInstances(out, depth + 1, sp, form);
  }
  if (!sp.kestleCommands.empty()) {
    members.Key("kestle_commands");
    JsonBlock commands(out, depth + 1, "{}");
    for (const auto& [code, replies] : sp.kestleCommands) {
      commands.Key(std::to_string(code));
      AppendReplies(out, replies);
    }
  }
}

std::string HostAnswer(const platform::HostAnswer& answer) {
  return answer.throws ? "{\"throws\": " + JsonText(answer.text) + "}" : JsonText(answer.text);
}

void AppendCapture(std::string& out, std::size_t depth, const Capture& capture) {
  JsonBlock members(out, depth, "{}");
  members.Member("source", JsonText(capture.source));
  members.Key("notes");
  JsonBlock notes(out, depth + 1, "[]");
  for (const std::string& note : capture.notes) {
    notes.Item();
    out += JsonText(note);
  }
}

}  // namespace

std::string DescriptionText(const platform::ServerDescription& server,
                            const std::optional<Capture>& capture, ReplyForm form) {
  const platform::HostSettings usual;
  std::string out;
  {
    JsonBlock members(out, 0, "{}");
    members.Member("format", "\"strake-server/1\"");
    if (!server.description.empty()) {
      members.Member("description", JsonText(server.description));
    }
    if (capture) {
      members.Key("capture");
      AppendCapture(out, 1, *capture);
    }
    members.Member("machine_type_model", HostAnswer(server.host.machineTypeModel));
    members.Member("system_name", HostAnswer(server.host.systemName));
    if (server.host.systemCreationClassName != usual.systemCreationClassName) {
      members.Member("system_creation_class_name", JsonText(server.host.systemCreationClassName));
    }
    members.Key("sp");
    AppendSp(out, 1, server.sp, form);
  }
  return out + "\n";
}

}  // namespace strake::describe

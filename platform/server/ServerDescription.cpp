#include "platform/server/ServerDescription.h"

#include "cim/DateTimeText.h"
#include "json/Field.h"
#include "json/Reader.h"
#include "platform/server/Capture.h"
#include "platform/server/Replies.h"
#include "text/DotNotation.h"
#include "text/InputError.h"
#include "text/Quote.h"
#include "text/TextEscape.h"

#include <array>
#include <cstdint>
#include <utility>

namespace strake::platform {
namespace {

constexpr const char* kFormat = "strake-server/1";

void CheckFormat(const json::Field& root) {
  const json::Field format = root.Require("format");
  if (format.Text() != kFormat) {
    format.Refuse(text::Quoted(kFormat));
  }
}

HostAnswer ReadHostAnswer(const json::Field& field) {
  if (field.IsText()) {
    return {field.Text(), false};
  }
  if (!field.IsObject()) {
    field.Refuse("a string or {\"throws\": TEXT}");
  }
  field.AllowKeys({"throws"});
  return {field.Require("throws").Text(), true};
}

NVELKZEV20::TCIMDateTime ReadDateTime(const json::Field& field) {
  try {
    return cim::ParseDateTime(field.Text());
  } catch (const std::out_of_range& error) {
    field.Refuse("a date-time yyyymmddhhmmss.mmmmmmsutc", error.what());
  }
}

HostSettings ReadHost(const json::Field& root) {
  HostSettings host;
  if (const auto field = root.Find("machine_type_model")) {
    host.machineTypeModel = ReadHostAnswer(*field);
  }
  if (const auto field = root.Find("system_name")) {
    host.systemName = ReadHostAnswer(*field);
  }
  if (const auto field = root.Find("system_creation_class_name")) {
    host.systemCreationClassName = field->Text();
  }
  if (const auto field = root.Find("local_time")) {
    host.localTime = ReadDateTime(*field);
  }
  return host;
}

constexpr std::array<std::pair<std::string_view, SpKind>, 4> kKinds{{
    {"orlo", SpKind::Orlo},
    {"tavit", SpKind::Tavit},
    {"both", SpKind::Both},
    {"none", SpKind::None},
}};

SpKind ReadKind(const json::Field& field) {
  if (field.IsText()) {
    for (const auto& [name, kind] : kKinds) {
      if (field.Text() == name) {
        return kind;
      }
    }
  }
  field.Refuse("\"orlo\", \"tavit\", \"both\" or \"none\"");
}

std::map<Identifier, int> ReadComponents(const json::Field& field) {
  std::map<Identifier, int> components;
  field.ForEachMember([&](const std::string& key, const json::Field& count) {
    std::optional<Identifier> identifier = text::ParseDotNotation(key);
    if (!identifier || identifier->size() != 5) {
      field.RefuseGot("component identifiers of five bytes in dot notation", text::Quoted(key));
    }
    // The instance number plays no part in the match.
    identifier->at(3) = '\0';
    if (!components.try_emplace(*identifier, count.Integer(0, 254)).second) {
      field.RefuseGot("each component once, whatever its fourth byte",
                      text::Quoted(key) + " again");
    }
  });
  if (components.size() > kMostComponents) {
    field.RefuseGot("at most " + std::to_string(kMostComponents) + " components",
                    std::to_string(components.size()));
  }
  return components;
}

std::map<Identifier, ReplySequence> ReadDotCommands(const json::Field& field) {
  std::map<Identifier, ReplySequence> commands;
  field.ForEachMember([&](const std::string& key, const json::Field& replies) {
    const std::optional<Identifier> identifier = text::ParseDotNotation(key);
    if (!identifier) {
      field.RefuseGot("commands in dot notation, such as 4.4.1", text::Quoted(key));
    }
    commands.emplace(*identifier, ReadReplies(replies));
  });
  return commands;
}

std::vector<std::map<Identifier, ReplySequence>> ReadInstances(const json::Field& field) {
  std::vector<std::map<Identifier, ReplySequence>> instances;
  field.ForEachItem([&](const json::Field& instance) {
    instance.AllowKeys({"dot_commands"});
    const auto commands = instance.Find("dot_commands");
    instances.push_back(commands ? ReadDotCommands(*commands)
                                 : std::map<Identifier, ReplySequence>());
  });
  return instances;
}

std::map<unsigned char, ReplySequence> ReadKestleCommands(const json::Field& field) {
  std::map<unsigned char, ReplySequence> commands;
  field.ForEachMember([&](const std::string& key, const json::Field& replies) {
    const std::optional<unsigned char> code = text::ParseDecimalByte(key);
    if (!code) {
      field.RefuseGot("command codes 0 to 255 in decimal", text::Quoted(key));
    }
    commands.emplace(*code, ReadReplies(replies));
  });
  return commands;
}

SpDescription ReadSp(const json::Field& field) {
  field.AllowKeys({"kind", "communicates", "count", "management_server_stopped", "dorn_library",
                   "latency_ms", "command_list", "components", "instances", "kestle_commands"});
  SpDescription sp;
  sp.kind = ReadKind(field.Require("kind"));
  if (const auto flag = field.Find("communicates")) {
    sp.communicates = flag->Flag();
  }
  if (const auto flag = field.Find("management_server_stopped")) {
    sp.managementServerStopped = flag->Flag();
  }
  if (const auto flag = field.Find("dorn_library")) {
    sp.dornLibrary = flag->Flag();
  }
  if (const auto latency = field.Find("latency_ms")) {
    sp.latencyMs = latency->Number(0, 60000);
  }
  if (const auto flag = field.Find("command_list")) {
    sp.commandList = flag->Flag();
  }
  if (const auto components = field.Find("components")) {
    sp.components = ReadComponents(*components);
  }
  if (const auto instances = field.Find("instances")) {
    sp.instances = ReadInstances(*instances);
  }
  if (const auto commands = field.Find("kestle_commands")) {
    sp.kestleCommands = ReadKestleCommands(*commands);
  }
  const auto count = field.Find("count");
  sp.count = count ? count->Integer(INT32_MIN, INT32_MAX) : static_cast<int>(sp.instances.size());
  return sp;
}

}  // namespace

std::string_view KindName(SpKind kind) { return kKinds.at(static_cast<std::size_t>(kind)).first; }

ServerDescription ParseServerDescription(std::string_view text, const std::string& source) {
  const std::string name = text::EscapeForPeople(source);
  if (text.size() > kMostDescriptionBytes) {
    throw text::InputError(name + ": expected at most " + std::to_string(kMostDescriptionBytes) +
                           " bytes, got more");
  }
  const json::Value value = json::Read(text, name, {kDeepestDescription, kMostDescriptionValues});
  const json::Field root(value, name);
  if (!root.IsObject()) {
    root.Refuse("an object");
  }
  // A text of another format is told so, and not that its keys are unknown.
  CheckFormat(root);
  root.AllowKeys({"format", "description", "machine_type_model", "system_name",
                  "system_creation_class_name", "local_time", "capture", "sp"});
  if (const auto capture = root.Find("capture")) {
    CheckCapture(*capture);
  }
  ServerDescription server;
  if (const auto description = root.Find("description")) {
    server.description = description->Text();
  }
  server.host = ReadHost(root);
  server.sp = ReadSp(root.Require("sp"));
  return server;
}

}  // namespace strake::platform

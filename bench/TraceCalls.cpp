#include "bench/TraceCalls.h"

#include "cim/DateTimeText.h"
#include "platform/boundary/TraceWriter.h"
#include "platform/session/HostSession.h"
#include "plugin/frame/ModuleEntry.h"

#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

namespace strake::bench {

using nlohmann::json;
using NVELKZEV20::TCIMValue;

std::string RecordTrace(const platform::ServerDescription& server, const Group& group) {
  std::ostringstream out;
  platform::TraceWriter trace(out);
  platform::HostSession session(server, &trace);
  session.Attach(&StrakeModuleEntry);
  session.Query(group.classes);
  return out.str();
}

namespace {

std::vector<unsigned char> IdentifierOf(const std::string& dotNotation) {
  std::vector<unsigned char> bytes;
  std::istringstream in(dotNotation);
  for (std::string part; std::getline(in, part, '.');) {
    bytes.push_back(static_cast<unsigned char>(std::stoi(part)));
  }
  return bytes;
}

// A trace writes each byte of a text as the code point of its value.
std::string BytesOf(const std::string& utf8) {
  std::string bytes;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
      bytes.push_back(utf8[i]);
    } else {
      const auto low = static_cast<unsigned char>(utf8.at(++i));
      bytes.push_back(static_cast<char>(((lead & 3) << 6) | (low & 0x3F)));
    }
  }
  return bytes;
}

ValueSource SourceOf(const json& line) {
  const std::string type = line.at("type");
  const json& value = line.at("value");
  if (type == "string") return BytesOf(value);
  if (type == "sint32") return value.get<int>();
  if (type == "uint16") return value.get<unsigned short>();
  if (type == "uint8") return value.get<unsigned char>();
  return cim::ParseDateTime(value.get<std::string>());
}

Kind KindOf(const json& line) {
  static const std::map<std::string, Kind> kinds = {
      {"GetMachineTypeFromID", Kind::MachineType},
      {"GetSystemName", Kind::SystemName},
      {"GetSystemCreationClassName", Kind::SystemClass},
      {"GetLocalTime", Kind::LocalTime},
      {"GetName", Kind::Name},
      {"GetClass", Kind::GetClass},
      {"CreateInstance", Kind::Create},
      {"SetProperty", Kind::Set},
      {"Commit", Kind::Commit},
      {"isDotcommand", Kind::IsDot},
      {"isKestle", Kind::IsKestle},
      {"isQmvStop", Kind::IsQmvStop},
      {"isDornlibrary", Kind::IsDorn},
      {"checkSPComm", Kind::CheckComm},
      {"discoverSPs", Kind::Discover},
      {"buildDotCommandList", Kind::BuildList},
      {"getComponentdotCmdList", Kind::Count},
      {"sendDotCommand", Kind::Dot},
      {"sendKestleCommand", Kind::Kestle},
  };
  return kinds.at(line.at("call"));
}

void ReadDot(const json& line, Call& call) {
  call.commandClass = line.at("class").get<unsigned char>();
  call.identifier = IdentifierOf(line.at("id"));
  call.sp = line.at("sp");
  call.size = line.at("size");
  call.dot = MakeDotCommand(call);
}

void ReadKestle(const json& line, Call& call) {
  call.kestleArguments = {.total = line.at("total").get<unsigned char>(),
                          .code = line.at("code").get<unsigned char>(),
                          .expected = line.at("expected").get<unsigned char>(),
                          .checksum = line.at("checksum").get<unsigned char>(),
                          .acknowledge = line.at("ack").get<bool>(),
                          .isRead = line.at("read").get<bool>()};
  call.kestle = MakeKestleCommand(call);
}

Call CallOf(const json& line) {
  Call call;
  if (line.at("event") == "log") {
    call.level = line.at("level");
    call.text = BytesOf(line.at("message"));
    return call;
  }
  call.kind = KindOf(line);
  call.instance = line.value("instance", std::size_t{0});
  switch (call.kind) {
    case Kind::GetClass:
      call.text = line.at("class");
      break;
    case Kind::Set:
      call.text = line.at("name");
      call.source = SourceOf(line);
      call.value = MakeValue(call.source);
      break;
    case Kind::Count:
      call.identifier = IdentifierOf(line.at("id"));
      break;
    case Kind::Dot:
      ReadDot(line, call);
      break;
    case Kind::Kestle:
      ReadKestle(line, call);
      break;
    default:
      break;
  }
  return call;
}

}  // namespace

TCIMValue MakeValue(const ValueSource& source) {
  return std::visit([](const auto& value) { return TCIMValue(value); }, source);
}

std::unique_ptr<dotCmd> MakeDotCommand(const Call& call) {
  static constexpr unsigned char kNoExtraData = 0;
  return std::make_unique<dotCmd>(call.commandClass, static_cast<int>(call.identifier.size()), 0,
                                  call.identifier.data(), &kNoExtraData);
}

std::unique_ptr<KestleCmd> MakeKestleCommand(const Call& call) {
  const KestleArguments& arguments = call.kestleArguments;
  return std::make_unique<KestleCmd>(arguments.total, arguments.code, arguments.expected,
                                     arguments.checksum, nullptr, 0, arguments.acknowledge,
                                     arguments.isRead);
}

std::vector<Call> CallsOf(const std::string& trace, bool logs) {
  std::vector<Call> calls;
  std::istringstream in(trace);
  std::size_t names = 0;
  std::string lastClass;
  for (std::string text; std::getline(in, text);) {
    const json line = json::parse(text);
    const std::string event = line.at("event");
    if (event == "query" || event == "query_end" || (event == "log" && !logs)) continue;
    Call call = CallOf(line);
    // Names are asked of the classes in turn; the next one begins where the
    // answer changes.
    if (call.kind == Kind::Name) {
      const std::string name = line.at("result");
      if (name != lastClass) ++names;
      lastClass = name;
      call.instance = names - 1;  // its place in the request
    }
    calls.push_back(std::move(call));
  }
  return calls;
}

}  // namespace strake::bench

#include "bench/Floor.h"

#include "platform/boundary/TraceWriter.h"
#include "platform/server/DateTimeText.h"
#include "platform/session/HostSession.h"
#include "plugin/config/InstanceBuilder.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/host/TCIMSchemaHelper.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/host/TRootObject.h"
#include "plugin/spaccess/SPLibrary.h"

#include <algorithm>
#include <array>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

namespace strake::bench {

using nlohmann::json;
using NVELKZEV20::ContextMap;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::ILogger;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TCIMSchemaHelper;
using NVELKZEV20::TCIMValue;
using NVELKZEV20::TNameToValueMap;
using NVELKZEV20::TOSSpecific;
using NVELKZEV20::TRootObject;

std::string RecordTrace(const platform::ServerDescription& server, const Group& group) {
  std::ostringstream out;
  platform::TraceWriter trace(out);
  platform::HostSession session(server, &trace);
  session.Attach(&StrakeModuleEntry);
  session.Query(group.classes);
  return out.str();
}

namespace {

enum class Kind {
  Log,
  MachineType,
  SystemName,
  SystemClass,
  LocalTime,
  Name,
  GetClass,
  Create,
  Set,
  Commit,
  IsDot,
  IsKestle,
  IsQmvStop,
  IsDorn,
  CheckComm,
  Discover,
  BuildList,
  Count,
  Dot,
  Kestle,
};

// One call with its arguments as the boundary takes them.
struct Call {
  Kind kind = Kind::Log;
  int level = 0;
  std::string text;
  TCIMValue value;
  std::size_t instance = 0;
  int sp = 0;
  int size = 0;
  std::vector<unsigned char> identifier;
  std::unique_ptr<dotCmd> dot;
  std::unique_ptr<KestleCmd> kestle;
};

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

TCIMValue ValueOf(const json& line) {
  const std::string type = line.at("type");
  const json& value = line.at("value");
  if (type == "string") return TCIMValue(BytesOf(value));
  if (type == "sint32") return TCIMValue(value.get<int>());
  if (type == "uint16") return TCIMValue(value.get<unsigned short>());
  if (type == "uint8") return TCIMValue(value.get<unsigned char>());
  const auto time = platform::ParseDateTime(value.get<std::string>());
  return TCIMValue(time);
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

constexpr unsigned char kNoExtraData = 0;

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
      call.value = ValueOf(line);
      break;
    case Kind::Count:
      call.identifier = IdentifierOf(line.at("id"));
      break;
    case Kind::Dot:
      call.identifier = IdentifierOf(line.at("id"));
      call.sp = line.at("sp");
      call.size = line.at("size");
      call.dot = std::make_unique<dotCmd>(line.at("class").get<unsigned char>(),
                                          static_cast<int>(call.identifier.size()), 0,
                                          call.identifier.data(), &kNoExtraData);
      break;
    case Kind::Kestle:
      call.kestle = std::make_unique<KestleCmd>(
          line.at("total").get<unsigned char>(), line.at("code").get<unsigned char>(),
          line.at("expected").get<unsigned char>(), line.at("checksum").get<unsigned char>(),
          nullptr, 0, line.at("ack").get<bool>(), line.at("read").get<bool>());
      break;
    default:
      break;
  }
  return call;
}

}  // namespace

class Floor::Calls {
 public:
  Calls(const std::string& trace, bool logs) : fContext(MakeContext()) {
    std::istringstream in(trace);
    std::size_t instances = 0;
    std::size_t names = 0;
    std::string lastClass;
    for (std::string text; std::getline(in, text);) {
      const json line = json::parse(text);
      const std::string event = line.at("event");
      if (event == "query" || event == "query_end" || (event == "log" && !logs)) continue;
      Call call = CallOf(line);
      if (call.kind == Kind::Create) instances = std::max(instances, call.instance);
      // Names are asked of the classes in turn; a new one begins with the
      // "Current class" line behind its first answer.
      if (call.kind == Kind::Name) {
        const std::string name = line.at("result");
        if (name != lastClass) ++names;
        lastClass = name;
        call.instance = names - 1;  // its place in the request
      }
      fCalls.push_back(std::move(call));
    }
    fInstances.resize(instances + 1);
  }

  void Replay(const boost::shared_ptr<ICIMNamespace>& cimNamespace,
              const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
    SPLibrary& library = *SPLibrary::GetSplibraryInstance(0);
    ILogger& logger = *TRootObject::GetCoreLogger();
    int length = 0;
    for (Call& call : fCalls) {
      switch (call.kind) {
        case Kind::Log:
          logger.Log(call.level, call.text);
          break;
        case Kind::MachineType:
          TOSSpecific::GetMachineTypeFromID();
          break;
        case Kind::SystemName:
          TCIMSchemaHelper::GetSystemName(cimNamespace);
          break;
        case Kind::SystemClass:
          TCIMSchemaHelper::GetSystemCreationClassName(cimNamespace);
          break;
        case Kind::LocalTime:
          TOSSpecific::GetLocalTime();
          break;
        case Kind::Name:
          static_cast<void>(classes[call.instance]->GetName());
          break;
        case Kind::GetClass:
          cimNamespace->GetClass(fClass, call.text, fContext);
          break;
        case Kind::Create:
          fClass->CreateInstance(fInstances[call.instance], fNothing);
          break;
        case Kind::Set:
          fInstances[call.instance]->SetProperty(call.text, call.value, {});
          break;
        case Kind::Commit:
          fInstances[call.instance]->Commit({});
          break;
        case Kind::IsDot:
          library.isDotcommand();
          break;
        case Kind::IsKestle:
          library.isKestle();
          break;
        case Kind::IsQmvStop:
          library.isQmvStop();
          break;
        case Kind::IsDorn:
          library.isDornlibrary();
          break;
        case Kind::CheckComm:
          library.checkSPComm();
          break;
        case Kind::Discover:
          library.discoverSPs();
          break;
        case Kind::BuildList:
          library.buildDotCommandList(fList[0].data(), fList[1].data(), fList[2].data());
          break;
        case Kind::Count:
          library.getComponentdotCmdList(call.identifier.data(), 5, fList[0].data(),
                                         fList[1].data(), fList[2].data());
          break;
        case Kind::Dot:
          library.sendDotCommand(call.dot.get(), fReply.data(), &length, call.sp, call.size);
          break;
        case Kind::Kestle:
          library.sendKestleCommand(call.kestle.get(), &length, fReply.data());
          break;
      }
    }
    for (auto& instance : fInstances) instance.reset();
    fClass.reset();
  }

 private:
  std::vector<Call> fCalls;
  std::vector<boost::shared_ptr<ICIMInstance>> fInstances;
  boost::shared_ptr<ICIMClass> fClass;
  ContextMap fContext;
  TNameToValueMap fNothing;
  std::array<unsigned char, 4096> fReply{};
  std::array<std::array<unsigned char, 4096>, 3> fList{};
};

Floor::Floor(const std::string& trace, bool logs) : fCalls(std::make_unique<Calls>(trace, logs)) {}

Floor::~Floor() = default;

void Floor::Replay(const boost::shared_ptr<ICIMNamespace>& cimNamespace,
                   const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  fCalls->Replay(cimNamespace, classes);
}

}  // namespace strake::bench

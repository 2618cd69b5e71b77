#include "replay/TraceReader.h"

#include "json/Reader.h"
#include "replay/TraceLine.h"
#include "text/InputError.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <span>
#include <utility>

namespace strake::replay {
namespace {

using Read = TraceEvent (*)(const TraceLine& line);

// What a name stands for: an event, a call of an event.
struct NamedLine {
  std::string_view name;
  Read read;
};

TraceEvent ReadQuery(const TraceLine& line) {
  line.AllowKeys({"event", "classes"});
  return QueryBegan{line.Texts("classes")};
}

TraceEvent ReadQueryEnd(const TraceLine& line) {
  line.AllowKeys({"event", "throws"});
  const bool throws = line.Has("throws");
  if (throws) {
    static_cast<void>(line.Text("throws"));
  }
  return QueryEnded{throws};
}

TraceEvent ReadLog(const TraceLine& line) {
  line.AllowKeys({"event", "level", "message"});
  static_cast<void>(line.Number("level"));
  static_cast<void>(line.Text("message"));
  return NoAnswer{};
}

template <HostCall Call>
TraceEvent ReadHostAnswer(const TraceLine& line) {
  if constexpr (Call == HostCall::GetSystemCreationClassName) {
    line.AllowKeys({"event", "call", "result"});
    return HostAnswered{Call, {line.Text("result"), false}};
  } else {
    line.AllowKeys({"event", "call", "result", "throws"});
    return HostAnswered{Call, line.ResultOrThrows()};
  }
}

TraceEvent ReadGetLocalTime(const TraceLine& line) {
  line.AllowKeys({"event", "call"});
  return NoAnswer{};
}

TraceEvent ReadGetName(const TraceLine& line) {
  line.AllowKeys({"event", "call", "result"});
  static_cast<void>(line.Text("result"));
  return NoAnswer{};
}

TraceEvent ReadGetClass(const TraceLine& line) {
  line.AllowKeys({"event", "call", "class", "found"});
  static_cast<void>(line.Text("class"));
  return ClassLookedUp{line.Flag("found")};
}

TraceEvent ReadCreateInstance(const TraceLine& line) {
  line.AllowKeys({"event", "call", "class", "instance"});
  static_cast<void>(line.Text("class"));
  static_cast<void>(line.Number("instance", 1, INT32_MAX));
  return NoAnswer{};
}

void CheckValue(const TraceLine& line) {
  constexpr std::size_t kDateTimeCharacters = 25;
  const std::string type = line.Text("type");
  if (type == "string") {
    static_cast<void>(line.Text("value"));
  } else if (type == "datetime") {
    if (line.Text("value").size() != kDateTimeCharacters) {
      line.Value("value").Refuse("a date-time of 25 characters");
    }
  } else if (type == "sint32") {
    static_cast<void>(line.Number("value"));
  } else if (type == "uint16") {
    static_cast<void>(line.Number("value", 0, UINT16_MAX));
  } else if (type == "uint8") {
    static_cast<void>(line.Number("value", 0, UINT8_MAX));
  } else {
    line.Value("type").Refuse("string, sint32, uint16, uint8 or datetime");
  }
}

TraceEvent ReadSetProperty(const TraceLine& line) {
  line.AllowKeys({"event", "call", "instance", "name", "type", "value"});
  static_cast<void>(line.Number("instance", 1, INT32_MAX));
  static_cast<void>(line.Text("name"));
  CheckValue(line);
  return NoAnswer{};
}

TraceEvent ReadCommit(const TraceLine& line) {
  line.AllowKeys({"event", "call", "instance"});
  static_cast<void>(line.Number("instance", 1, INT32_MAX));
  return NoAnswer{};
}

template <Question Asked>
TraceEvent ReadQuestion(const TraceLine& line) {
  line.AllowKeys({"event", "call", "result"});
  return QuestionAnswered{Asked, line.Flag("result")};
}

TraceEvent ReadDiscoverSPs(const TraceLine& line) {
  line.AllowKeys({"event", "call", "result"});
  return SpsDiscovered{line.Number("result")};
}

TraceEvent ReadComponentCount(const TraceLine& line) {
  line.AllowKeys({"event", "call", "id", "result"});
  return ComponentCounted{line.Identifier("id"), line.Number("result")};
}

TraceEvent ReadDotSend(const TraceLine& line) {
  line.AllowKeys({"event", "call", "class", "id", "sp", "size", "result", "length", "reply"});
  static_cast<void>(line.Number("class"));
  static_cast<void>(line.Number("size"));
  return DotCommandSent{line.Identifier("id"), line.Number("sp", 0, UINT8_MAX), line.Reply()};
}

TraceEvent ReadKestleSend(const TraceLine& line) {
  line.AllowKeys({"event", "call", "total", "code", "expected", "checksum", "data_length", "ack",
                  "read", "result", "length", "reply"});
  for (const char* const key : {"total", "expected", "checksum", "data_length"}) {
    static_cast<void>(line.Number(key));
  }
  static_cast<void>(line.Flag("ack"));
  static_cast<void>(line.Flag("read"));
  return KestleCommandSent{static_cast<unsigned char>(line.Number("code", 0, UINT8_MAX)),
                           line.Reply()};
}

constexpr NamedLine kHostCalls[] = {
    {"GetMachineTypeFromID", ReadHostAnswer<HostCall::GetMachineTypeFromID>},
    {"GetSystemName", ReadHostAnswer<HostCall::GetSystemName>},
    {"GetSystemCreationClassName", ReadHostAnswer<HostCall::GetSystemCreationClassName>},
    {"GetLocalTime", ReadGetLocalTime},
    {"GetName", ReadGetName},
    {"GetClass", ReadGetClass},
    {"CreateInstance", ReadCreateInstance},
    {"SetProperty", ReadSetProperty},
    {"Commit", ReadCommit},
};

constexpr NamedLine kSpCalls[] = {
    {"isDotcommand", ReadQuestion<Question::IsDotcommand>},
    {"isKestle", ReadQuestion<Question::IsKestle>},
    {"isQmvStop", ReadQuestion<Question::IsQmvStop>},
    {"isDornlibrary", ReadQuestion<Question::IsDornlibrary>},
    {"checkSPComm", ReadQuestion<Question::CheckSPComm>},
    {"buildDotCommandList", ReadQuestion<Question::BuildDotCommandList>},
    {"discoverSPs", ReadDiscoverSPs},
    {"getComponentdotCmdList", ReadComponentCount},
    {"sendDotCommand", ReadDotSend},
    {"sendKestleCommand", ReadKestleSend},
};

// By what stands in the key. Refuses what has no row.
TraceEvent ReadBy(const char* key, std::span<const NamedLine> lines, const TraceLine& line) {
  const json::Field field = line.Value(key);
  const auto found = std::ranges::find(lines, std::string_view(field.Text()), &NamedLine::name);
  if (found == lines.end()) {
    std::string names;
    for (const NamedLine& one : lines) {
      names += names.empty() ? "" : &one == &lines.back() ? " or " : ", ";
      names += one.name;
    }
    field.Refuse(names);
  }
  return found->read(line);
}

constexpr NamedLine kEvents[] = {
    {"query", ReadQuery},
    {"query_end", ReadQueryEnd},
    {"log", ReadLog},
    {"host", [](const TraceLine& line) { return ReadBy("call", kHostCalls, line); }},
    {"sp", [](const TraceLine& line) { return ReadBy("call", kSpCalls, line); }},
};

TraceEvent ReadOne(std::string_view line, const std::string& source) {
  // No line is deeper, or holds more.
  constexpr json::Bounds kBounds{2, 10'000};
  const json::Value value = json::ReadLine(line, source, kBounds);
  const json::Field field(value, source);
  if (!field.IsObject()) {
    field.Refuse("an object");
  }
  return ReadBy("event", kEvents, TraceLine(field));
}

}  // namespace

void ReadTrace(std::string_view text, const std::string& source,
               const std::function<void(TraceEvent event)>& take) {
  const std::string name = text::EscapeForPeople(source);
  if (text.size() > kMostTraceBytes) {
    throw text::InputError(name + ": expected at most " + std::to_string(kMostTraceBytes) +
                           " bytes, got more");
  }
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    take(ReadOne(text.substr(0, end), name + ": line " + std::to_string(number)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

}  // namespace strake::replay

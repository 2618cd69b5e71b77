// What a trace tells of a server's answers, one event a line.
#pragma once

#include "platform/server/HostSettings.h"
#include "platform/server/Reply.h"

#include <string>
#include <variant>
#include <vector>

namespace strake::replay {

struct QueryBegan {
  std::vector<std::string> classes;
};

struct QueryEnded {
  bool throws = false;
};

enum class HostCall { GetMachineTypeFromID, GetSystemName, GetSystemCreationClassName };

struct HostAnswered {
  HostCall call = HostCall::GetSystemName;
  platform::HostAnswer answer;
};

struct ClassLookedUp {
  bool found = false;
};

enum class Question {
  IsDotcommand,
  IsKestle,
  IsQmvStop,
  IsDornlibrary,
  CheckSPComm,
  BuildDotCommandList,
};

struct QuestionAnswered {
  Question question = Question::IsDotcommand;
  bool answer = false;
};

struct SpsDiscovered {
  int count = 0;
};

struct ComponentCounted {
  platform::Identifier identifier;
  int count = 0;
};

struct DotCommandSent {
  platform::Identifier identifier;
  int sp = 0;  // 0 to 255
  platform::Reply reply;
};

struct KestleCommandSent {
  unsigned char code = 0;
  platform::Reply reply;
};

// A line that says nothing of an answer: a log line, a property.
struct NoAnswer {};

using TraceEvent =
    std::variant<NoAnswer, QueryBegan, QueryEnded, HostAnswered, ClassLookedUp, QuestionAnswered,
                 SpsDiscovered, ComponentCounted, DotCommandSent, KestleCommandSent>;

}  // namespace strake::replay

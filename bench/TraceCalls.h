// The boundary calls of one query, out of its recorded trace.
#pragma once

#include "bench/Groups.h"
#include "plugin/host/TCIMDateTime.h"
#include "plugin/host/TCIMValue.h"
#include "plugin/spaccess/SPLibrary.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace strake::bench {

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

// What a property's value is made of.
using ValueSource =
    std::variant<std::string, int, unsigned short, unsigned char, NVELKZEV20::TCIMDateTime>;

struct KestleArguments {
  unsigned char total = 0;
  unsigned char code = 0;
  unsigned char expected = 0;
  unsigned char checksum = 0;
  bool acknowledge = false;
  bool isRead = false;
};

// One call: what its arguments are made of, and the arguments ready-made.
struct Call {
  Kind kind = Kind::Log;
  int level = 0;
  std::string text;  // a line, or a name
  ValueSource source;
  std::size_t instance = 0;
  int sp = 0;
  int size = 0;
  unsigned char commandClass = 0;
  std::vector<unsigned char> identifier;
  KestleArguments kestleArguments;

  NVELKZEV20::TCIMValue value;
  std::unique_ptr<dotCmd> dot;
  std::unique_ptr<KestleCmd> kestle;
};

NVELKZEV20::TCIMValue MakeValue(const ValueSource& source);
std::unique_ptr<dotCmd> MakeDotCommand(const Call& call);
std::unique_ptr<KestleCmd> MakeKestleCommand(const Call& call);

// The trace of one query of the group on its server.
std::string RecordTrace(const platform::ServerDescription& server, const Group& group);

// Its calls in order; without `logs` the log is left out.
std::vector<Call> CallsOf(const std::string& trace, bool logs);

}  // namespace strake::bench

// What the recording host writes down: every call that crosses the boundary,
// with what was handed over and what was alive at that moment.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace strake::strict {

enum class Call {
  Log,
  GetMachineTypeFromID,
  GetLocalTime,
  GetSystemName,
  GetSystemCreationClassName,
  GetName,
  GetClass,
  CreateInstance,
  SetProperty,
  Commit,
  DateTimeSet,
  DateTimeToString,
  GetSplibraryInstance,
  IsDotcommand,
  IsKestle,
  IsQmvStop,
  IsDornlibrary,
  CheckSPComm,
  DiscoverSPs,
  NewDotCommand,
  DeleteDotCommand,
  SendDotCommand,
  NewKestleCommand,
  DeleteKestleCommand,
  SendKestleCommand,
  BuildDotCommandList,
  GetComponentdotCmdList,
};

void PrintTo(Call call, std::ostream* stream);

// Which constructor a value comes from; a copy keeps its original's.
enum class Made { Empty, FromText, FromCString, FromInt, FromShort, FromByte, FromDateTime };

struct HeldValue {
  Made made = Made::Empty;
  std::string text = {};  // numbers in decimal
  bool isCopy = false;
};

// A map argument, value by value, without what tells copies apart.
using HeldMap = std::map<std::string, std::pair<Made, std::string>>;

// The eight arguments of a Kestle command.
struct KestleArguments {
  unsigned char totalLength = 0;
  unsigned char commandCode = 0;
  unsigned char expectedCode = 0;
  unsigned char checksum = 0;
  const unsigned char* commandData = nullptr;
  int commandDataLength = 0;
  bool acknowledge = false;
  bool isRead = false;
  bool operator==(const KestleArguments&) const = default;
};

// The five arguments of a dot command, pointers with what they point to.
struct DotArguments {
  int commandClass = 0;
  int identifierLength = 0;
  int secondLength = 0;
  std::string identifier = {};  // in dot notation
  const unsigned char* extraData = nullptr;
  int extraByte = -1;  // -1: no pointer
};

using Bytes = std::vector<unsigned char>;

struct Event {
  Call call = Call::Log;
  std::string text = {};     // message, name or identifier
  int number = 0;            // level, SP, argument; instances and commands by their ordinal
  int sp = -1;               // of a send
  HeldMap map = {};          // GetClass, CreateInstance, SetProperty, Commit
  HeldValue value = {};      // SetProperty
  bool gotNamespace = true;  // the handle that was given is the query's
  bool gotEmpty = true;      // the handle to fill was empty
  DotArguments dot = {};     // as the command stands at this moment
  KestleArguments kestle = {};
  bool isStatic = false;   // a message with static storage
  bool isChanged = false;  // a message that changed while it was being logged
  Bytes before = {};       // the reply buffer before and after a send
  Bytes after = {};
  int lengthBefore = 0;
  // Alive at this moment:
  long namespaceUses = 0;
  std::size_t contextValues = 0;  // values that equal the query context's
  std::size_t otherValues = 0;
};

}  // namespace strake::strict

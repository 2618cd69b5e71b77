// A host that records: host core, plug-in manager and driver library of its
// own, made from the declared interfaces alone. The newest stands behind the
// plug-in; it attaches the module when it is made and destroys the plug-in's
// object when it goes.
#pragma once

#include "plugin/host/ICIM.h"
#include "plugin/host/IPluginCallbacks.h"
#include "plugin/host/TRootObject.h"
#include "plugin/spaccess/SPLibrary.h"
#include "tests/strict/Events.h"

#include <boost/shared_ptr.hpp>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace strake::strict {

// What an SP answers to one command.
struct Reply {
  Bytes bytes = {};
  bool isCarriedOut = true;
  bool tellsLength = true;
  int fill = -1;  // a byte for the rest of the buffer; -1: left alone
};

// Thrown by the host's assertion handler. No std::exception.
struct AssertionFailed {
  std::string expression;
  long line = 0;
};

class StrictHost {
 public:
  enum class Gate { Open, Closed };  // what registration gives

  explicit StrictHost(Gate gate = Gate::Open);
  StrictHost(const StrictHost&) = delete;
  StrictHost& operator=(const StrictHost&) = delete;
  ~StrictHost();

  static StrictHost& Current();

  void Query(const std::vector<std::string>& classNames);

  // Records a call, then lets `onCall` see it: it may throw, or call the
  // plug-in again.
  Event& Record(Event event);
  // Records what happens in destructors and constructors: nobody may throw.
  void Note(Event event);

  [[nodiscard]] std::vector<const Event*> All(Call call) const;
  [[nodiscard]] std::size_t Count(Call call) const { return All(call).size(); }
  [[nodiscard]] std::vector<std::string> Lines() const;
  [[nodiscard]] std::size_t CountLines(std::string_view line) const;

  // Called by what the plug-in reaches.
  NVELKZEV20::TPluginManagerProvider* Register(NVELKZEV20::IPluginCallbacks* plugin);
  void AddCommand(const dotCmd* command, const DotArguments& arguments,
                  const unsigned char* identifier);
  void RemoveCommand(const dotCmd* command);
  void AddCommand(const KestleCmd* command, const KestleArguments& arguments);
  void RemoveCommand(const KestleCmd* command);
  bool Send(const dotCmd* command, unsigned char* reply, int* replyLength, int sp, int replySize);
  bool Send(const KestleCmd* command, unsigned char* reply, int* replyLength);
  int NextInstance() { return ++fInstances; }

  // The server.
  std::string machineType = "5127-ABC";
  std::string systemName = "a system";
  bool isDotcommand = true;
  bool isKestle = false;
  bool isQmvStop = false;
  bool isDornlibrary = false;
  bool checksSPComm = true;
  bool buildsList = true;
  int spCount = 1;
  std::map<std::string, Reply> replies;  // by identifier; Kestle commands by code
  Reply otherReply;
  std::map<std::string, int> counts;  // by a component's first three numbers; else 1
  // Where the host makes nothing, it leaves the handle to fill alone.
  std::function<bool(const Event&)> makesNothing;

  std::function<void(const Event&)> onCall;

  // What was recorded.
  std::deque<Event> events;
  std::vector<std::string> registrations;  // display names

  NVELKZEV20::IPluginCallbacks* plugin = nullptr;
  boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace;

  [[nodiscard]] std::size_t LiveDotCommands() const { return fDotCommands.size(); }
  [[nodiscard]] std::size_t LiveKestleCommands() const { return fKestleCommands.size(); }

 private:
  struct DotCommand {
    int ordinal = 0;
    DotArguments arguments;
    const unsigned char* identifier = nullptr;
  };
  struct KestleCommand {
    int ordinal = 0;
    KestleArguments arguments;
  };

  bool Answer(const Reply& reply, Event& event, unsigned char* buffer, std::size_t size,
              int* replyLength);

  std::map<const dotCmd*, DotCommand> fDotCommands;
  std::map<const KestleCmd*, KestleCommand> fKestleCommands;
  int fCommands = 0;
  int fInstances = 0;
  Gate fGate;
  StrictHost* fBefore;  // stands behind the plug-in again when this one goes
};

// All values of the host that are alive now.
const std::map<const NVELKZEV20::TCIMValue*, HeldValue>& LiveValues();
HeldValue Held(const NVELKZEV20::TCIMValue& value);
HeldMap Held(const NVELKZEV20::TNameToValueMap& map);

std::string DotText(const unsigned char* identifier, int length);

}  // namespace strake::strict

// What crosses the boundary between the plug-in and its platform, as the
// stand-ins tell it: one member a kind of call. An observer records (the trace,
// the tests) and may ask for faults (the tests).
#pragma once

#include <span>
#include <string>
#include <vector>

namespace NVELKZEV20 {
class TCIMValue;
}

namespace strake::platform {

enum class BoundaryCall {
  Log,
  GetMachineTypeFromID,
  GetSystemName,
  GetSystemCreationClassName,
  GetLocalTime,
  GetName,
  GetClass,
  CreateInstance,
  SetProperty,
  Commit,
  SpQuestion,  // the bool questions, discoverSPs and buildDotCommandList
  ComponentCount,
  DotSend,
  KestleSend,
};

// What a call shall do instead of its work. A fault that a call cannot show
// (an empty handle from a send) is no fault.
enum class Fault {
  None,
  StandardException,  // throws std::runtime_error("injected fault")
  OtherException,     // throws an int
  EmptyHandle,        // GetClass, CreateInstance
  SendFails,          // the sends: false, length 0, no bytes
  SendIsEmpty,        // the sends: true, length 0, no bytes
  OutOfMemory,        // throws std::bad_alloc
  UntouchedHandle,    // GetClass, CreateInstance: the handle stays what it was
  UntouchedLength,    // the sends: as ever, but no length is written
};

// The exceptions among them.
constexpr bool Throws(Fault fault) {
  return fault == Fault::StandardException || fault == Fault::OtherException ||
         fault == Fault::OutOfMemory;
}

struct DotSend {
  int commandClass = 0;
  std::span<const unsigned char> identifier;
  int secondLength = 0;
  const unsigned char* extraData = nullptr;
  int sp = 0;
  int size = 0;
  bool result = false;
  int length = 0;  // as reported
  std::span<const unsigned char> reply;
};

struct KestleSend {
  int total = 0;
  int code = 0;
  int expected = 0;
  int checksum = 0;
  const unsigned char* data = nullptr;
  int dataLength = 0;
  bool acknowledge = false;
  bool isRead = false;
  bool result = false;
  int length = 0;  // as reported
  std::span<const unsigned char> reply;
};

class BoundaryObserver {
 public:
  BoundaryObserver() = default;
  BoundaryObserver(const BoundaryObserver&) = delete;
  BoundaryObserver& operator=(const BoundaryObserver&) = delete;
  virtual ~BoundaryObserver() = default;

  // Asked when a call begins, before it does anything.
  virtual Fault BeforeCall(BoundaryCall /*call*/) { return Fault::None; }

  virtual void OnQuery(const std::vector<std::string>& /*classes*/) {}
  virtual void OnQueryEnd() {}
  virtual void OnQueryThrew(const std::string& /*text*/) {}
  virtual void OnLog(int /*level*/, const std::string& /*message*/) {}
  // GetMachineTypeFromID, GetSystemName, GetSystemCreationClassName, GetName.
  virtual void OnHostText(BoundaryCall /*call*/, const std::string& /*result*/) {}
  virtual void OnHostThrew(BoundaryCall /*call*/, const std::string& /*text*/) {}
  virtual void OnGetLocalTime() {}
  virtual void OnGetClass(const std::string& /*name*/, bool /*found*/) {}
  virtual void OnCreateInstance(const std::string& /*className*/, unsigned long /*instance*/) {}
  virtual void OnSetProperty(unsigned long /*instance*/, const std::string& /*name*/,
                             const NVELKZEV20::TCIMValue& /*value*/) {}
  virtual void OnCommit(unsigned long /*instance*/) {}
  // isDotcommand, isKestle, isQmvStop, isDornlibrary, checkSPComm, buildDotCommandList.
  virtual void OnSpQuestion(const char* /*call*/, bool /*result*/) {}
  virtual void OnDiscoverSPs(int /*result*/) {}
  virtual void OnComponentCount(std::span<const unsigned char> /*identifier*/, int /*result*/) {}
  // The reply buffer as a send finds it; how the send ends is told after it.
  virtual void OnReplyBuffer(std::span<const unsigned char> /*bytes*/) {}
  virtual void OnDotSend(const DotSend& /*send*/) {}
  virtual void OnKestleSend(const KestleSend& /*send*/) {}
};

}  // namespace strake::platform

#include "plugin/spaccess/SPLibrary.h"

#include "platform/boundary/BeginCall.h"
#include "platform/spdriver/CommandContent.h"
#include "platform/spdriver/CommandList.h"
#include "platform/spdriver/Delivery.h"
#include "platform/spdriver/Processors.h"

#include <chrono>
#include <thread>

namespace NVELKZEV20 {

using strake::platform::BeginCall;
using strake::platform::BoundaryCall;
using strake::platform::CountInList;
using strake::platform::Deliver;
using strake::platform::Delivery;
using strake::platform::DotSend;
using strake::platform::DriverState;
using strake::platform::Fault;
using strake::platform::FaultReply;
using strake::platform::kComponentIdentifierBytes;
using strake::platform::KestleSend;
using strake::platform::kListBufferBytes;
using strake::platform::Reply;
using strake::platform::ReplyPlace;
using strake::platform::SpDescription;
using strake::platform::SpKind;
using strake::platform::TheDriver;
using strake::platform::WriteCommandList;

namespace {

// The room that every caller of a Kestle send offers.
constexpr int kKestleReplyBytes = 255;

// A yes-or-no question, answered out of the description.
template <typename Question>
bool Ask(const char* call, Question question) {
  DriverState& driver = TheDriver();
  BeginCall(driver.observer, BoundaryCall::SpQuestion);
  const bool result = question(driver.processors.Description());
  if (driver.observer != nullptr) {
    driver.observer->OnSpQuestion(call, result);
  }
  return result;
}

// Tells of the buffer, and takes the time that a command takes.
void BeginSend(const ReplyPlace& place) {
  if (TheDriver().observer != nullptr) {
    TheDriver().observer->OnReplyBuffer(place.Room());
  }
  const double latencyMs = TheDriver().processors.Description().latencyMs;
  if (latencyMs > 0) {
    std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(latencyMs));
  }
}

}  // namespace

SPLibrary* SPLibrary::GetSplibraryInstance(int /*reserved*/) {
  static SPLibrary library;
  return &library;
}

// Members by the platform's declaration, without any state in the object.
// NOLINTBEGIN(readability-convert-member-functions-to-static,readability-non-const-parameter)

bool SPLibrary::isDotcommand() {
  return Ask("isDotcommand", [](const SpDescription& sp) {
    return sp.kind == SpKind::Orlo || sp.kind == SpKind::Both;
  });
}

bool SPLibrary::isKestle() {
  return Ask("isKestle", [](const SpDescription& sp) {
    return sp.kind == SpKind::Tavit || sp.kind == SpKind::Both;
  });
}

bool SPLibrary::isQmvStop() {
  return Ask("isQmvStop", [](const SpDescription& sp) { return sp.managementServerStopped; });
}

bool SPLibrary::isDornlibrary() {
  return Ask("isDornlibrary", [](const SpDescription& sp) { return sp.dornLibrary; });
}

bool SPLibrary::checkSPComm() {
  return Ask("checkSPComm", [](const SpDescription& sp) { return sp.communicates; });
}

int SPLibrary::discoverSPs() {
  DriverState& driver = TheDriver();
  BeginCall(driver.observer, BoundaryCall::SpQuestion);
  const int count = driver.processors.Description().count;
  if (driver.observer != nullptr) {
    driver.observer->OnDiscoverSPs(count);
  }
  return count;
}

bool SPLibrary::sendDotCommand(dotCmd* command, unsigned char* reply, int* replyLength,
                               int spInstance, int replySize) {
  DriverState& driver = TheDriver();
  const Fault fault = BeginCall(driver.observer, BoundaryCall::DotSend);
  const ReplyPlace place{reply, replySize, replyLength, fault == Fault::UntouchedLength};
  BeginSend(place);
  DotSend send;
  send.sp = spInstance;
  send.size = replySize;
  const Reply* answer = FaultReply(fault);
  if (command != nullptr) {
    send.commandClass = dotCmdContent::Class(*command);
    send.identifier = dotCmdContent::Identifier(*command);
    send.secondLength = dotCmdContent::SecondLength(*command);
    send.extraData = dotCmdContent::ExtraData(*command);
    if (answer == nullptr) {
      answer = driver.processors.TakeDotReply(spInstance, send.identifier);
    }
  }
  const Delivery delivery = Deliver(answer, place);
  if (driver.observer != nullptr) {
    send.result = delivery.result;
    send.length = delivery.length;
    send.reply = delivery.bytes;
    driver.observer->OnDotSend(send);
  }
  return delivery.result;
}

bool SPLibrary::sendKestleCommand(KestleCmd* command, int* replyLength, unsigned char* reply) {
  DriverState& driver = TheDriver();
  const Fault fault = BeginCall(driver.observer, BoundaryCall::KestleSend);
  const ReplyPlace place{reply, kKestleReplyBytes, replyLength, fault == Fault::UntouchedLength};
  BeginSend(place);
  const Reply* answer = FaultReply(fault);
  KestleSend send;
  if (command != nullptr) {
    send.total = KestleCmdContent::TotalLength(*command);
    send.code = KestleCmdContent::Code(*command);
    send.expected = KestleCmdContent::ExpectedCode(*command);
    send.checksum = KestleCmdContent::Checksum(*command);
    send.data = KestleCmdContent::Data(*command);
    send.dataLength = KestleCmdContent::DataLength(*command);
    send.acknowledge = KestleCmdContent::Acknowledge(*command);
    send.isRead = KestleCmdContent::IsRead(*command);
    if (answer == nullptr) {
      answer = driver.processors.TakeKestleReply(static_cast<unsigned char>(send.code));
    }
  }
  const Delivery delivery = Deliver(answer, place);
  if (driver.observer != nullptr) {
    send.result = delivery.result;
    send.length = delivery.length;
    send.reply = delivery.bytes;
    driver.observer->OnKestleSend(send);
  }
  return delivery.result;
}

bool SPLibrary::buildDotCommandList(unsigned char* first, unsigned char* second,
                                    unsigned char* third) {
  return Ask("buildDotCommandList", [&](const SpDescription& sp) {
    if (!sp.commandList || first == nullptr || second == nullptr || third == nullptr) {
      return false;
    }
    using Buffer = std::span<unsigned char, kListBufferBytes>;
    WriteCommandList(sp.components,
                     {Buffer(first, kListBufferBytes), Buffer(second, kListBufferBytes),
                      Buffer(third, kListBufferBytes)});
    return true;
  });
}

int SPLibrary::getComponentdotCmdList(unsigned char* identifier, int identifierLength,
                                      unsigned char* first, unsigned char* second,
                                      unsigned char* third) {
  DriverState& driver = TheDriver();
  BeginCall(driver.observer, BoundaryCall::ComponentCount);
  std::span<const unsigned char> asked;
  if (identifier != nullptr && identifierLength > 0) {
    asked = {identifier, static_cast<std::size_t>(identifierLength)};
  }
  int count = -1;
  if (asked.size() == kComponentIdentifierBytes && first != nullptr && second != nullptr &&
      third != nullptr) {
    using Buffer = std::span<const unsigned char, kListBufferBytes>;
    count = CountInList(asked.first<kComponentIdentifierBytes>(),
                        {Buffer(first, kListBufferBytes), Buffer(second, kListBufferBytes),
                         Buffer(third, kListBufferBytes)});
  }
  if (driver.observer != nullptr) {
    driver.observer->OnComponentCount(asked, count);
  }
  return count;
}

// NOLINTEND(readability-convert-member-functions-to-static,readability-non-const-parameter)

}  // namespace NVELKZEV20

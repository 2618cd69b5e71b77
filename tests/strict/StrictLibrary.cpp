// The driver library: commands that are known while they live, and a scripted
// service processor behind them.
#include "tests/strict/StrictHost.h"

#include <algorithm>
#include <span>
#include <stdexcept>

namespace strake::strict {
namespace {

constexpr int kKestleReplySize = 255;

}  // namespace

std::string DotText(const unsigned char* identifier, int length) {
  std::string text;
  for (int i = 0; i < length; ++i) {
    if (i != 0) text += '.';
    text += std::to_string(identifier[i]);
  }
  return text;
}

void StrictHost::AddCommand(const dotCmd* command, const DotArguments& arguments,
                            const unsigned char* identifier) {
  fDotCommands[command] = {++fCommands, arguments, identifier};
  Note({.call = Call::NewDotCommand,
        .text = arguments.identifier,
        .number = fCommands,
        .dot = arguments});
}

void StrictHost::RemoveCommand(const dotCmd* command) {
  const auto found = fDotCommands.find(command);
  if (found == fDotCommands.end()) return;  // another host's
  Note({.call = Call::DeleteDotCommand,
        .text = found->second.arguments.identifier,
        .number = found->second.ordinal});
  fDotCommands.erase(found);
}

void StrictHost::AddCommand(const KestleCmd* command, const KestleArguments& arguments) {
  fKestleCommands[command] = {++fCommands, arguments};
  Note({.call = Call::NewKestleCommand, .number = fCommands, .kestle = arguments});
}

void StrictHost::RemoveCommand(const KestleCmd* command) {
  Note({.call = Call::DeleteKestleCommand, .number = fKestleCommands.at(command).ordinal});
  fKestleCommands.erase(command);
}

bool StrictHost::Answer(const Reply& reply, Event& event, unsigned char* buffer, std::size_t size,
                        int* replyLength) {
  const std::span<unsigned char> room(buffer, size);
  if (reply.fill != -1) std::ranges::fill(room, static_cast<unsigned char>(reply.fill));
  const std::size_t written = std::min(size, reply.bytes.size());
  std::copy_n(reply.bytes.begin(), written, room.begin());
  event.after.assign(room.begin(), room.end());
  if (reply.tellsLength) *replyLength = static_cast<int>(reply.bytes.size());
  return reply.isCarriedOut;
}

bool StrictHost::Send(const dotCmd* command, unsigned char* reply, int* replyLength, int sp,
                      int replySize) {
  const DotCommand& sent = fDotCommands.at(command);
  DotArguments now = sent.arguments;
  now.identifier = DotText(sent.identifier, now.identifierLength);
  now.extraByte = now.extraData == nullptr ? -1 : *now.extraData;
  Event& event = Record({.call = Call::SendDotCommand,
                         .text = now.identifier,
                         .number = sent.ordinal,
                         .sp = sp,
                         .dot = now,
                         .before = Bytes(reply, reply + replySize),
                         .lengthBefore = *replyLength});
  const auto scripted = replies.find(now.identifier);
  return Answer(scripted == replies.end() ? otherReply : scripted->second, event, reply,
                static_cast<std::size_t>(replySize), replyLength);
}

bool StrictHost::Send(const KestleCmd* command, unsigned char* reply, int* replyLength) {
  const KestleCommand& sent = fKestleCommands.at(command);
  Event& event = Record({.call = Call::SendKestleCommand,
                         .text = std::to_string(sent.arguments.commandCode),
                         .number = sent.ordinal,
                         .kestle = sent.arguments,
                         .before = Bytes(reply, reply + kKestleReplySize),
                         .lengthBefore = *replyLength});
  const auto scripted = replies.find(event.text);
  return Answer(scripted == replies.end() ? otherReply : scripted->second, event, reply,
                kKestleReplySize, replyLength);
}

}  // namespace strake::strict

using strake::strict::Call;
using strake::strict::StrictHost;

dotCmd::dotCmd(unsigned char commandClass, int identifierLength, int secondLength,
               const unsigned char* identifier, const unsigned char* extraData)
    : fIdentifier(identifier),
      fExtraData(extraData),
      fIdentifierLength(identifierLength),
      fSecondLength(secondLength),
      fCommandClass(commandClass) {
  StrictHost::Current().AddCommand(
      this,
      {.commandClass = commandClass,
       .identifierLength = identifierLength,
       .secondLength = secondLength,
       .identifier = strake::strict::DotText(identifier, identifierLength),
       .extraData = extraData,
       .extraByte = extraData == nullptr ? -1 : *extraData},
      identifier);
}

dotCmd::~dotCmd() { StrictHost::Current().RemoveCommand(this); }

KestleCmd::KestleCmd(unsigned char totalLength, unsigned char commandCode,
                     unsigned char expectedCode, unsigned char checksum, unsigned char* commandData,
                     int commandDataLength, bool acknowledge, bool isRead)
    : fCommandData(commandData),
      fCommandDataLength(commandDataLength),
      fTotalLength(totalLength),
      fCommandCode(commandCode),
      fExpectedCode(expectedCode),
      fChecksum(checksum),
      fAcknowledge(acknowledge),
      fIsRead(isRead) {
  StrictHost::Current().AddCommand(this, {.totalLength = totalLength,
                                          .commandCode = commandCode,
                                          .expectedCode = expectedCode,
                                          .checksum = checksum,
                                          .commandData = commandData,
                                          .commandDataLength = commandDataLength,
                                          .acknowledge = acknowledge,
                                          .isRead = isRead});
}

KestleCmd::~KestleCmd() { StrictHost::Current().RemoveCommand(this); }

namespace NVELKZEV20 {

namespace {

bool Answers(Call call, bool StrictHost::*answer) {
  StrictHost& host = StrictHost::Current();
  host.Record({.call = call});
  return host.*answer;
}

}  // namespace

SPLibrary* SPLibrary::GetSplibraryInstance(int reserved) {
  static SPLibrary library;
  StrictHost::Current().Record({.call = Call::GetSplibraryInstance, .number = reserved});
  return &library;
}

bool SPLibrary::isDotcommand() { return Answers(Call::IsDotcommand, &StrictHost::isDotcommand); }
bool SPLibrary::isKestle() { return Answers(Call::IsKestle, &StrictHost::isKestle); }
bool SPLibrary::isQmvStop() { return Answers(Call::IsQmvStop, &StrictHost::isQmvStop); }
bool SPLibrary::isDornlibrary() { return Answers(Call::IsDornlibrary, &StrictHost::isDornlibrary); }
bool SPLibrary::checkSPComm() { return Answers(Call::CheckSPComm, &StrictHost::checksSPComm); }

int SPLibrary::discoverSPs() {
  StrictHost::Current().Record({.call = Call::DiscoverSPs});
  return StrictHost::Current().spCount;
}

bool SPLibrary::sendDotCommand(dotCmd* command, unsigned char* reply, int* replyLength,
                               int spInstance, int replySize) {
  return StrictHost::Current().Send(command, reply, replyLength, spInstance, replySize);
}

bool SPLibrary::sendKestleCommand(KestleCmd* command, int* replyLength, unsigned char* reply) {
  return StrictHost::Current().Send(command, reply, replyLength);
}

namespace {

// Marks the three work buffers, so that they are known again in their order.
constexpr std::size_t kListSize = 4096;

bool AreTheList(const unsigned char* first, const unsigned char* second,
                const unsigned char* third) {
  const auto holds = [](const unsigned char* buffer, unsigned char mark) {
    const std::span bytes(buffer, kListSize);
    return std::ranges::all_of(bytes, [mark](unsigned char byte) { return byte == mark; });
  };
  return holds(first, 1) && holds(second, 2) && holds(third, 3);
}

}  // namespace

bool SPLibrary::buildDotCommandList(unsigned char* first, unsigned char* second,
                                    unsigned char* third) {
  std::fill_n(first, kListSize, static_cast<unsigned char>(1));
  std::fill_n(second, kListSize, static_cast<unsigned char>(2));
  std::fill_n(third, kListSize, static_cast<unsigned char>(3));
  return Answers(Call::BuildDotCommandList, &StrictHost::buildsList);
}

int SPLibrary::getComponentdotCmdList(unsigned char* identifier, int identifierLength,
                                      unsigned char* first, unsigned char* second,
                                      unsigned char* third) {
  StrictHost& host = StrictHost::Current();
  const std::string component = strake::strict::DotText(identifier, identifierLength);
  host.Record(
      {.call = Call::GetComponentdotCmdList, .text = component, .number = identifierLength});
  if (!AreTheList(first, second, third)) throw std::logic_error("not the list that was built");
  const auto found = host.counts.find(strake::strict::DotText(identifier, 3));
  return found == host.counts.end() ? 1 : found->second;
}

}  // namespace NVELKZEV20

// The command senders. Each logs its trail through its owner's gate and returns
// the reply length as the SP reported it, 0 when nothing was sent.
#pragma once

#include "plugin/spaccess/SPLibrary.h"

#include <cstddef>
#include <string_view>

namespace strake {

// What a send is made of; the buffers belong to the caller.
struct DotCommandCall {
  unsigned char commandClass;
  int identifierLength;
  int secondLength;
  const unsigned char* identifier;
  const unsigned char* extraData;
  unsigned char* reply;
  int replySize;
  unsigned char* status;  // 1 on success, else 0
  NVELKZEV20::SPLibrary* spLib;
  unsigned char sp;
};

// Dot commands have two owners, each with its own wording.
struct SenderWording {
  std::string_view entered;
  std::string_view sent;
  std::string_view completed;
  bool namesInstance;  // the sent line tells the SP instance
};

int SendDotCommand(const void* gate, const SenderWording& wording, const DotCommandCall& call);

// The reply buffer of a Kestle command, as the SP driver library fixes it.
inline constexpr std::size_t kKestleReplySize = 255;

struct KestleCommandCall {
  unsigned char length;
  unsigned char commandCode;
  unsigned char expectedCode;
  unsigned char checksum;
  unsigned char* commandData;
  int commandDataLength;
  bool acknowledge;
  bool isRead;
  unsigned char* reply;  // kKestleReplySize bytes
  unsigned char* status;
  NVELKZEV20::SPLibrary* spLib;
};

int SendKestleCommand(const void* gate, const KestleCommandCall& call);

}  // namespace strake

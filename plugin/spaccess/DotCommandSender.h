// The sender that both owners of dot commands share: one trail, two wordings.
#pragma once

#include "plugin/spaccess/SPLibrary.h"

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

// How an owner words its trail.
struct SenderWording {
  std::string_view entered;
  std::string_view sent;
  std::string_view completed;
  bool namesInstance;  // the sent line tells the SP instance
};

// Sends, logs through `gate` and returns the reply length as reported, 0 when
// nothing was sent.
int SendDotCommand(const void* gate, const SenderWording& wording, const DotCommandCall& call);

}  // namespace strake

// One Orlo service processor, as the configuration builders work on it: its
// commands and the identity of its instances.
#pragma once

#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/frame/base/InstanceBuilder.h"
#include "plugin/spaccess/ByteView.h"
#include "plugin/spaccess/DotIdentifier.h"

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <span>
#include <string>

namespace strake {

// What a command carries beside its identifier: nothing, told by a zero byte.
// Some commands have such a byte of their own.
inline constexpr unsigned char kNoExtraData = 0;

// The way of a builder's commands to one SP.
struct SpLink {
  TStrakePluginCallbacks& callbacks;
  NVELKZEV20::SPLibrary* spLib;
  unsigned char sp;

  // Sends `identifier` into a cleared buffer. True when data came: the command
  // was carried out and its reply is not empty.
  template <std::size_t Size>
  bool Ask(std::span<const unsigned char> identifier, ReplyBuffer<Size>& reply,
           const unsigned char* extraData = &kNoExtraData) const {
    reply.Clear();
    return AskUncleared(identifier, reply, extraData);
  }

  // Leaves what the buffer holds where the reply does not reach.
  template <std::size_t Size>
  bool AskUncleared(std::span<const unsigned char> identifier, ReplyBuffer<Size>& reply,
                    const unsigned char* extraData = &kNoExtraData) const {
    unsigned char status = 0;
    reply.length = callbacks.sendCommand(kCommandClass, static_cast<int>(identifier.size()), 0,
                                         identifier.data(), extraData, reply.bytes.data(),
                                         static_cast<int>(Size), &status, spLib, sp);
    return status != 0 && reply.length != 0;
  }
};

// What a builder of an SP's instances was given, and the context that it made
// for its class look-ups.
struct ServiceProcessor {
  SpLink link;
  boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace;
  std::string MTM;
  std::string systemName;
  NVELKZEV20::ContextMap context = MakeContext();
  std::string nodeName = MakeText(MTM, "-Node", NodeNumber(link.sp));

  // The identity of an instance of this SP, under the SP's own name or another.
  [[nodiscard]] InstanceIdentity Identity() const { return Identity(nodeName); }
  [[nodiscard]] InstanceIdentity Identity(const std::string& name) const {
    return {cimNamespace, context, name, systemName, NodeNumber(link.sp)};
  }
};

}  // namespace strake

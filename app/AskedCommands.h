// What the plug-in asks service processors for, as far as a description tells.
#pragma once

#include "platform/server/ServerDescription.h"

#include <string>

namespace strake::app {

// Every dot command that the plug-in would send to an SP that answers. An
// instance-numbered one is sent for as many instances as are counted.
enum class Asked {
  Never,
  Yes,
  BeyondCount,  // it is numbered, and the count of its component is lower
};
Asked IsDotCommandAsked(const platform::Identifier& identifier, const platform::SpDescription& sp);

// The identifier's fourth byte plays no part.
bool IsComponentCounted(const platform::Identifier& identifier);

bool IsKestleCommandAsked(unsigned char code);

// The first four characters of a machine type-model say it.
bool HasTavitProcessor(const std::string& machineTypeModel);

// The answer to "discoverSPs" as the plug-in takes it: in eight bits.
std::size_t CountedProcessors(const platform::SpDescription& sp);

}  // namespace strake::app

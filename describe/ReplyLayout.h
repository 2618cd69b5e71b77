// How the reply of a dot command is laid out, by what the plug-in calls the command.
#pragma once

#include "plugin/config/Records.h"

#include <string_view>

namespace strake::describe {

// Null when it is no element record.
const RecordLayout* FindRecord(std::string_view command);

// Of a reply that is one value; null for what is none of these.
ValueDecoder FindDecoder(std::string_view command);

}  // namespace strake::describe

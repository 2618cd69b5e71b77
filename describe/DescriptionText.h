// Writes a server description for people and for the next run.
#pragma once

#include "platform/server/ServerDescription.h"

#include <optional>
#include <string>
#include <vector>

namespace strake::describe {

// Where the description comes from, for people.
struct Capture {
  std::string source;
  std::vector<std::string> notes;
};

enum class ReplyForm {
  Bytes,    // one line, the shortest
  Records,  // elements and texts, where a reply is exactly these
};

// The JSON text (strake-server/1): one command a line, or one element a line; what
// is as by default left out, but for the machine type-model and the system's name.
std::string DescriptionText(const platform::ServerDescription& server,
                            const std::optional<Capture>& capture, ReplyForm form);

}  // namespace strake::describe

// The replies of a command as a description writes them.
#pragma once

#include "platform/server/Reply.h"

#include <cstddef>
#include <string>

namespace strake::describe {

// On one line: bytes, and what else a reply is when it is not these alone.
void AppendReplies(std::string& out, const platform::ReplySequence& replies);

// The reply as elements, one a line, or as a text, when the command's replies are
// such and it is exactly what these forms stand for; else, and a sequence, as above.
// `depth` counts the blocks around it.
void AppendAsRecord(std::string& out, std::size_t depth, const platform::Identifier& command,
                    const platform::ReplySequence& replies);

}  // namespace strake::describe

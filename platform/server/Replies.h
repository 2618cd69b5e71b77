// The forms in which a description writes a reply.
#pragma once

#include "json/Field.h"
#include "platform/server/Reply.h"

namespace strake::platform {

// One reply, or an array of replies. Throws text::InputError.
ReplySequence ReadReplies(const json::Field& field);

}  // namespace strake::platform

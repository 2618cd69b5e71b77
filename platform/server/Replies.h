// The forms in which a description writes a reply.
#pragma once

#include "platform/server/Field.h"
#include "platform/server/Reply.h"

namespace strake::platform {

// One reply, or an array of replies. Throws DescriptionError.
ReplySequence ReadReplies(const Field& field);

}  // namespace strake::platform

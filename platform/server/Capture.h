// Where a description comes from: "capture" tells people, and changes no answer.
#pragma once

#include "platform/server/Field.h"

namespace strake::platform {

// Throws DescriptionError.
void CheckCapture(const Field& field);

}  // namespace strake::platform

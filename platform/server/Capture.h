// Where a description comes from: "capture" tells people, and changes no answer.
#pragma once

#include "json/Field.h"

namespace strake::platform {

// Throws text::InputError.
void CheckCapture(const json::Field& field);

}  // namespace strake::platform

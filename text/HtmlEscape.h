// Text of unknown origin within an HTML page.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// Appends what reads as EscapeForPeople has it, wherever markup may hold text or
// a quoted attribute: & < > " ' are character references.
void AppendHtml(std::string& out, std::string_view text);

}  // namespace strake::text

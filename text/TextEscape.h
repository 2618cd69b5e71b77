// Text of unknown origin, made safe to write: for people, as UTF-8, in JSON.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// \xNN.
void AppendEscapedByte(std::string& out, unsigned char byte);

// Bytes that are not valid UTF-8 become \xNN; everything else stays.
std::string ToValidUtf8(std::string_view text);

// Valid UTF-8 on one line: line feed, tabulator and carriage return become \n,
// \t and \r; every byte of other control characters, of characters that turn
// the writing direction or show nothing, and of invalid UTF-8 becomes \xNN.
std::string EscapeForPeople(std::string_view text);

// Finished JSON, in valid UTF-8, with U+007F to U+009F and the characters that
// turn the writing direction as \uXXXX: another spelling of the same texts.
std::string EscapeJson(std::string_view json);

}  // namespace strake::text

// Texts that an XML document can hold.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// The text without what XML 1.0 has no place for, before entities are put in:
// controls other than tabulator and line feed, U+FFFE, U+FFFF and bytes that are
// not valid UTF-8 become \xNN, byte by byte. So does a carriage return, for a
// parser makes a line feed of it.
std::string XmlText(std::string_view text);

}  // namespace strake::text

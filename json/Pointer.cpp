#include "json/Pointer.h"

#include "text/Quote.h"

namespace strake::json {

void AppendToPointer(std::string& pointer, std::string_view token) {
  pointer += '/';
  for (const char character : token) {
    if (character == '~') {
      pointer += "~0";
    } else if (character == '/') {
      pointer += "~1";
    } else {
      pointer += character;
    }
  }
}

std::string PrintablePointer(std::string_view pointer) {
  return pointer.empty() ? "the top level" : text::Printable(pointer);
}

}  // namespace strake::json

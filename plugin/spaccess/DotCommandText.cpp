#include "plugin/spaccess/DotCommandText.h"

namespace strake {

void AppendPart(std::string& text, const DotCommandText& dotCommand) {
  for (const unsigned char byte : dotCommand.identifier) {
    AppendPart(text, byte);
    text.push_back('.');
  }
}

}  // namespace strake

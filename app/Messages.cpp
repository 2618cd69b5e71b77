#include "app/Messages.h"

#include "os/OutputFile.h"
#include "text/TextEscape.h"

#include <string>

namespace strake::app {

void TellError(std::string_view text) {
  os::WriteStandardError("strake: " + text::EscapeForPeople(text) + "\n");
}

void TellWarning(std::string_view text) { TellError("warning: " + std::string(text)); }

}  // namespace strake::app

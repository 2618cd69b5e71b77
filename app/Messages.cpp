#include "app/Messages.h"

#include "os/OutputFile.h"
#include "text/TextEscape.h"

#include <string>

namespace strake::app {

void TellError(std::string_view text) {
  os::WriteStandardError(std::string(kMessagePrefix) + text::EscapeForPeople(text) + "\n");
}

std::string WarningLine(std::string_view text) {
  return std::string(kMessagePrefix) + "warning: " + text::EscapeForPeople(text) + "\n";
}

void TellWarning(std::string_view text) { os::WriteStandardError(WarningLine(text)); }

void TellFinding(const report::Finding& finding) {
  std::string text(report::SeverityName(finding.severity));
  if (finding.sp) {
    text.append(": SP ").append(std::to_string(*finding.sp));
  }
  TellError(text.append(": ").append(finding.text));
}

}  // namespace strake::app

#include "app/Check.h"

#include "app/Errors.h"
#include "app/Input.h"
#include "app/Messages.h"
#include "app/Server.h"
#include "app/UnusedParts.h"
#include "os/OutputFile.h"
#include "text/InputError.h"
#include "text/TextEscape.h"

#include <string>
#include <vector>

namespace strake::app {
namespace {

// A file with more of them has one fault that shows many times.
constexpr std::size_t kMostWarnings = 20;

std::string Counted(long long count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Processors(const platform::SpDescription& sp) {
  switch (sp.kind) {
    case platform::SpKind::Tavit:
      return "1 Tavit processor";
    case platform::SpKind::Both:
      return Counted(sp.count, "service processor") + " and 1 Tavit processor";
    case platform::SpKind::Orlo:
    case platform::SpKind::None:
      break;
  }
  return Counted(sp.count, "service processor");
}

std::string Line(const std::string& text) { return text::EscapeForPeople(text) + "\n"; }

std::string Verdict(const std::string& name, const Server& server) {
  std::string line =
      name + " is fine: kind " + server.facts.kind + ", " + Processors(server.description.sp);
  if (!server.facts.description.empty()) {
    line += "; " + server.facts.description;
  }
  std::string text = Line(line);
  const std::vector<std::string> warnings = UnusedParts(server.description);
  for (std::size_t i = 0; i < warnings.size() && i < kMostWarnings; ++i) {
    text += Line(name + ": warning: " + warnings[i]);
  }
  if (warnings.size() > kMostWarnings) {
    text += Line(name + ": warning: " + std::to_string(warnings.size() - kMostWarnings) +
                 " more of this kind");
  }
  return text;
}

}  // namespace

int Check(const CheckOptions& options) {
  int status = kExitDone;
  for (const std::filesystem::path& file : options.files) {
    try {
      const std::string name = InputName(file);
      os::WriteStandardOutput(Verdict(name, ReadServer(file)));
    } catch (const text::InputError& error) {
      TellError(error.what());
      status = kExitRefused;
    }
  }
  return status;
}

}  // namespace strake::app

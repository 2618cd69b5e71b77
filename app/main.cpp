// The command `strake`: how a run ends is decided here.
#include "app/Check.h"
#include "app/Collect.h"
#include "app/CommandLine.h"
#include "app/Errors.h"
#include "os/OutputFile.h"
#include "os/Signals.h"
#include "os/Terminal.h"
#include "platform/server/ServerDescription.h"
#include "text/TextEscape.h"

#include <exception>
#include <string>
#include <variant>

namespace strake::app {
namespace {

struct Runner {
  void operator()(const CollectOptions& options) const { Collect(options); }
  void operator()(const CheckOptions& options) const {
    os::WriteStandardOutput(CheckDescription(options));
  }
  void operator()(const TextAnswer& answer) const { os::WriteStandardOutput(answer.text); }
};

int Fail(const char* text, int status) {
  os::WriteStandardError("strake: " + text::EscapeForPeople(text) + "\n");
  return status;
}

int Main(int argc, char** argv) {
  try {
    os::OccupyStandardDescriptors();
    os::PrepareForSignals();
    std::visit(Runner(), ParseCommandLine(argc, argv));
    return kExitDone;
  } catch (const UsageError& error) {
    return Fail(error.what(), kExitRefused);
  } catch (const platform::DescriptionError& error) {
    return Fail(error.what(), kExitRefused);
  } catch (const std::exception& error) {
    return Fail(error.what(), kExitFailed);
  } catch (...) {
    return Fail("an exception that does not say what it is", kExitFailed);
  }
}

}  // namespace
}  // namespace strake::app

int main(int argc, char** argv) { return strake::app::Main(argc, argv); }

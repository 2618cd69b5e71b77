// The plug-in in a module that goes wrong before it joins, in the way that the
// server's machine type names; on any other it is the plug-in.
#include "os/CommandFolder.h"
#include "os/LoadableModule.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/host/TOSSpecific.h"
#include "tests/modules/Erratic.h"

#include <cstdlib>
#include <memory>
#include <string>

namespace {

using NVELKZEV20::TOSSpecific;
using strake::os::LoadableModule;
using strake::tests::Stream;
using strake::tests::WriteTo;

void GoWrong(const std::string& way) {
  if (way == "abort") {
    strake::tests::EndByFault();
  } else if (way == "leave") {
    std::_Exit(0);
  } else if (way == "status") {
    std::_Exit(7);
  } else if (way == "output") {
    WriteTo(Stream::Output, "a line of its own\n");
  } else if (way == "beginning") {
    WriteTo(Stream::Output, "{");
  } else if (way == "report") {
    WriteTo(Stream::Output, "{\"format\":\"strake-report/1\",\"x\":1}\n");
  } else if (way == "errors") {
    WriteTo(Stream::Errors, "\x1b[31mred\xff\n\n" + std::string(70'000, 'x') +
                                "\nstrake: not the last\nstrake: warning: w\nno end");
  } else if (way == "flood") {
    for (int line = 0; line < 20 * 1024; ++line) {
      WriteTo(Stream::Errors, std::string(1023, 'y') + '\n');
    }
  }
}

}  // namespace

extern "C" int StrakeModuleEntry(unsigned int reason) {
  static std::unique_ptr<LoadableModule> plugin;
  if (reason == strake::kProcessAttach) {
    GoWrong(TOSSpecific::GetMachineTypeFromID());
    plugin =
        std::make_unique<LoadableModule>(strake::os::CommandFolder() / "../lib" / STRAKE_MODULE);
  }
  if (plugin == nullptr) {
    return 0;
  }
  const int answer = plugin->Notify("StrakeModuleEntry", reason);
  if (reason != strake::kProcessAttach) {
    plugin.reset();
  }
  return answer;
}

// The plug-in in a module that goes wrong before it joins, in the way that the
// server's machine type names; on any other it is the plug-in.
#include "plugin/frame/ModuleEntry.h"
#include "plugin/host/TOSSpecific.h"

#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using NVELKZEV20::TOSSpecific;

void Write(int descriptor, const std::string& text) {
  for (std::size_t done = 0; done < text.size();) {
    const ssize_t count = ::write(descriptor, text.data() + done, text.size() - done);
    if (count < 0) {
      return;
    }
    done += static_cast<std::size_t>(count);
  }
}

[[noreturn]] void Abort() {
  const rlimit none{.rlim_cur = 0, .rlim_max = 0};
  ::setrlimit(RLIMIT_CORE, &none);
  std::abort();
}

void GoWrong(const std::string& way) {
  if (way == "abort") {
    Abort();
  } else if (way == "leave") {
    std::_Exit(0);
  } else if (way == "status") {
    std::_Exit(7);
  } else if (way == "output") {
    Write(STDOUT_FILENO, "a line of its own\n");
  } else if (way == "beginning") {
    Write(STDOUT_FILENO, "{");
  } else if (way == "report") {
    Write(STDOUT_FILENO, "{\"format\":\"strake-report/1\",\"x\":1}\n");
  } else if (way == "errors") {
    Write(STDERR_FILENO, "\x1b[31mred\xff\n\n" + std::string(70'000, 'x') +
                             "\nstrake: not the last\nstrake: warning: w\nno end");
  } else if (way == "flood") {
    for (int line = 0; line < 20 * 1024; ++line) {
      Write(STDERR_FILENO, std::string(1023, 'y') + '\n');
    }
  }
}

int (*RealEntry())(unsigned int) {
  Dl_info own{};
  ::dladdr(reinterpret_cast<void*>(&GoWrong), &own);
  std::string file(own.dli_fname);
  file.erase(file.rfind('/')).append("/../lib/strake.so");
  void* const library = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  return library == nullptr
             ? nullptr
             : reinterpret_cast<int (*)(unsigned int)>(::dlsym(library, "StrakeModuleEntry"));
}

}  // namespace

extern "C" int StrakeModuleEntry(unsigned int reason) {
  if (reason == strake::kProcessAttach) {
    GoWrong(TOSSpecific::GetMachineTypeFromID());
  }
  const auto entry = RealEntry();
  return entry == nullptr ? 0 : entry(reason);
}

#include "tests/modules/Erratic.h"

#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace strake::tests {

void WriteTo(Stream stream, const std::string& text) {
  const int descriptor = stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
  for (std::size_t done = 0; done < text.size();) {
    const ssize_t count = ::write(descriptor, text.data() + done, text.size() - done);
    if (count < 0) {
      return;
    }
    done += static_cast<std::size_t>(count);
  }
}

void EndByFault() {
  const rlimit none{.rlim_cur = 0, .rlim_max = 0};
  ::setrlimit(RLIMIT_CORE, &none);
  std::abort();
}

}  // namespace strake::tests

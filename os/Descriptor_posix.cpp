#include "os/Descriptor_posix.h"

#include <cerrno>
#include <poll.h>
#include <string_view>

namespace strake::os {

int Descriptor::Close() noexcept { return ::close(std::exchange(fNumber, -1)) == 0 ? 0 : errno; }

int WriteAll(int descriptor, const char* bytes, std::size_t count) noexcept {
  std::string_view rest(bytes, count);
  while (!rest.empty()) {
    const ssize_t written = ::write(descriptor, rest.data(), rest.size());
    if (written >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EAGAIN) {
      pollfd wait{.fd = descriptor, .events = POLLOUT, .revents = 0};
      ::poll(&wait, 1, -1);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace strake::os

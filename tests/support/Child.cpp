#include "tests/support/Child.h"

#include <csignal>
#include <exception>
#include <ostream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace strake::tests {
namespace {

constexpr int kThrew = 99;

// A shell's background job is started with some of them ignored.
void ForgetIgnoredSignals() {
  for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE}) {
    (void)std::signal(signal, SIG_DFL);
  }
}

[[noreturn]] void Work(int out, const std::function<std::string()>& work) {
  std::string text;
  int status = 0;
  try {
    text = work();
  } catch (const std::exception& error) {
    text = error.what();
    status = kThrew;
  }
  const bool isWritten =
      ::write(out, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  ::_exit(isWritten ? status : kThrew);  // the test's own end is no business of the child's
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const ChildEnd& end) {
  return stream << "status " << end.status << ": " << end.text;
}

ChildEnd InChild(const std::function<std::string()>& work) {
  int ends[2]{};
  if (::pipe(ends) != 0) {
    throw std::runtime_error("no pipe");
  }
  const pid_t process = ::fork();
  if (process == 0) {
    ::close(ends[0]);
    ForgetIgnoredSignals();
    Work(ends[1], work);
  }
  ::close(ends[1]);
  ChildEnd end;
  char byte = 0;
  while (::read(ends[0], &byte, 1) == 1) {
    end.text += byte;
  }
  ::close(ends[0]);
  int status = 0;
  ::waitpid(process, &status, 0);
  end.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  return end;
}

}  // namespace strake::tests

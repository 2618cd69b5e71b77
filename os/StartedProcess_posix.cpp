#include "os/StartedProcess_posix.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <utility>

namespace strake::os {
namespace {

constexpr int kNotStarted = 127;

[[noreturn]] void Fail(int error) { throw std::system_error(error, std::generic_category()); }

struct Pipe {
  Descriptor read;
  Descriptor write;
};

Pipe MakePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
    Fail(errno);
  }
  return {Descriptor(ends[0]), Descriptor(ends[1])};
}

// Holds all signals back in this thread, so that none meets the child while it
// still is a copy of this process.
class AllSignalsBlocked {
 public:
  AllSignalsBlocked() noexcept {
    sigset_t all{};
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &fBefore);
  }
  AllSignalsBlocked(const AllSignalsBlocked&) = delete;
  AllSignalsBlocked& operator=(const AllSignalsBlocked&) = delete;
  ~AllSignalsBlocked() { Undo(); }
  void Undo() const noexcept { ::pthread_sigmask(SIG_SETMASK, &fBefore, nullptr); }

 private:
  sigset_t fBefore{};
};

// What the child needs, made before there is one: it may not ask for memory.
struct Plan {
  const char* program;
  std::vector<char*> arguments;  // ends with null
  int input;                     // its standard input; -1: this process'
  int output;
  int errors;
  int failure;  // where the error goes when the program cannot be started
  pid_t parent;
};

// Those that this process handles, and those that it ignores for itself alone.
void ForgetSignals() noexcept {
  for (int signal = 1; signal < NSIG; ++signal) {
    struct sigaction action {};
    if (::sigaction(signal, nullptr, &action) != 0) {
      continue;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): as the system declares it
    const bool isIgnored = action.sa_handler == SIG_IGN;
    if (!isIgnored || signal == SIGPIPE || signal == SIGXFSZ) {
      (void)std::signal(signal, SIG_DFL);
    }
  }
}

bool Arrange(const Plan& plan) noexcept {
  return ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 &&
         (plan.input < 0 || ::dup2(plan.input, STDIN_FILENO) >= 0) &&
         ::dup2(plan.output, STDOUT_FILENO) >= 0 && ::dup2(plan.errors, STDERR_FILENO) >= 0;
}

[[noreturn]] void Become(const Plan& plan, const AllSignalsBlocked& blocked) noexcept {
  ForgetSignals();
  if (Arrange(plan)) {
    if (::getppid() != plan.parent) {
      ::_exit(kNotStarted);  // the parent ended before the system was told to watch it
    }
    blocked.Undo();
    ::execv(plan.program, plan.arguments.data());
  }
  const int error = errno;
  static_cast<void>(::write(plan.failure, &error, sizeof error) < 0);
  ::_exit(kNotStarted);
}

// What kept the program from being started; 0 for nothing.
int ReadFailure(const Descriptor& failure) noexcept {
  int error = 0;
  ssize_t count = 0;
  do {
    count = ::read(failure.Number(), &error, sizeof error);
  } while (count < 0 && errno == EINTR);
  return count == sizeof error ? error : 0;
}

// A child of a process that ignores this is gone before anybody waits for it.
void KeepEndedChildren() noexcept {
  struct sigaction action {};
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): as the system declares it
  if (::sigaction(SIGCHLD, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) {
    (void)std::signal(SIGCHLD, SIG_DFL);
  }
}

std::vector<char*> Arguments(std::vector<std::string>& words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);
  return arguments;
}

}  // namespace

StartedProcess Start(const std::filesystem::path& program, const std::vector<std::string>& words,
                     bool hasInput) {
  KeepEndedChildren();
  const Descriptor nothing(hasInput ? -1 : ::open("/dev/null", O_RDONLY | O_CLOEXEC));
  if (!hasInput && !nothing.IsOpen()) {
    Fail(errno);
  }
  Pipe output = MakePipe();
  Pipe errors = MakePipe();
  Pipe failure = MakePipe();
  for (const Pipe* const pipe : {&output, &errors}) {
    if (::fcntl(pipe->read.Number(), F_SETFL, O_NONBLOCK) != 0) {
      Fail(errno);
    }
  }
  std::vector<std::string> all{program.string()};
  all.insert(all.end(), words.begin(), words.end());
  const Plan plan{.program = program.c_str(),
                  .arguments = Arguments(all),
                  .input = nothing.Number(),
                  .output = output.write.Number(),
                  .errors = errors.write.Number(),
                  .failure = failure.write.Number(),
                  .parent = ::getpid()};
  pid_t process = -1;
  {
    const AllSignalsBlocked blocked;
    process = ::fork();
    if (process == 0) {
      Become(plan, blocked);
    }
    if (process < 0) {
      Fail(errno);
    }
  }
  failure.write = Descriptor();
  if (const int error = ReadFailure(failure.read); error != 0) {
    ::waitpid(process, nullptr, 0);
    Fail(error);
  }
  return {process, std::move(output.read), std::move(errors.read)};
}

}  // namespace strake::os

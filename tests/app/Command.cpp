#include "tests/app/Command.h"

#include "tests/support/Places.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/capability.h>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace strake::tests {
namespace {

// What a process wrote, without a reader that keeps up: a file without a name.
class Capture {
 public:
  Capture() : fFile(std::tmpfile()) {}
  [[nodiscard]] int Descriptor() const { return ::fileno(fFile.get()); }
  [[nodiscard]] std::string Text() const {
    std::string text;
    std::rewind(fFile.get());
    for (int byte = std::fgetc(fFile.get()); byte != EOF; byte = std::fgetc(fFile.get())) {
      text += static_cast<char>(byte);
    }
    return text;
  }

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> fFile;
};

// Both sides stay open, so that what was written can be read at the end.
class Terminal {
 public:
  Terminal() : fMaster(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    if (fMaster < 0 || ::grantpt(fMaster) != 0 || ::unlockpt(fMaster) != 0) {
      throw std::runtime_error("no terminal");
    }
    fSlave = ::open(::ptsname(fMaster), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings{};
    ::tcgetattr(fSlave, &settings);
    ::cfmakeraw(&settings);
    ::tcsetattr(fSlave, TCSANOW, &settings);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    if (fSlave >= 0) {
      ::close(fSlave);
    }
    ::close(fMaster);
  }

  [[nodiscard]] int Descriptor() const { return fSlave; }
  // All that is written until nobody has it open any more but this one.
  [[nodiscard]] std::string Drain() {
    ::close(std::exchange(fSlave, -1));
    std::string text;
    std::array<char, 4096> piece{};
    for (ssize_t count = 1; count > 0;) {
      count = ::read(fMaster, piece.data(), piece.size());
      text.append(piece.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return text;
  }

 private:
  int fMaster;
  int fSlave = -1;
};

int Wait(pid_t process) {
  int status = 0;
  ::waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
  return stream << "status " << outcome.status << "\n--- out\n"
                << outcome.out << "--- err\n"
                << outcome.err;
}

Command& Command::StandardOutput(const std::string& file) { return Writing(STDOUT_FILENO, file); }

Command& Command::NoReader() {
  fHasReader = false;
  return *this;
}

Command& Command::Closed(std::vector<int> descriptors) {
  fClosed = std::move(descriptors);
  return *this;
}

Command& Command::Reading(int descriptor, const std::string& file) {
  fOpen.push_back({descriptor, file, O_RDONLY});
  return *this;
}

Command& Command::Writing(int descriptor, const std::string& file) {
  fOpen.push_back({descriptor, file, O_WRONLY | O_CREAT});
  return *this;
}

Command& Command::Ignoring(int signal) {
  fIgnored.push_back(signal);
  return *this;
}

Command& Command::Environment(const std::string& assignment) {
  fEnvironment.push_back(assignment);
  return *this;
}

Command& Command::Mask(mode_t mask) {
  fMask = mask;
  return *this;
}

Command& Command::AsOrdinaryUser() {
  fOrdinaryUser = true;
  return *this;
}

void Command::ArrangeDescriptors(int out, int err) const {
  if (fHasReader) {
    ::dup2(out, STDOUT_FILENO);
  } else {
    int ends[2]{};
    if (::pipe(ends) != 0) {
      ::_exit(127);
    }
    ::close(ends[0]);
    ::dup2(ends[1], STDOUT_FILENO);
  }
  ::dup2(err, STDERR_FILENO);
  ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
  for (const OpenFile& file : fOpen) {
    const int descriptor = ::open(file.name.c_str(), file.flags | O_CLOEXEC, 0644);
    ::dup2(descriptor, file.descriptor);
    ::fcntl(file.descriptor, F_SETFD, 0);
  }
  for (const int descriptor : fClosed) {
    ::close(descriptor);
  }
}

Command& Command::AddressSpace(unsigned long bytes) {
  fAddressSpace = bytes;
  return *this;
}

Command& Command::Descriptors(unsigned long count) {
  fDescriptors = count;
  return *this;
}

void Command::Become(int out, int err) const {
  if (fOrdinaryUser && ::geteuid() == 0) {
    for (const int privilege : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) {
      if (::prctl(PR_CAPBSET_DROP, privilege, 0, 0, 0) != 0) {
        ::_exit(126);
      }
    }
  }
  ::umask(fMask);
  ArrangeDescriptors(out, err);
  // A shell's background job is started with some of them ignored.
  for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE}) {
    (void)std::signal(signal, SIG_DFL);
  }
  for (const int signal : fIgnored) {
    (void)std::signal(signal, SIG_IGN);
  }
  std::vector<std::string> words = fWords;
  words.insert(words.begin(), BuildFolder() + "/bin/strake");
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);
  // A sanitizer's notes about the leak that is intended are no part of the output.
  std::vector<std::string> variables = {"LSAN_OPTIONS=print_suppressions=0:suppressions='" +
                                        SourceFolder() + "/tests/lsan.supp'"};
  variables.insert(variables.end(), fEnvironment.begin(), fEnvironment.end());
  std::vector<char*> environment;
  environment.reserve(variables.size() + 1);
  for (std::string& variable : variables) {
    environment.push_back(variable.data());
  }
  environment.push_back(nullptr);
  for (const auto& [resource, most] :
       {std::pair(RLIMIT_AS, fAddressSpace), {RLIMIT_NOFILE, fDescriptors}}) {
    if (most != 0) {
      const rlimit limit{most, most};
      ::setrlimit(resource, &limit);
    }
  }
  ::execve(arguments.front(), arguments.data(), environment.data());
  ::_exit(127);
}

pid_t Command::Start(int out, int err) const {
  const pid_t process = ::fork();
  if (process == 0) {
    Become(out, err);
  }
  return process;
}

Outcome Command::Run() const {
  const Capture out;
  const Capture err;
  const int status = Wait(Start(out.Descriptor(), err.Descriptor()));
  return {status, out.Text(), err.Text()};
}

Outcome Command::RunOnTerminal() const {
  Terminal out;
  const Capture err;
  const pid_t process = Start(out.Descriptor(), err.Descriptor());
  std::string text = out.Drain();
  return {Wait(process), std::move(text), err.Text()};
}

Outcome Command::RunUntil(const std::string& errors, int signal) const {
  return RunUntil(errors, [signal](pid_t process) { ::kill(process, signal); });
}

Outcome Command::RunUntil(const std::string& errors, const std::function<void(pid_t)>& act) const {
  const Capture out;
  int ends[2]{};
  if (::pipe2(ends, O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe");
  }
  const pid_t process = Start(out.Descriptor(), ends[1]);
  ::close(ends[1]);
  std::string text;
  bool isDone = false;
  for (char byte = 0; ::read(ends[0], &byte, 1) == 1;) {
    text += byte;
    if (!isDone && text.ends_with(errors)) {
      act(process);
      isDone = true;
    }
  }
  ::close(ends[0]);
  const int status = Wait(process);
  return {status, out.Text(), text};
}

Outcome Command::RunWithErrorsOnTerminal() const {
  const Capture out;
  Terminal err;
  const pid_t process = Start(out.Descriptor(), err.Descriptor());
  std::string text = err.Drain();
  const int status = Wait(process);
  return {status, out.Text(), std::move(text)};
}

Outcome Strake(const std::vector<std::string>& words) { return Command(words).Run(); }

Outcome CollectHostile(std::vector<std::string> words) {
  words.insert(words.begin(), {"collect", "--plugin", HostileModule()});
  return Strake(words);
}

std::string HostileModule() { return BuildFolder() + "/test-modules/hostile.so"; }
std::string RefusingModule() { return BuildFolder() + "/test-modules/refusing.so"; }
std::string ErraticModule() { return BuildFolder() + "/test-modules/erratic.so"; }

}  // namespace strake::tests

#include "tests/app/Command_posix.h"

#include "tests/support/Places.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/capability.h>
#include <memory>
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

constexpr int kRead = O_RDONLY;
constexpr int kWrite = O_WRONLY | O_CREAT;

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

Outcome Command::Run() const { return PosixCommand(*this).Run(); }

PosixCommand& PosixCommand::StandardOutput(const std::string& file) {
  Command::StandardOutput(file);
  return *this;
}

PosixCommand& PosixCommand::Environment(const std::string& assignment) {
  Command::Environment(assignment);
  return *this;
}

PosixCommand& PosixCommand::NoReader() {
  fHasReader = false;
  return *this;
}

PosixCommand& PosixCommand::Closed(std::vector<int> descriptors) {
  fClosed = std::move(descriptors);
  return *this;
}

PosixCommand& PosixCommand::Reading(int descriptor, const std::string& file) {
  fOpen.push_back({descriptor, file, kRead});
  return *this;
}

PosixCommand& PosixCommand::Writing(int descriptor, const std::string& file) {
  fOpen.push_back({descriptor, file, kWrite});
  return *this;
}

PosixCommand& PosixCommand::Ignoring(int signal) {
  fIgnored.push_back(signal);
  return *this;
}

PosixCommand& PosixCommand::Mask(mode_t mask) {
  fMask = mask;
  return *this;
}

PosixCommand& PosixCommand::AsOrdinaryUser() {
  fOrdinaryUser = true;
  return *this;
}

std::vector<PosixCommand::OpenFile> PosixCommand::OpenFiles() const {
  std::vector<OpenFile> files = fOpen;
  if (!InputFile().empty()) {
    files.push_back({STDIN_FILENO, InputFile(), kRead});
  }
  if (!OutputFile().empty()) {
    files.push_back({STDOUT_FILENO, OutputFile(), kWrite});
  }
  return files;
}

void PosixCommand::ArrangeDescriptors(int out, int err) const {
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
  for (const OpenFile& file : OpenFiles()) {
    const int descriptor = ::open(file.name.c_str(), file.flags | O_CLOEXEC, 0644);
    ::dup2(descriptor, file.descriptor);
    ::fcntl(file.descriptor, F_SETFD, 0);
  }
  for (const int descriptor : fClosed) {
    ::close(descriptor);
  }
}

PosixCommand& PosixCommand::AddressSpace(unsigned long bytes) {
  fAddressSpace = bytes;
  return *this;
}

PosixCommand& PosixCommand::Descriptors(unsigned long count) {
  fDescriptors = count;
  return *this;
}

void PosixCommand::Become(int out, int err) const {
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
  std::vector<std::string> words = Words();
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
  variables.insert(variables.end(), Assignments().begin(), Assignments().end());
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

pid_t PosixCommand::Start(int out, int err) const {
  const pid_t process = ::fork();
  if (process == 0) {
    Become(out, err);
  }
  return process;
}

Outcome PosixCommand::Run() const {
  const Capture out;
  const Capture err;
  const int status = Wait(Start(out.Descriptor(), err.Descriptor()));
  return {status, out.Text(), err.Text()};
}

Outcome PosixCommand::RunOnTerminal() const {
  Terminal out;
  const Capture err;
  const pid_t process = Start(out.Descriptor(), err.Descriptor());
  std::string text = out.Drain();
  return {Wait(process), std::move(text), err.Text()};
}

Outcome PosixCommand::RunUntil(const std::string& errors, int signal) const {
  return RunUntil(errors, [signal](pid_t process) { ::kill(process, signal); });
}

Outcome PosixCommand::RunUntil(const std::string& errors,
                               const std::function<void(pid_t)>& act) const {
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

Outcome PosixCommand::RunWithErrorsOnTerminal() const {
  const Capture out;
  Terminal err;
  const pid_t process = Start(out.Descriptor(), err.Descriptor());
  std::string text = err.Drain();
  const int status = Wait(process);
  return {status, out.Text(), std::move(text)};
}

}  // namespace strake::tests

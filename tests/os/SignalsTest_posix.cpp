// How a process ends by a signal, tried in processes of their own.
#include "os/OutputFile.h"
#include "os/Signals.h"
#include "tests/support/Child.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace strake::tests {
namespace {

using Names = std::set<std::string>;

constexpr int kRequests[] = {SIGINT, SIGTERM, SIGHUP};

// Says that it was ended.
class Noted final : public os::Unfinished {
 public:
  Noted(int out, char name) : fOut(out), fName(name) { Enter(); }
  Noted(const Noted&) = delete;
  Noted& operator=(const Noted&) = delete;
  ~Noted() override { Leave(); }
  void EndBySignal() noexcept override { EXPECT_EQ(::write(fOut, &fName, 1), 1); }

 private:
  int fOut;
  char fName;
};

// What a child does that has prepared itself, and what it says through OUT.
ChildEnd Prepared(const std::function<void(int out)>& work) {
  const TemporaryFolder folder;
  const int out = ::open((folder / "out").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  ChildEnd end = InChild([&]() -> std::string {
    os::PrepareForSignals();
    work(out);
    return "";
  });
  ::close(out);
  end.text += ReadFile(folder / "out");
  return end;
}

void Say(int out, char word) { EXPECT_EQ(::write(out, &word, 1), 1); }

TEST(Signals, EndWhatIsUnfinishedAndThenTheProcess) {
  for (const int signal : kRequests) {
    EXPECT_EQ(Prepared([signal](int out) {
                const Noted first(out, 'a');
                { const Noted finished(out, 'b'); }
                const Noted last(out, 'c');
                (void)std::raise(signal);
                Say(out, '!');
              }),
              (ChildEnd{-signal, "ca"}));
  }
}

TEST(Signals, LeaveOutWhateverIsFinishedInAnyOrder) {
  EXPECT_EQ(Prepared([](int out) {
              auto first = std::make_unique<Noted>(out, 'a');
              auto second = std::make_unique<Noted>(out, 'b');
              const Noted third(out, 'c');
              second.reset();
              first.reset();
              (void)std::raise(SIGTERM);
            }),
            (ChildEnd{-SIGTERM, "c"}));
}

TEST(Signals, WaitWhileTheyAreHeld) {
  EXPECT_EQ(Prepared([](int out) {
              const Noted noted(out, 'a');
              {
                const os::SignalHold hold;
                (void)std::raise(SIGINT);
                (void)std::raise(SIGTERM);  // the first one counts
                { const os::SignalHold inner; }
                Say(out, '1');
              }
              Say(out, '!');
            }),
            (ChildEnd{-SIGINT, "1a"}));
}

TEST(Signals, ThatAreIgnoredStaySo) {
  for (const int signal : kRequests) {
    EXPECT_EQ(InChild([signal]() -> std::string {
                (void)std::signal(signal, SIG_IGN);
                os::PrepareForSignals();
                (void)std::raise(signal);
                return "alive";
              }),
              (ChildEnd{0, "alive"}));
  }
}

TEST(Signals, ThatMeetAnotherThreadEndTheWholeProcessAllTheSame) {
  EXPECT_EQ(Prepared([](int out) {
              const Noted noted(out, 'a');
              std::thread([] { ::pthread_kill(::pthread_self(), SIGTERM); }).join();
              ::pause();
            }),
            (ChildEnd{-SIGTERM, "a"}));
}

TEST(Signals, EndAtOnceTheSecondTime) {
  // Held for ever; whoever repeats the signal wins in the end.
  EXPECT_EQ(Prepared([](int out) {
              const Noted noted(out, 'a');
              const os::SignalHold hold;
              for (;;) {
                (void)std::raise(SIGTERM);
              }
            }),
            (ChildEnd{-SIGTERM, ""}));
}

TEST(Signals, OfAClosedPipeEndTheProcessWhenItsWriterSaysSo) {
  int ends[2]{};
  ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
  ::close(ends[0]);
  const auto writeToPipe = [&](int out) {
    const Noted noted(out, 'a');
    ::dup2(ends[1], STDOUT_FILENO);
    try {
      os::WriteStandardOutput("text");
    } catch (const os::OutputError& error) {
      throw std::runtime_error(error.what());
    }
  };
  EXPECT_EQ(Prepared(writeToPipe), (ChildEnd{-SIGPIPE, "a"}));
  EXPECT_EQ(InChild([&]() -> std::string {
              (void)std::signal(SIGPIPE, SIG_IGN);
              os::PrepareForSignals();
              writeToPipe(ends[1]);
              return "";
            }),
            (ChildEnd{99, "cannot write to standard output: Broken pipe"}));
  ::close(ends[1]);
}

TEST(Signals, OfAFileThatGrowsTooLargeAreErrorsOfTheWrite) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "old");
  const ChildEnd end = Prepared([&](int /*out*/) {
    const rlimit limit{.rlim_cur = 1000, .rlim_max = 1000};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    os::OutputFile file(name, os::Privacy::Usual);
    file.Write(std::string(2000, 'x'));
    file.Complete();
  });
  EXPECT_EQ(end, (ChildEnd{99, "cannot write " + name + ": File too large"}));
  EXPECT_EQ(ReadFile(name), "old");
  EXPECT_EQ(folder.Names(), Names{"report"});
}

TEST(Signals, CompleteOneFileAndDiscardAnother) {
  const TemporaryFolder folder;
  const std::string report = folder.Write("report", "old");
  const std::string trace = folder.Write("trace", "old");
  EXPECT_EQ(Prepared([&](int /*out*/) {
              os::OutputFile discarded(report, os::Privacy::Usual);
              os::OutputFile completed(trace, os::Privacy::Owner, os::OnSignal::Complete);
              os::OutputFile created(folder / "log", os::Privacy::Owner, os::OnSignal::Complete);
              for (int line = 0; line < 40000; ++line) {
                discarded.Write("line\n");
                completed.Write("line\n");
              }
              created.Write("line\n");
              (void)std::raise(SIGTERM);
            }),
            (ChildEnd{-SIGTERM, ""}));
  EXPECT_EQ(folder.Names(), (Names{"log", "report", "trace"}));
  EXPECT_EQ(ReadFile(report), "old");
  EXPECT_EQ(ReadFile(trace).size(), 200000U);
  EXPECT_EQ(ReadFile(folder / "log"), "line\n");
  EXPECT_EQ(ModeOf(folder / "log"), 0600U);
}

}  // namespace
}  // namespace strake::tests

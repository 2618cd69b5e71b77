// What the tests of the stand-ins share: an observer that keeps the trace and
// asks for a fault, and the platform back to nothing after each test.
#pragma once

#include "platform/boundary/TraceWriter.h"
#include "platform/hostcore/HostControl.h"
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/server/ServerDescription.h"
#include "platform/spdriver/DriverControl.h"
#include "tests/support/FaultyObserver.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

// A test's server says what the test is about; the rest has its defaults.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace strake::platform {

// Keeps the trace, and makes calls fail.
class FaultyTrace : private std::ostringstream, public tests::FaultyObserver<TraceWriter> {
 public:
  FaultyTrace() : FaultyObserver(static_cast<std::ostream&>(*this)) {}

  // The lines since the last time.
  std::vector<std::string> TakeLines() {
    std::istringstream text(str());
    str({});
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
      lines.push_back(line);
    }
    return lines;
  }
};

class PlatformTest : public testing::Test {
 protected:
  PlatformTest() { Reset(); }
  ~PlatformTest() override { Reset(); }

 private:
  static void Reset() {
    SetHost({});
    SetHostObserver(nullptr);
    SetLogSink({});
    SetServiceProcessors({});
    SetDriverObserver(nullptr);
    SetManagerAnswer(ManagerAnswer::Manager);
    SetProviderGiven(true);
    ForgetPlugin();
  }
};

// The text of the exception that the action throws; empty when it throws none.
template <typename Error = std::exception, typename Action>
std::string TextThrownBy(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

}  // namespace strake::platform

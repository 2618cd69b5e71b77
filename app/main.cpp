// The command `strake`: how a run ends is decided here.
#include "app/Check.h"
#include "app/Collect.h"
#include "app/CommandLine.h"
#include "app/Diff.h"
#include "app/Errors.h"
#include "app/Init.h"
#include "app/ManyServers.h"
#include "app/Messages.h"
#include "app/Replay.h"
#include "app/Schema.h"
#include "app/Watch.h"
#include "os/CommandWords.h"
#include "os/OutputFile.h"
#include "os/Signals.h"
#include "os/Terminal.h"
#include "platform/server/ServerDescription.h"
#include "text/InputError.h"

#include <exception>
#include <new>
#include <string>
#include <variant>
#include <vector>

namespace strake::app {
namespace {

struct Runner {
  int operator()(const CollectOptions& options) const {
    return options.many.servers.empty() ? Collect(options) : CollectMany(options);
  }
  int operator()(const WatchOptions& options) const { return Watch(options); }
  int operator()(const CheckOptions& options) const { return Check(options); }
  int operator()(const DiffOptions& options) const { return Diff(options); }
  int operator()(const ReplayOptions& options) const { return Replay(options); }
  int operator()(const InitOptions& options) const { return Init(options); }
  int operator()(const SchemaOptions& options) const {
    WriteSchema(options);
    return kExitDone;
  }
  int operator()(const TextAnswer& answer) const {
    os::WriteStandardOutput(answer.text);
    return kExitDone;
  }
};

int Fail(const char* text, int status) {
  TellError(text);
  return status;
}

CommandLine ParseWords(const std::vector<std::string>& words) {
  std::vector<const char*> texts;
  texts.reserve(words.size());
  for (const std::string& word : words) {
    texts.push_back(word.c_str());
  }
  return ParseCommandLine(static_cast<int>(texts.size()), texts.data());
}

int Main(int argc, char** argv) {
  try {
    os::OccupyStandardDescriptors();
    os::PrepareForSignals();
    return std::visit(Runner(), ParseWords(os::CommandWords(argc, argv)));
  } catch (const UsageError& error) {
    return Fail(error.what(), kExitRefused);
  } catch (const text::InputError& error) {
    return Fail(error.what(), kExitRefused);
  } catch (const std::bad_alloc&) {
    return Fail("out of memory", kExitFailed);
  } catch (const std::exception& error) {
    return Fail(error.what(), kExitFailed);
  } catch (...) {
    return Fail("an exception that does not say what it is", kExitFailed);
  }
}

}  // namespace
}  // namespace strake::app

int main(int argc, char** argv) { return strake::app::Main(argc, argv); }

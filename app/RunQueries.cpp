#include "app/RunQueries.h"

#include "app/Errors.h"
#include "os/LoadableModule.h"

#include <cstddef>
#include <exception>
#include <string>

namespace strake::app {
namespace {

// Runs a step in the plug-in. Its exceptions are turned into the command's own
// here, while the module is loaded: their types can be the module's.
template <typename Step>
void RunStep(const std::string& name, const Step& step) {
  try {
    step();
  } catch (const platform::SessionError& error) {
    throw RunError(error.what());
  } catch (const os::ModuleError& error) {
    throw RunError(error.what());
  } catch (const std::exception& error) {
    throw RunError(name + " ended with an exception: " + error.what());
  } catch (...) {
    throw RunError(name + " ended with an exception that does not say what it is");
  }
}

}  // namespace

void Attach(platform::HostSession& session, const platform::ModuleEntry& entry) {
  RunStep("attaching", [&] { session.Attach(entry); });
}

void Initialize(platform::HostSession& session) {
  RunStep("Initialize", [&session] { session.Initialize(); });
}

void RunQueries(platform::HostSession& session, const std::vector<ClassNames>& queries) {
  for (std::size_t index = 0; index < queries.size(); ++index) {
    RunStep("query " + std::to_string(index + 1),
            [&session, &query = queries[index]] { session.Query(query); });
  }
}

void Finish(platform::HostSession& session) {
  RunStep("Deinitialize", [&session] { session.Deinitialize(); });
  RunStep("detaching", [&session] { session.Detach(); });
}

}  // namespace strake::app

// Sets up the in-process host core: what it answers, who watches, where log
// lines go. The plug-in does not see any of this.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace strake::platform {

class BoundaryObserver;
struct HostSettings;

using LogSink = std::function<void(int level, const std::string& message)>;

void SetHost(const HostSettings& settings);
void SetHostObserver(BoundaryObserver* observer);  // null: nobody watches
BoundaryObserver* HostObserver();
void SetLogSink(LogSink sink);  // empty: lines are kept nowhere

// What boost::assertion_failed throws: "EXPRESSION failed in FUNCTION, line N".
class AssertionError : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

}  // namespace strake::platform

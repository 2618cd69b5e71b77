// One host process' dealings with one plug-in: set the platform up, attach the
// module, query, detach.
#pragma once

#include "platform/hostcore/HostControl.h"
#include "platform/hostcore/Repository.h"
#include "plugin/host/IPluginCallbacks.h"

#include <boost/shared_ptr.hpp>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace strake::platform {

class BoundaryObserver;
struct ServerDescription;

// The module's entry: reason 1 attaches, 0 detaches; the result is 0 on failure.
using ModuleEntry = std::function<int(unsigned int reason)>;

// A module that does not attach or register.
class SessionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class HostSession {
 public:
  // The observer and the sink must outlive the session.
  explicit HostSession(const ServerDescription& server, BoundaryObserver* observer = nullptr,
                       LogSink sink = {});
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;
  // Detaches; nobody watches afterwards.
  ~HostSession();

  // Calls the entry with 1; throws SessionError when it fails or registers nothing.
  void Attach(const ModuleEntry& entry);
  // The plug-in's query face; throws SessionError when it has none.
  [[nodiscard]] NVELKZEV20::IPluginCallbacks& Plugin() const;
  void Initialize();
  void Deinitialize();
  // Tells the observer of the query, runs it and tells of its end. What the
  // plug-in lets through is thrown again.
  void Query(const std::vector<std::string>& classNames);
  // Destroys the plug-in object, then calls the entry with 0.
  void Detach();

  [[nodiscard]] const Repository& Instances() const;
  // The namespace that every query fills.
  [[nodiscard]] const boost::shared_ptr<Repository>& Namespace() const;

 private:
  boost::shared_ptr<Repository> fRepository;
  BoundaryObserver* fObserver;
  ModuleEntry fEntry;  // empty: no module is attached
  NVELKZEV20::IPluginCallbacks* fPlugin = nullptr;
};

}  // namespace strake::platform

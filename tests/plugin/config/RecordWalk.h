// The walk of element records alone, on an instance of a real namespace.
#pragma once

#include "platform/session/HostSession.h"
#include "plugin/config/ElementRecord.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/frame/base/InstanceBuilder.h"
#include "tests/support/Scenario.h"

#include <span>
#include <string>

namespace strake::tests {

class RecordWalk {
 public:
  // Fills one instance of the class, which has to know the fields' names.
  explicit RecordWalk(const char* className)
      : fSession(fServer, &fRecord),
        fInstance(InstanceBuilder({className, className},
                                  {fSession.Namespace(), MakeContext(), "name", "SRV1", 1})
                      .Instance()) {
    fSession.Attach(&StrakeModuleEntry);
  }

  // Walks one buffer; the record then holds this walk alone, its instance being
  // number 1.
  const Recorder& Publish(const RecordLayout& layout, std::span<const unsigned char> buffer) {
    fRecord.Forget();
    PublishRecord(dynamic_cast<TStrakePluginCallbacks&>(fSession.Plugin()), layout,
                  ByteView(buffer), fInstance);
    return fRecord;
  }

 private:
  platform::ServerDescription fServer;
  Recorder fRecord;
  platform::HostSession fSession;
  boost::shared_ptr<NVELKZEV20::ICIMInstance> fInstance;
};

}  // namespace strake::tests

// The walk of element records alone, on an instance of a real namespace.
#pragma once

#include "platform/session/HostSession.h"
#include "plugin/config/ElementRecord.h"
#include "plugin/config/InstanceBuilder.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/support/Scenario.h"

#include <span>
#include <string>

namespace strake::tests {

class RecordWalk {
 public:
  // Fills one instance of the class, which has to know the fields' names.
  explicit RecordWalk(const char* className)
      : fSession(fServer, &fRecord), fKind{className, className} {
    fSession.Attach(&StrakeModuleEntry);
    fInstance.Create(fProcessor.Number());
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
  InstanceKind fKind;
  ServiceProcessor fProcessor{fSession.Namespace(), nullptr, "9999-AC1", "SRV1", 0};
  InstanceBuilder fInstance{fKind, fProcessor.Identity()};
};

}  // namespace strake::tests

#include "bench/Floor.h"

#include "plugin/frame/base/InstanceBuilder.h"
#include "plugin/host/TCIMSchemaHelper.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/host/TRootObject.h"
#include "plugin/spaccess/DotIdentifier.h"

#include <algorithm>
#include <utility>

namespace strake::bench {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TCIMSchemaHelper;
using NVELKZEV20::TOSSpecific;
using NVELKZEV20::TRootObject;

Floor::Floor(std::vector<Call> calls, Arguments arguments)
    : fCalls(std::move(calls)),
      fArguments(arguments),
      fContext(MakeContext()),
      fLogger(*TRootObject::GetCoreLogger()),
      fLibrary(*SPLibrary::GetSplibraryInstance(0)) {
  std::size_t instances = 0;
  for (const Call& call : fCalls) {
    if (call.kind == Kind::Create) instances = std::max(instances, call.instance);
  }
  fInstances.resize(instances + 1);
}

// A line that is made is a text of its own.
template <Arguments How>
void Floor::Log(const Call& call) {
  if constexpr (How == Arguments::Made) {
    fLogger.Log(call.level, std::string(call.text));
  } else {
    fLogger.Log(call.level, call.text);
  }
}

template <Arguments How>
void Floor::SetProperty(const Call& call) {
  NVELKZEV20::ICIMInstance& instance = *fInstances[call.instance];
  if constexpr (How == Arguments::Made) {
    instance.SetProperty(std::string(call.text), MakeValue(call.source), {});
  } else {
    instance.SetProperty(call.text, call.value, {});
  }
}

template <Arguments How>
void Floor::GetClass(const Call& call, ICIMNamespace& cimNamespace) {
  if constexpr (How == Arguments::Made) {
    cimNamespace.GetClass(fClass, std::string(call.text), MakeContext());
  } else {
    cimNamespace.GetClass(fClass, call.text, fContext);
  }
}

// The room for a reply is part of what is made: it is cleared if somebody reads
// it, and nobody does of the presence test.
template <Arguments How>
void Floor::SendDot(const Call& call) {
  int length = 0;
  if constexpr (How == Arguments::Made) {
    static constexpr unsigned char kNoExtraData = 0;
    if (!std::ranges::equal(call.identifier, kPresenceTest.Bytes())) {
      std::fill_n(fReply.begin(), call.size, static_cast<unsigned char>(0));
    }
    dotCmd command(call.commandClass, static_cast<int>(call.identifier.size()), 0,
                   call.identifier.data(), &kNoExtraData);
    fLibrary.sendDotCommand(&command, fReply.data(), &length, call.sp, call.size);
  } else {
    fLibrary.sendDotCommand(call.dot.get(), fReply.data(), &length, call.sp, call.size);
  }
}

template <Arguments How>
void Floor::SendKestle(const Call& call) {
  int length = 0;
  if constexpr (How == Arguments::Made) {
    std::fill_n(fReply.begin(), 255, static_cast<unsigned char>(0));
    fLibrary.sendKestleCommand(MakeKestleCommand(call).get(), &length, fReply.data());
  } else {
    fLibrary.sendKestleCommand(call.kestle.get(), &length, fReply.data());
  }
}

void Floor::Replay(const boost::shared_ptr<ICIMNamespace>& cimNamespace,
                   const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  if (fArguments == Arguments::Made) {
    ReplayWith<Arguments::Made>(cimNamespace, classes);
  } else {
    ReplayWith<Arguments::Ready>(cimNamespace, classes);
  }
}

template <Arguments How>
void Floor::ReplayWith(const boost::shared_ptr<ICIMNamespace>& cimNamespace,
                       const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  for (Call& call : fCalls) {
    switch (call.kind) {
      case Kind::Log:
        Log<How>(call);
        break;
      case Kind::MachineType:
        TOSSpecific::GetMachineTypeFromID();
        break;
      case Kind::SystemName:
        TCIMSchemaHelper::GetSystemName(cimNamespace);
        break;
      case Kind::SystemClass:
        TCIMSchemaHelper::GetSystemCreationClassName(cimNamespace);
        break;
      case Kind::LocalTime:
        TOSSpecific::GetLocalTime();
        break;
      case Kind::Name:
        static_cast<void>(classes[call.instance]->GetName());
        break;
      case Kind::GetClass:
        GetClass<How>(call, *cimNamespace);
        break;
      case Kind::Create:
        fClass->CreateInstance(fInstances[call.instance], fNothing);
        break;
      case Kind::Set:
        SetProperty<How>(call);
        break;
      case Kind::Commit:
        fInstances[call.instance]->Commit({});
        break;
      case Kind::IsDot:
        fLibrary.isDotcommand();
        break;
      case Kind::IsKestle:
        fLibrary.isKestle();
        break;
      case Kind::IsQmvStop:
        fLibrary.isQmvStop();
        break;
      case Kind::IsDorn:
        fLibrary.isDornlibrary();
        break;
      case Kind::CheckComm:
        fLibrary.checkSPComm();
        break;
      case Kind::Discover:
        fLibrary.discoverSPs();
        break;
      case Kind::BuildList:
        fLibrary.buildDotCommandList(fList[0].data(), fList[1].data(), fList[2].data());
        break;
      case Kind::Count:
        fLibrary.getComponentdotCmdList(call.identifier.data(), 5, fList[0].data(), fList[1].data(),
                                        fList[2].data());
        break;
      case Kind::Dot:
        SendDot<How>(call);
        break;
      case Kind::Kestle:
        SendKestle<How>(call);
        break;
    }
  }
  for (auto& instance : fInstances) instance.reset();
  fClass.reset();
}

}  // namespace strake::bench

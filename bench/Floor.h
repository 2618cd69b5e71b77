// The least that a query could cost: the boundary calls of a recorded trace, in
// its order, with nothing between them.
#pragma once

#include "bench/TraceCalls.h"
#include "plugin/host/ICIM.h"
#include "plugin/host/TRootObject.h"

#include <array>
#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

namespace strake::bench {

enum class Arguments {
  Ready,  // made before anything is measured
  // Made for each call, as a plug-in has to: a text a line, a name and a value a
  // property, a context a class look-up, a command and its cleared reply.
  Made,
};

class Floor {
 public:
  Floor(std::vector<Call> calls, Arguments arguments);

  void Replay(const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace,
              const std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>>& classes);

 private:
  // Written out for each kind of arguments, so that nothing is asked in between.
  template <Arguments How>
  void ReplayWith(const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace,
                  const std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>>& classes);
  template <Arguments How>
  void Log(const Call& call);
  template <Arguments How>
  void SetProperty(const Call& call);
  template <Arguments How>
  void GetClass(const Call& call, NVELKZEV20::ICIMNamespace& cimNamespace);
  template <Arguments How>
  void SendDot(const Call& call);
  template <Arguments How>
  void SendKestle(const Call& call);

  std::vector<Call> fCalls;
  Arguments fArguments;
  std::vector<boost::shared_ptr<NVELKZEV20::ICIMInstance>> fInstances;
  boost::shared_ptr<NVELKZEV20::ICIMClass> fClass;
  NVELKZEV20::ContextMap fContext;
  NVELKZEV20::TNameToValueMap fNothing;
  NVELKZEV20::ILogger& fLogger;
  NVELKZEV20::SPLibrary& fLibrary;
  std::array<unsigned char, 4096> fReply{};
  std::array<std::array<unsigned char, 4096>, 3> fList{};
};

}  // namespace strake::bench

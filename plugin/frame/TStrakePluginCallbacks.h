// The plug-in's one object: what the host calls, what the rest of the plug-in
// logs through, and the classes that the current query wants.
#pragma once

#include "plugin/frame/base/LogLine.h"
#include "plugin/host/ICIM.h"
#include "plugin/host/IPluginCallbacks.h"
#include "plugin/host/TRootObject.h"
#include "plugin/host/TZEVStatusCode.h"
#include "plugin/spaccess/SPLibrary.h"

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace strake {

class TSPEnviron;

class TStrakePluginCallbacks : public NVELKZEV20::IPluginCallbacks,
                               public NVELKZEV20::IPluginBasicQueryCallbacks {
 public:
  // Registers the object with the host's plug-in manager.
  TStrakePluginCallbacks();
  TStrakePluginCallbacks(const TStrakePluginCallbacks&) = delete;
  TStrakePluginCallbacks& operator=(const TStrakePluginCallbacks&) = delete;
  ~TStrakePluginCallbacks() override;

  void* GetReserved() override;
  [[nodiscard]] std::string GetDisplayName() override;
  [[nodiscard]] std::string GetVersion() override;
  [[nodiscard]] std::string GetFrameworkVersion() override;
  void Destroy() override;
  void Initialize() override;
  void Deinitialize() override;

  void Query(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
             const std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>>& classes) override;

  [[nodiscard]] bool IsLogging() const { return fProvider != nullptr; }

  // The logging wrappers, each with its level: one message, or its parts, which
  // are put together only while the gate is open.
  void LogLevel0(std::string message) const { Log(message, 0); }
  template <typename... Parts>
  void LogLevel0(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel0(MakeLine(parts...));
    }
  }
  void LogLevel1(std::string message) const { Log(message, 1); }
  template <typename... Parts>
  void LogLevel1(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel1(MakeLine(parts...));
    }
  }
  void LogLevel2(std::string message) const { Log(message, 2); }
  template <typename... Parts>
  void LogLevel2(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel2(MakeLine(parts...));
    }
  }
  void LogLevel3(std::string message) const { Log(message, 3); }
  template <typename... Parts>
  void LogLevel3(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel3(MakeLine(parts...));
    }
  }
  void LogLevel4(std::string message) const { Log(message, 4); }
  template <typename... Parts>
  void LogLevel4(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel4(MakeLine(parts...));
    }
  }
  // For what a person must do something about.
  void LogNotice4(std::string message) const { Log(message, 4); }
  template <typename... Parts>
  void LogNotice4(const Parts&... parts) const {
    if (IsLogging()) {
      LogNotice4(MakeLine(parts...));
    }
  }

  // Sends one dot command to one SP, with its trail of log lines. Returns the
  // reply length as the SP reported it; `status` is 1 on success, else 0.
  int sendCommand(unsigned char commandClass, int identifierLength, int secondLength,
                  const unsigned char* identifier, const unsigned char* extraData,
                  unsigned char* reply, int replySize, unsigned char* status,
                  NVELKZEV20::SPLibrary* spLib, unsigned char sp);

  // The builders of one SP's instances. The status is 0 on every path.
  NVELKZEV20::TZEVStatusCode CreateVELKSGComputerSystem(
      boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace, std::string systemName,
      NVELKZEV20::SPLibrary* spLib, unsigned char sp) const;
  NVELKZEV20::TZEVStatusCode tcpipcommands(
      boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace, NVELKZEV20::SPLibrary* spLib,
      std::string MTM, std::string systemName, unsigned char sp);
  NVELKZEV20::TZEVStatusCode dialcommands(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
                                          NVELKZEV20::SPLibrary* spLib, std::string MTM,
                                          std::string systemName, unsigned char sp);

  // The instances of the dial classes; `number` is the instance's, from 1.
  NVELKZEV20::TZEVStatusCode getSerialPortData(
      boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace, unsigned char number,
      NVELKZEV20::SPLibrary* spLib, std::string MTM, std::string systemName, unsigned char sp);
  NVELKZEV20::TZEVStatusCode getDialoutSettings(
      boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace, unsigned char number,
      NVELKZEV20::SPLibrary* spLib, std::string MTM, std::string systemName, unsigned char sp);
  NVELKZEV20::TZEVStatusCode getDialinSettings(
      boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace, unsigned char number,
      NVELKZEV20::SPLibrary* spLib, std::string MTM, std::string systemName, unsigned char sp);
  NVELKZEV20::TZEVStatusCode getDialOutAlerts(
      boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace, unsigned char number,
      NVELKZEV20::SPLibrary* spLib, std::string MTM, std::string systemName, unsigned char sp);

  // Fill the instance of network interface `number` (1 or 2).
  void NetworkInterface(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
                        boost::shared_ptr<NVELKZEV20::ICIMInstance> instance, unsigned char number,
                        NVELKZEV20::SPLibrary* spLib, unsigned char sp);
  void IndividualDHCPValues(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
                            boost::shared_ptr<NVELKZEV20::ICIMInstance> instance,
                            unsigned char number, NVELKZEV20::SPLibrary* spLib, unsigned char sp);

 private:
  struct Request;  // a class and the flag that stands for it
  struct Run;      // what one query works with

  void Log(const std::string& message, int level) const;

  static std::span<const Request> Requests();
  [[nodiscard]] std::string FlagsText() const;
  void NoteRequestedClasses(const std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>>& classes);
  [[nodiscard]] std::string ReadMachineType() const;
  // False: the run ends at once, without its closing line.
  bool CollectOrlo(const Run& run);
  void CollectFromOrlo(const Run& run, unsigned char sp);
  void ReadOrloSensors(const Run& run, unsigned char sp) const;
  [[nodiscard]] bool CollectTavit(const Run& run) const;
  [[nodiscard]] bool IsHeldByManagementServer(const Run& run) const;
  [[nodiscard]] std::optional<std::size_t> MatchTavitMachine(const std::string& MTM) const;
  void ReadTavitSensors(const Run& run, unsigned int kestleType) const;

  boost::shared_ptr<NVELKZEV20::ICIMNamespace> fReservedHandle;
  std::string fReservedText;
  NVELKZEV20::TPluginManagerProvider* fProvider = nullptr;  // the logging gate
  bool fSP_ComputerSystem = false;
  bool fServProc_IPProtocolEndpoint2 = false;
  bool fServProc_IPProtocolEndpoint = false;
  bool fServProc_DialProtocolEndpoint3 = false;
  bool fServProc_DialProtocolEndpoint1 = false;
  bool fServProc_DialProtocolEndpoint2 = false;
  bool fServProc_DialProtocolEndpoint4 = false;
  bool fSP_NumericSensor = false;
};

}  // namespace strake

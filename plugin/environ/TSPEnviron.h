// The sensor collector: built by the driver for one query, filled by the
// readers, emptied by the exporters.
#pragma once

#include "plugin/environ/SensorRecord.h"
#include "plugin/frame/base/LogLine.h"
#include "plugin/host/ICIM.h"
#include "plugin/host/TZEVStatusCode.h"
#include "plugin/spaccess/ByteView.h"
#include "plugin/spaccess/CommandSenders.h"
#include "plugin/spaccess/SPLibrary.h"

#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace strake {

struct KestleFanLayout;
struct KestleListReader;
struct KestleRequest;
struct OrloReader;

using KestleReply = ReplyBuffer<kKestleReplySize>;

class TSPEnviron {
 public:
  // `logSwitch` is the plug-in's logging gate: while it is null nothing is logged.
  TSPEnviron(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
             NVELKZEV20::SPLibrary* spLibrary, const void* logSwitch);
  TSPEnviron(const TSPEnviron&) = delete;
  TSPEnviron& operator=(const TSPEnviron&) = delete;
  ~TSPEnviron() noexcept(false);

  // The SP that the Orlo readers read.
  void SetNode(unsigned char sp) { fNode = sp; }

  // The logging wrappers, each with its level: one message, or its parts, which
  // are put together only while the switch is on.
  void LogLevel2(std::string message) const { Log(message, 2); }
  void LogLevel3(std::string message) const { Log(message, 3); }
  void LogLevel4(std::string message) const { Log(message, 4); }
  template <typename... Parts>
  void LogLevel2(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel2(MakeLine(parts...));
    }
  }
  template <typename... Parts>
  void LogLevel3(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel3(MakeLine(parts...));
    }
  }
  template <typename... Parts>
  void LogLevel4(const Parts&... parts) const {
    if (IsLogging()) {
      LogLevel4(MakeLine(parts...));
    }
  }

  // The readers append to the lists; the status is 0 whatever the SP answered.
  NVELKZEV20::TZEVStatusCode GetOrloVoltage();
  NVELKZEV20::TZEVStatusCode GetOrloTemps();
  NVELKZEV20::TZEVStatusCode GetOrloFans();
  NVELKZEV20::TZEVStatusCode GetKestleVoltage(unsigned int kestleType);
  NVELKZEV20::TZEVStatusCode GetKestleTemperature(unsigned int kestleType);
  NVELKZEV20::TZEVStatusCode GetKestleFan(unsigned int kestleType);

  // The exporters publish one list each.
  void ExportOrloTemps();
  void ExportOrloVoltages();
  void ExportOrloFans();
  void ExportKestleVoltages();
  void ExportKestleTemps();
  void ExportKestleFans();
  void printSensorVector(const std::vector<SensorRecord>& records);

  [[nodiscard]] const std::vector<SensorRecord>& OrloVoltages() const { return fOrloVoltages; }
  [[nodiscard]] const std::vector<SensorRecord>& OrloTemps() const { return fOrloTemps; }
  [[nodiscard]] const std::vector<SensorRecord>& OrloFans() const { return fOrloFans; }
  [[nodiscard]] const std::vector<SensorRecord>& KestleVoltages() const { return fKestleVoltages; }
  [[nodiscard]] const std::vector<SensorRecord>& KestleTemps() const { return fKestleTemps; }
  [[nodiscard]] const std::vector<SensorRecord>& KestleFans() const { return fKestleFans; }

  // Sends one dot command to the current SP instance, with its trail of log
  // lines; returns the reply length as reported.
  int sendOrloCommand(unsigned char commandClass, int identifierLength, int secondLength,
                      const unsigned char* identifier, const unsigned char* extraData,
                      unsigned char* reply, int replySize, unsigned char* status,
                      NVELKZEV20::SPLibrary* spLib);

  // Sends one Kestle command; `reply` holds 255 bytes. The library argument is
  // not looked at: the send goes to the collector's own library.
  int sendKestleCommand(unsigned char length, unsigned char commandCode, unsigned char expectedCode,
                        unsigned char checksum, unsigned char* commandData, int commandDataLength,
                        bool acknowledge, bool isRead, unsigned char* reply,
                        NVELKZEV20::SPLibrary* spLib, unsigned char* status);

 private:
  [[nodiscard]] bool IsLogging() const { return fLogSwitch != nullptr; }
  void Log(const std::string& message, int level) const;

  NVELKZEV20::TZEVStatusCode ReadOrloSensors(const OrloReader& reader,
                                             std::vector<SensorRecord>& records);
  NVELKZEV20::TZEVStatusCode ReadKestleList(const KestleListReader& reader, unsigned int kestleType,
                                            std::vector<SensorRecord>& records);
  void DecodeKestleList(const KestleListReader& reader, unsigned int kestleType, ByteView reply,
                        std::vector<SensorRecord>& records) const;
  void DecodeKestleFans(const KestleFanLayout& layout, ByteView reply);
  // True when the SP answered with data.
  bool AskKestle(const KestleRequest& request, KestleReply& reply);
  void Export(const char* exporter, const std::vector<SensorRecord>& records);
  void PublishSensor(const SensorRecord& record, const NVELKZEV20::ContextMap& context,
                     const std::string& systemName) const;

  std::uint16_t fNode = 0;                         // the index of the SP that is being read
  [[maybe_unused]] std::uint32_t fSecondWord = 0;  // kept clear
  boost::shared_ptr<NVELKZEV20::ICIMNamespace> fNamespace;
  NVELKZEV20::SPLibrary* fSpLibrary;
  const void* fLogSwitch;
  std::vector<SensorRecord> fOrloVoltages;
  std::vector<SensorRecord> fOrloTemps;
  std::vector<SensorRecord> fOrloFans;
  std::vector<SensorRecord> fKestleVoltages;
  std::vector<SensorRecord> fKestleTemps;
  std::vector<SensorRecord> fKestleFans;
};

}  // namespace strake

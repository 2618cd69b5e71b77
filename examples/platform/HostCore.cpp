// The smallest host core library: everything that plugin/host declares of it,
// and Boost's assertion handler.
#include "plugin/host/TCIMSchemaHelper.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/host/TRootObject.h"
#include "plugin/host/TZEVStatusCode.h"

#include <boost/assert.hpp>
#include <boost/make_shared.hpp>
#include <cstdio>
#include <example/Platform.h>
#include <stdexcept>

// Handles that are empty where they must not be end here.
void boost::assertion_failed(char const* expr, char const* function, char const* /*file*/,
                             long line) {
  throw std::logic_error(std::string(expr) + " in " + function + ':' + std::to_string(line));
}

namespace NVELKZEV20 {

// Slots that no plug-in calls keep the places of those that it does.
ICIMInstance::~ICIMInstance() = default;
void ICIMInstance::ReservedSlot1() {}
void ICIMInstance::ReservedSlot3() {}
void ICIMInstance::ReservedSlot4() {}
void ICIMInstance::ReservedSlot5() {}
void ICIMInstance::ReservedSlot6() {}
void ICIMInstance::ReservedSlot7() {}
void ICIMInstance::ReservedSlot8() {}
void ICIMInstance::ReservedSlot9() {}
void ICIMInstance::ReservedSlot10() {}

ICIMClass::~ICIMClass() = default;
void ICIMClass::ReservedSlot1() {}
void ICIMClass::ReservedSlot2() {}
void ICIMClass::ReservedSlot3() {}
void ICIMClass::ReservedSlot4() {}
void ICIMClass::ReservedSlot6() {}
void ICIMClass::ReservedSlot7() {}
void ICIMClass::ReservedSlot8() {}
void ICIMClass::ReservedSlot9() {}
void ICIMClass::ReservedSlot10() {}
void ICIMClass::ReservedSlot11() {}
void ICIMClass::ReservedSlot12() {}
void ICIMClass::ReservedSlot13() {}
void ICIMClass::ReservedSlot14() {}
void ICIMClass::ReservedSlot15() {}
void ICIMClass::ReservedSlot16() {}
void ICIMClass::ReservedSlot17() {}
void ICIMClass::ReservedSlot18() {}
void ICIMClass::ReservedSlot19() {}
void ICIMClass::ReservedSlot20() {}
void ICIMClass::ReservedSlot21() {}

ICIMNamespace::~ICIMNamespace() = default;
void ICIMNamespace::ReservedSlot1() {}
void ICIMNamespace::ReservedSlot2() {}
void ICIMNamespace::ReservedSlot3() {}
void ICIMNamespace::ReservedSlot4() {}

TCIMDateTime::TCIMDateTime()
    : fDay(0),
      fMicroseconds(0),
      fYear(0),
      fMonth(0),
      fHour(0),
      fMinute(0),
      fSecond(0),
      fUtcOffset(0) {}
TCIMDateTime::TCIMDateTime(const TCIMDateTime& other) = default;
TCIMDateTime& TCIMDateTime::operator=(const TCIMDateTime& other) = default;
TCIMDateTime::~TCIMDateTime() {}
void TCIMDateTime::Set(unsigned short year, unsigned short month, unsigned int day,
                       unsigned short hour, unsigned short minute, unsigned short second,
                       unsigned int microseconds, short utcOffset) {
  fDay = day;
  fMicroseconds = microseconds;
  fYear = year;
  fMonth = month;
  fHour = hour;
  fMinute = minute;
  fSecond = second;
  fUtcOffset = utcOffset;
}
std::string TCIMDateTime::ToString() const {
  std::string text(64, '\0');
  const int length =
      std::snprintf(text.data(), text.size(), "%04u%02u%02u%02u%02u%02u.%06u%+04d", fYear, fMonth,
                    fDay, fHour, fMinute, fSecond, fMicroseconds, fUtcOffset);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

TCIMValue::TCIMValue() {}
TCIMValue::TCIMValue(const TCIMValue& other) = default;
TCIMValue::TCIMValue(const std::string& text) : fContent(text) {}
TCIMValue::TCIMValue(const char* text) : fContent(std::string(text)) {}
TCIMValue::TCIMValue(int number) : fContent(std::int32_t{number}) {}
TCIMValue::TCIMValue(unsigned short number) : fContent(std::uint16_t{number}) {}
TCIMValue::TCIMValue(unsigned char number) : fContent(std::uint8_t{number}) {}
TCIMValue::TCIMValue(const TCIMDateTime& dateTime) : fContent(dateTime) {}
TCIMValue& TCIMValue::operator=(const TCIMValue& other) = default;
TCIMValue::~TCIMValue() {}

struct TCIMValueContent {
  static std::string Text(const TCIMValue& value) {
    return std::visit([](const auto& content) { return TextOf(content); }, value.fContent);
  }

 private:
  static std::string TextOf(std::monostate /*nothing*/) { return "nothing"; }
  static std::string TextOf(const std::string& text) { return text; }
  static std::string TextOf(const TCIMDateTime& dateTime) { return dateTime.ToString(); }
  static std::string TextOf(int number) { return std::to_string(number); }
};

TZEVStatusCode::TZEVStatusCode(EZEVStatusCode code) : fCode(code) {}

const std::string TCIMSchemaHelper::kContextName = "Context";
const std::string TCIMSchemaHelper::kPluginNSPName = "Plugins";
std::string TCIMSchemaHelper::GetSystemName(boost::shared_ptr<ICIMNamespace> /*cimNamespace*/) {
  return "HOST1";
}
std::string TCIMSchemaHelper::GetSystemCreationClassName(
    boost::shared_ptr<ICIMNamespace> /*cimNamespace*/) {
  return "CIM_ComputerSystem";
}

std::string TOSSpecific::GetMachineTypeFromID() { return "5301-AR2"; }
TCIMDateTime TOSSpecific::GetLocalTime() { return {}; }

namespace {

class Logger : public ILogger {
 public:
  void Log(int level, const std::string& message) override {
    if (level <= 1) {
      std::fprintf(stderr, "[%d] %s\n", level, message.c_str());
    }
  }
};

Logger theLogger;

}  // namespace

ILogger::~ILogger() = default;
ILogger* TRootObject::GetCoreLogger() { return &theLogger; }

}  // namespace NVELKZEV20

namespace platform {
namespace {

using namespace NVELKZEV20;

class Instance : public ICIMInstance {
 public:
  explicit Instance(const std::string& className) : fText(className + '\n') {}
  void SetProperty(const std::string& name, const TCIMValue& value,
                   TNameToValueMap /*qualifiers*/) override {
    fText += "  " + name + " = " + TCIMValueContent::Text(value) + '\n';
  }
  void Commit(TNameToValueMap /*options*/) override { std::fputs(fText.c_str(), stdout); }

 private:
  std::string fText;
};

class Class : public ICIMClass {
 public:
  explicit Class(const std::string& name) : fName(name) {}
  std::string GetName() const override { return fName; }
  void CreateInstance(boost::shared_ptr<ICIMInstance>& instance,
                      const TNameToValueMap& /*options*/) override {
    instance = boost::make_shared<Instance>(fName);
  }

 private:
  std::string fName;
};

class Namespace : public ICIMNamespace {
 public:
  void GetClass(boost::shared_ptr<ICIMClass>& cimClass, const std::string& name,
                ContextMap /*context*/) override {
    cimClass = boost::make_shared<Class>(name);
  }
};

}  // namespace

boost::shared_ptr<ICIMNamespace> MakeNamespace() { return boost::make_shared<Namespace>(); }

}  // namespace platform

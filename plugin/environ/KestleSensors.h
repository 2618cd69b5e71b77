// The lists that a Tavit processor answers with: what each machine family
// names its sensors and how its replies are laid out. Byte 0 of a reply is its
// length, which must be the family's before anything else is believed.
#pragma once

#include <cstddef>
#include <iterator>
#include <optional>
#include <span>

namespace strake {

// A list that a Tavit processor is asked for. Code and checksum add up to 0
// modulo 256.
struct KestleRequest {
  const char* name;  // as the messages call it
  unsigned char code;
  unsigned char checksum;
};

inline constexpr KestleRequest kVoltageRequest = {"MSG_VOLTAGE_LIST", 0xA6, 0x5A};
inline constexpr KestleRequest kTemperatureRequest = {"MSG_TEMPERATURE_LIST", 0xA4, 0x5C};
inline constexpr KestleRequest kFanRequest = {"ALERT_FAN_INFORMATION", 0xA2, 0x5E};

// A list of voltages (two bytes a reading, high byte first) or temperatures (one
// byte a reading).
struct KestleListLayout {
  unsigned char expectedLength;
  std::size_t firstByte;
  std::span<const char* const> names;  // one a reading, in reply order
};

// A header byte of the fan list that is only logged.
struct KestleFanHeader {
  const char* label;
  std::size_t byte;
};

// A list of fans: speeds are two bytes, high byte first.
struct KestleFanLayout {
  const char* family;  // as the fan messages call it
  std::span<const unsigned char> expectedLengths;
  std::size_t fans;  // 0: as many as the length leaves room for
  std::span<const KestleFanHeader> headers;
  std::size_t firstByte;
  const char* highByteLabel;
  const char* lowByteLabel;  // says "<<8" too, though the low byte is not shifted
};

// What the machines of one family answer with.
struct TavitFamily {
  const char* name = nullptr;  // as the voltage and temperature messages call it
  KestleListLayout voltages;
  KestleListLayout temperatures;
  std::optional<KestleFanLayout> fans;  // blades have none of their own
};

inline constexpr const char* kPilkarVoltageNames[] = {
    "12 Voltage",  "5 Voltage",    "3.3 Voltage",      "2.5 Voltage",
    "1.5 Voltage", "1.25 Voltage", "CPU Core Voltage",
};
inline constexpr const char* kTessilVoltageNames[] = {
    "12 Voltage",  "-12 Voltage",        "5 Voltage",          "3.3 Voltage",
    "2.5 Voltage", "CPU 1 Core Voltage", "CPU 2 Core Voltage",
};
inline constexpr const char* kNembroVoltageNames[] = {
    "3.3 Voltage", "2.5 Voltage", "CPU Core Voltage", "5 Voltage", "12 Voltage", "-12 Voltage",
};
inline constexpr const char* kBladeVoltageNames[] = {
    "12 Voltage",   "5 Voltage",   "3.3 Voltage",      "2.5 Voltage", "1.5 Voltage",
    "1.25 Voltage", "18V Remote",  "12V Remote",       "5V Remote",   "3.3V Remote",
    "2.5V Remote",  "1.8V Remote", "CPU Core Voltage",
};

inline constexpr const char* kFourTemperatureNames[] = {
    "Ambient Temperature",
    "CPU 1 Temperature",
    "CPU 2 Temperature",
    "DASD 1 Temperature",
};
inline constexpr const char* kTessilTemperatureNames[] = {
    "Environment Temperature", "CPU 1 Temperature",  "CPU 2 Temperature",
    "DASD 1 Temperature",      "DASD 2 Temperature", "DASD 3 Temperature",
};
// The second name, that of sensor 1, is three names run together; the five
// behind it belong to sensors 2 to 6.
inline constexpr const char* kNembroTemperatureNames[] = {
    "Ambient Temperature", "Processor Area TemperaturePCI Area TemperatureCPU 1 Temperature",
    "CPU 2 Temperature",   "CPU 3 Temperature",
    "CPU 4 Temperature",   "DASD 1 Temperature",
    "DASD 2 Temperature",
};

inline constexpr const char* kKestleFanNames[] = {
    "Fan 1", "Fan 2", "Fan 3", "Fan 4", "Fan 5", "Fan 6", "Fan 7", "Fan 8", "Fan 9",
};

inline constexpr unsigned char kPilkarFanLengths[] = {16, 18, 22};
inline constexpr unsigned char kTessilFanLengths[] = {15};
inline constexpr unsigned char kNembroFanLengths[] = {28};

inline constexpr KestleFanHeader kPilkarFanHeaders[] = {
    {"Fan Speed      = ", 2},
    {"Fans Expected  = ", 3},
    {"Fans Installed = ", 4},
};
inline constexpr KestleFanHeader kTessilFanHeaders[] = {
    {"Fans Expected  = ", 2},
    {"Fans Installed = ", 3},
};
inline constexpr KestleFanHeader kNembroFanHeaders[] = {
    {"Fans Expected Nembro  = ", 4},
    {"Fans Expected Rokko = ", 5},
};

// By Kestle_Type; any other number is no family.
inline constexpr TavitFamily kTavitFamilies[] = {
    {"Pilkar/Mossel/Fendra",
     {18, 4, kPilkarVoltageNames},
     {10, 6, kFourTemperatureNames},
     KestleFanLayout{"Pilkar/Mossel/Fendra", kPilkarFanLengths, 0, kPilkarFanHeaders, 6,
                     "  h8Data[i+6]<<8 = ", "  h8Data[i+7]<<8 = "}},
    {"Tessil",
     {18, 4, kTessilVoltageNames},
     {12, 6, kTessilTemperatureNames},
     KestleFanLayout{"Tessil/Varnel", kTessilFanLengths, 5, kTessilFanHeaders, 5,
                     "  h8Data[i+5]<<8 = ", "  h8Data[i+6]<<8 = "}},
    {"Nembro",
     {16, 4, kNembroVoltageNames},
     {18, 6, kNembroTemperatureNames},
     KestleFanLayout{"Nembro", kNembroFanLengths, 9, kNembroFanHeaders, 10,
                     "  h8Data[i+10]<<8 = ", "  h8Data[i+11]<<8 = "}},
    {"Blade", {30, 4, kBladeVoltageNames}, {9, 5, kFourTemperatureNames}, std::nullopt},
};

static_assert(std::size(kPilkarVoltageNames) == 7 && std::size(kTessilVoltageNames) == 7);
static_assert(std::size(kNembroVoltageNames) == 6 && std::size(kBladeVoltageNames) == 13);
static_assert(std::size(kFourTemperatureNames) == 4 && std::size(kTessilTemperatureNames) == 6);
static_assert(std::size(kNembroTemperatureNames) == 7 && std::size(kKestleFanNames) == 9);

}  // namespace strake

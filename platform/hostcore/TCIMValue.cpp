#include "plugin/host/TCIMValue.h"

namespace NVELKZEV20 {

TCIMValue::TCIMValue() = default;
TCIMValue::TCIMValue(const TCIMValue& other) = default;
TCIMValue::TCIMValue(const std::string& text) : fContent(text) {}
TCIMValue::TCIMValue(const char* text) : fContent(std::in_place_type<std::string>, text) {}
TCIMValue::TCIMValue(int number) : fContent(std::in_place_type<std::int32_t>, number) {}
TCIMValue::TCIMValue(unsigned short number) : fContent(std::in_place_type<std::uint16_t>, number) {}
TCIMValue::TCIMValue(unsigned char number) : fContent(std::in_place_type<std::uint8_t>, number) {}
TCIMValue::TCIMValue(const TCIMDateTime& dateTime) : fContent(dateTime) {}
TCIMValue& TCIMValue::operator=(const TCIMValue& other) = default;
TCIMValue::~TCIMValue() = default;

}  // namespace NVELKZEV20

// What the bytes of the dial records mean, written out for the tests.
#pragma once

#include <span>
#include <string>

namespace strake::tests {

struct DialField {
  const char* name;
  std::string (*meaning)(int byte);  // of a coded byte; null for a text
};

std::span<const DialField> SerialPortMeanings();
std::span<const DialField> DialoutMeanings();
std::span<const DialField> DialinMeanings();
std::span<const DialField> AlertMeanings();

}  // namespace strake::tests

#include "platform/server/ElementRecord.h"

#include <stdexcept>

namespace strake::platform {

std::string PlainElement(unsigned char id, unsigned char header, std::string_view data) {
  if (data.size() > kMostElementData) {
    throw std::length_error("element data over 255 bytes");
  }
  std::string element;
  element += static_cast<char>(id);
  element += static_cast<char>(header);
  element += static_cast<char>(data.size());
  element += data;
  return element;
}

std::string StringElement(unsigned char id, unsigned char header, std::string_view text,
                          unsigned char maximum) {
  std::string data;
  data += static_cast<char>(maximum);
  data += text;
  data += '\0';
  return PlainElement(id, header, data);
}

}  // namespace strake::platform

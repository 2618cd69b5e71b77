#include "tests/support/PlainRecords.h"

#include <algorithm>
#include <stdexcept>

namespace strake::tests {
namespace {

// Room for an element that begins at 255.
constexpr std::size_t kMemory = 1024;

std::string TextOf(const PlainBytes& value) {
  std::string text;
  for (std::size_t i = 0; i < value.size() && value[i] != 0; ++i) {
    text += static_cast<char>(value[i]);
  }
  return text;
}

}  // namespace

const PlainRecord& PlainRecordNamed(std::string_view name) {
  for (const PlainRecord& record : PlainRecords()) {
    if (record.name == name) {
      return record;
    }
  }
  throw std::out_of_range("no plain record " + std::string(name));
}

std::size_t PlainNext(std::span<const unsigned char> buffer, std::size_t start) {
  const std::size_t length = start + 2 < buffer.size() ? buffer[start + 2] : 0;
  return (start + 3 + length) % 256;
}

std::vector<PlainElement> ReadPlainly(const PlainRecord& record,
                                      std::span<const unsigned char> buffer) {
  PlainBytes memory(std::max(kMemory, buffer.size()), 0);
  for (std::size_t i = 0; i < buffer.size(); ++i) {
    memory[i] = buffer[i];
  }
  std::vector<PlainElement> elements;
  elements.reserve(record.fields.size());
  std::size_t start = 0;
  for (const PlainField& field : record.fields) {
    const std::size_t length = memory[start + 2];
    const std::size_t maximum = memory[start + 3];
    std::size_t from = start + 3;
    std::size_t count = length;
    if (field.form != PlainForm::Data) {
      from = start + 4;
    }
    if (field.form == PlainForm::TextUpToMaximum && maximum < length) {
      count = maximum;
    }
    PlainBytes value(256, 0);
    for (std::size_t i = 0; i < count; ++i) {
      value[i] = memory[from + i];
    }
    elements.push_back({start, memory[start], memory[start + 1], memory[start + 2],
                        memory[start + 3],
                        field.form == PlainForm::Data ? field.decode(value) : TextOf(value)});
    start = PlainNext(buffer, start);
  }
  return elements;
}

std::vector<std::string> PlainTrail(const PlainRecord& record,
                                    const std::vector<PlainElement>& elements,
                                    unsigned long instance) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < record.fields.size(); ++i) {
    const PlainField& field = record.fields[i];
    const PlainElement& element = elements[i];
    const std::string brackets =
        "log 4 [" + (field.label.empty() ? field.name : field.label) + "] ";
    if (record.tellsVectorIds) {
      lines.push_back(brackets + "Vector ID = " + std::to_string(element.vectorId) + " " +
                      std::to_string(element.header));
    }
    if (field.form != PlainForm::Data || record.tellsLengths) {
      lines.push_back(brackets + "Data length = " + std::to_string(element.length));
    }
    if (field.form != PlainForm::Data) {
      lines.push_back(brackets + "Max length of string = " + std::to_string(element.maximum));
    }
    lines.push_back("log 3 " + field.name + " = " + element.text);
    if (field.isSet) {
      lines.push_back("Set " + std::to_string(instance) + " " + field.name + " string " +
                      element.text);
    }
  }
  return lines;
}

}  // namespace strake::tests

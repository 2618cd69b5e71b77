// A second, deliberately plain reading of the element records, which the tests
// and the fuzzers hold the real one beside: index arithmetic on one array, and
// every table written out again.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

using PlainBytes = std::vector<unsigned char>;

enum class PlainForm { Data, Text, TextUpToMaximum };

struct PlainField {
  std::string name;
  PlainForm form;
  std::string (*decode)(const PlainBytes& value);  // 256 bytes, zeros behind the data
  bool isSet = true;
  std::string label = {};  // in brackets; empty: the name
};

struct PlainRecord {
  std::string name;       // as the plug-in names it
  std::string className;  // of the instance that its fields are set on
  std::vector<PlainField> fields;
  bool tellsVectorIds = true;
  bool tellsLengths = false;  // of plain elements
};

// By number; a new record gets a number of its own, behind the others.
const std::vector<PlainRecord>& PlainRecords();
// Throws std::out_of_range.
const PlainRecord& PlainRecordNamed(std::string_view name);

struct PlainElement {
  std::size_t start;
  int vectorId, header, length, maximum;
  std::string text;

  bool operator==(const PlainElement&) const = default;
};

std::vector<PlainElement> ReadPlainly(const PlainRecord& record,
                                      std::span<const unsigned char> buffer);
// Where the element behind the one that starts there starts.
std::size_t PlainNext(std::span<const unsigned char> buffer, std::size_t start);

// What the walk logs and sets, as a recorder tells it.
std::vector<std::string> PlainTrail(const PlainRecord& record,
                                    const std::vector<PlainElement>& elements,
                                    unsigned long instance = 1);

}  // namespace strake::tests

// A second, deliberately plain reading of the element records, to hold the real
// one beside: index arithmetic on one array, and every table written out again.
#pragma once

#include "tests/support/Recorder.h"

#include <cstddef>
#include <string>
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
  std::string name;
  std::string className;  // of the instance that its fields are set on
  std::vector<PlainField> fields;
  bool tellsVectorIds = true;
  bool tellsLengths = false;  // of plain elements
};

// The interface, DNS, community, serial-port, dial-out, dial-in and alert
// records, in this order.
const std::vector<PlainRecord>& PlainRecords();

struct PlainElement {
  std::size_t start;
  int vectorId, header, length, maximum;
  std::string text;

  bool operator==(const PlainElement&) const = default;
};

std::vector<PlainElement> ReadPlainly(const PlainRecord& record, const PlainBytes& buffer);

// What the walk logs and sets, as a recorder tells it.
Lines PlainTrail(const PlainRecord& record, const std::vector<PlainElement>& elements,
                 unsigned long instance = 1);

}  // namespace strake::tests

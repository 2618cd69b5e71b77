#include "fuzz/ReportBytes.h"

#include "cim/Catalogue.h"
#include "cim/DateTimeText.h"
#include "fuzz/ByteStream.h"

#include <algorithm>
#include <exception>

namespace strake::fuzz {
namespace {

using cim::CimType;

constexpr unsigned int kShowsSecrets = 1;
constexpr unsigned int kHasColours = 2;
constexpr unsigned int kOwnType = 8;
constexpr unsigned int kTypes = 5;

// The one of the name; of a name that none has, the one that its length says.
template <typename Row>
const Row& RowNamed(std::span<const Row> rows, const std::string& name) {
  const auto found = std::ranges::find(rows, name, &Row::name);
  return found == rows.end() ? rows[name.size() % rows.size()] : *found;
}

cim::DateTime DateTimeOf(const std::string& text) {
  try {
    return cim::DateTime(cim::ParseDateTime(text).ToString());
  } catch (const std::exception&) {
    return cim::DateTime("00000000000000.000000+000");
  }
}

cim::Value ReadValue(ByteReader& in, CimType type) {
  switch (type) {
    case CimType::Sint32:
      return {in.Number()};
    case CimType::Uint16:
      return {static_cast<std::uint16_t>(in.Number())};
    case CimType::Uint8:
      return {static_cast<std::uint8_t>(in.Number())};
    case CimType::DateTime:
      return {DateTimeOf(in.Text())};
    default:
      return {in.Text()};
  }
}

cim::StoredInstance ReadInstance(ByteReader& in, unsigned long number) {
  const cim::SchemaClass& schema = RowNamed(cim::SchemaClasses(), in.Text());
  cim::StoredInstance instance{&schema, number, {}};
  const unsigned int count = in.Byte();
  for (unsigned int i = 0; i < count && !in.AtEnd(); ++i) {
    const cim::SchemaProperty& property = RowNamed(schema.properties, in.Text());
    const unsigned int type = in.Byte();
    const bool isOwn = (type & kOwnType) != 0;
    const cim::Value value =
        ReadValue(in, isOwn ? static_cast<CimType>((type & 7U) % kTypes) : property.type);
    if (cim::FindValue(instance, property.name) == nullptr) {
      instance.properties.push_back({&property, value});
    }
  }
  return instance;
}

struct ValueWriter {
  ByteWriter& out;

  void operator()(const std::string& text) const { Text(CimType::String, text); }
  void operator()(std::int32_t number) const { Number(CimType::Sint32, number); }
  void operator()(std::uint16_t number) const { Number(CimType::Uint16, number); }
  void operator()(std::uint8_t number) const { Number(CimType::Uint8, number); }
  void operator()(const cim::DateTime& time) const { Text(CimType::DateTime, time.Text()); }

  void Type(CimType type) const { out.Byte(kOwnType | static_cast<unsigned int>(type)); }
  void Text(CimType type, std::string_view text) const {
    Type(type);
    out.Text(std::string(text));
  }
  void Number(CimType type, std::int32_t number) const {
    Type(type);
    out.Number(number);
  }
};

}  // namespace

ReportCase DecodeReport(std::span<const unsigned char> bytes) {
  ByteReader in(bytes);
  const unsigned int flags = in.Byte();
  ReportCase result;
  result.showSecrets = (flags & kShowsSecrets) != 0;
  result.colours = (flags & kHasColours) != 0;
  result.serverName = in.Text();
  result.serverDescription = in.Text();
  const unsigned int count = in.Byte();
  for (unsigned int i = 0; i < count && !in.AtEnd(); ++i) {
    result.instances.push_back(ReadInstance(in, i + 1));
  }
  return result;
}

std::string EncodeReport(const ReportCase& reportCase) {
  ByteWriter out;
  out.Byte((reportCase.showSecrets ? kShowsSecrets : 0) | (reportCase.colours ? kHasColours : 0));
  out.Text(reportCase.serverName);
  out.Text(reportCase.serverDescription);
  out.Byte(reportCase.instances.size());
  for (const cim::StoredInstance& instance : reportCase.instances) {
    out.Text(std::string(instance.schema->name));
    out.Byte(instance.properties.size());
    for (const cim::StoredProperty& property : instance.properties) {
      out.Text(std::string(property.schema->name));
      std::visit(ValueWriter{out}, property.value);
    }
  }
  return out.Written();
}

}  // namespace strake::fuzz

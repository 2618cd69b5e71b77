#include "platform/server/Replies.h"

#include "platform/server/ElementRecord.h"
#include "text/HexBytes.h"

#include <cstdint>

namespace strake::platform {
namespace {

std::string ReadBytes(const json::Field& field) {
  std::optional<std::string> bytes;
  if (field.IsText()) {
    bytes = text::ParseHexBytes(field.Text());
  }
  if (!bytes) {
    field.Refuse("hexadecimal byte pairs");
  }
  return *bytes;
}

unsigned char ReadByte(const json::Field& element, const char* key, int otherwise) {
  const std::optional<json::Field> field = element.Find(key);
  return static_cast<unsigned char>(field ? field->Integer(0, 255) : otherwise);
}

std::string ReadPlainElement(const json::Field& element, const json::Field& data) {
  const std::string bytes = ReadBytes(data);
  if (bytes.size() > kMostElementData) {
    data.RefuseGot("at most 255 bytes of data", std::to_string(bytes.size()));
  }
  return PlainElement(ReadByte(element, "id", 0), ReadByte(element, "header", 0), bytes);
}

std::string ReadStringElement(const json::Field& element, const json::Field& text) {
  const std::string& bytes = text.Text();
  if (bytes.size() > kMostElementText) {
    text.RefuseGot("at most 253 bytes of text", std::to_string(bytes.size()));
  }
  return StringElement(ReadByte(element, "id", 0), ReadByte(element, "header", 0), bytes,
                       ReadByte(element, "max", static_cast<int>(bytes.size()) + 1));
}

std::string ReadElement(const json::Field& element) {
  element.AllowKeys({"id", "header", "data", "text", "max"});
  const std::optional<json::Field> data = element.Find("data");
  const std::optional<json::Field> text = element.Find("text");
  if (data.has_value() == text.has_value()) {
    element.RefuseGot("either \"data\" or \"text\"", data ? "both" : "neither");
  }
  if (text) {
    return ReadStringElement(element, *text);
  }
  if (element.Find("max")) {
    element.RefuseGot("no \"max\" beside \"data\"", "one");
  }
  return ReadPlainElement(element, *data);
}

Reply Success(const std::string& bytes) { return {bytes, static_cast<int>(bytes.size()), true}; }

Reply ReadElements(const json::Field& elements) {
  std::string record;
  elements.ForEachItem([&](const json::Field& element) { record += ReadElement(element); });
  return Success(record);
}

Reply ReadReplyObject(const json::Field& field) {
  if (const std::optional<json::Field> text = field.Find("text")) {
    field.AllowKeys({"text"});
    return Success(text->Text());
  }
  if (const std::optional<json::Field> elements = field.Find("elements")) {
    field.AllowKeys({"elements"});
    return ReadElements(*elements);
  }
  field.AllowKeys({"hex", "length", "succeeds"});
  const std::optional<json::Field> hex = field.Find("hex");
  Reply reply = Success(hex ? ReadBytes(*hex) : std::string());
  if (const auto length = field.Find("length")) {
    reply.length = length->Integer(INT32_MIN, INT32_MAX);
  }
  if (const auto succeeds = field.Find("succeeds")) {
    reply.succeeds = succeeds->Flag();
  }
  return reply;
}

Reply ReadReply(const json::Field& field) {
  if (field.IsText()) {
    return Success(ReadBytes(field));
  }
  if (field.IsObject()) {
    return ReadReplyObject(field);
  }
  field.Refuse("a reply (a string or an object)");
}

}  // namespace

ReplySequence ReadReplies(const json::Field& field) {
  if (!field.IsArray()) {
    return {ReadReply(field)};
  }
  if (field.ItemCount() == 0) {
    field.RefuseGot("at least one reply", "an empty array");
  }
  ReplySequence replies;
  field.ForEachItem([&](const json::Field& item) { replies.push_back(ReadReply(item)); });
  return replies;
}

}  // namespace strake::platform

#include "describe/ReplyText.h"

#include "describe/JsonBlock.h"
#include "describe/ReplyLayout.h"
#include "findings/Commands.h"
#include "text/HexBytes.h"
#include "text/TextEscape.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace strake::describe {
namespace {

using platform::Reply;

void AppendHex(std::string& out, std::string_view bytes) {
  out += '"';
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    out += i == 0 ? "" : " ";
    text::AppendHexPair(out, static_cast<unsigned char>(bytes[i]));
  }
  out += '"';
}

// It succeeds, and its length is the number of its bytes.
bool IsBytesAlone(const Reply& reply) {
  return reply.succeeds && reply.length == static_cast<int>(reply.bytes.size());
}

void AppendReply(std::string& out, const Reply& reply) {
  if (IsBytesAlone(reply)) {
    AppendHex(out, reply.bytes);
    return;
  }
  const char* separator = "";
  out += '{';
  if (!reply.bytes.empty()) {
    out += "\"hex\": ";
    AppendHex(out, reply.bytes);
    separator = ", ";
  }
  if (reply.length != static_cast<int>(reply.bytes.size())) {
    out += separator;
    out += "\"length\": " + std::to_string(reply.length);
    separator = ", ";
  }
  if (!reply.succeeds) {
    out += separator;
    out += "\"succeeds\": false";
  }
  out += '}';
}

bool IsUtf8(std::string_view text) { return text::ToValidUtf8(text) == text; }

struct Element {
  unsigned char id = 0;
  unsigned char header = 0;
  std::string_view data;
  bool isText = false;
};

// Whether the data are a maximum, a text and one zero byte.
bool IsTextElement(std::string_view data) {
  return data.size() >= 2 && data.find('\0', 1) == data.size() - 1 && IsUtf8(data.substr(1));
}

// Empty when the bytes are no record with these fields, or more than one.
std::optional<std::vector<Element>> SplitRecord(std::string_view bytes,
                                                const RecordLayout& layout) {
  constexpr std::size_t kHeader = 3;
  std::vector<Element> elements;
  for (const RecordField& field : layout.fields) {
    if (bytes.size() < kHeader) {
      return std::nullopt;
    }
    const auto length = static_cast<unsigned char>(bytes[2]);
    if (bytes.size() < kHeader + length) {
      return std::nullopt;
    }
    const std::string_view data = bytes.substr(kHeader, length);
    elements.push_back({static_cast<unsigned char>(bytes[0]), static_cast<unsigned char>(bytes[1]),
                        data, field.form != FieldForm::Plain && IsTextElement(data)});
    bytes.remove_prefix(kHeader + length);
  }
  return bytes.empty() ? std::optional(std::move(elements)) : std::nullopt;
}

void AppendElement(std::string& out, const Element& element) {
  out += "{\"id\": " + std::to_string(element.id);
  if (element.header != 0) {
    out += ", \"header\": " + std::to_string(element.header);
  }
  if (!element.isText) {
    out += ", \"data\": ";
    AppendHex(out, element.data);
  } else {
    const std::string_view text = element.data.substr(1, element.data.size() - 2);
    out += ", \"text\": " + JsonText(text);
    const auto maximum = static_cast<unsigned char>(element.data.front());
    if (maximum != text.size() + 1) {
      out += ", \"max\": " + std::to_string(maximum);
    }
  }
  out += '}';
}

void AppendElements(std::string& out, std::size_t depth, const std::vector<Element>& elements) {
  out += "{\"elements\": ";
  {
    JsonBlock items(out, depth, "[]");
    for (const Element& element : elements) {
      items.Item();
      AppendElement(out, element);
    }
  }
  out += '}';
}

}  // namespace

void AppendReplies(std::string& out, const platform::ReplySequence& replies) {
  if (replies.size() == 1) {
    AppendReply(out, replies.front());
    return;
  }
  const char* separator = "[";
  for (const Reply& reply : replies) {
    out += separator;
    AppendReply(out, reply);
    separator = ", ";
  }
  out += ']';
}

void AppendAsRecord(std::string& out, std::size_t depth, const platform::Identifier& command,
                    const platform::ReplySequence& replies) {
  const std::span key(reinterpret_cast<const unsigned char*>(command.data()), command.size());
  const std::optional<findings::KnownCommand> known = findings::FindCommand(key);
  if (!known || replies.size() != 1 || !IsBytesAlone(replies.front())) {
    AppendReplies(out, replies);
    return;
  }
  const std::string& bytes = replies.front().bytes;
  const RecordLayout* const layout = FindRecord(known->command->name);
  const auto elements = layout != nullptr ? SplitRecord(bytes, *layout) : std::nullopt;
  if (elements) {
    AppendElements(out, depth, *elements);
  } else if (FindDecoder(known->command->name) == &DecodeText && IsUtf8(bytes)) {
    out += "{\"text\": " + JsonText(bytes) + "}";
  } else {
    AppendReplies(out, replies);
  }
}

}  // namespace strake::describe

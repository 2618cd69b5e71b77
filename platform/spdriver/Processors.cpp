#include "platform/spdriver/Processors.h"

#include "platform/spdriver/CommandList.h"

#include <stdexcept>

namespace strake::platform {
namespace {

void CheckComponents(const std::map<Identifier, int>& components) {
  if (components.size() > kMostComponents) {
    throw std::invalid_argument("more components than the command list can name");
  }
  for (const auto& [identifier, count] : components) {
    if (identifier.size() != kComponentIdentifierBytes ||
        identifier.at(kInstanceNumberPlace) != '\0') {
      throw std::invalid_argument("a component's identifier has five bytes, the fourth of them 0");
    }
    if (count < 0 || count > 254) {
      throw std::invalid_argument("component count " + std::to_string(count) + " is not in 0..254");
    }
  }
}

// A command's sequence and its place, which advances.
template <typename Key>
const Reply* Take(const std::map<Key, ReplySequence>& sequences, std::map<Key, std::size_t>& places,
                  const Key& key) {
  const auto sequence = sequences.find(key);
  if (sequence == sequences.end()) {
    return nullptr;
  }
  const ReplySequence& replies = sequence->second;
  if (replies.size() == 1) {
    return &replies.front();
  }
  std::size_t& place = places[key];
  const Reply& reply = replies.at(place);
  if (place + 1 < replies.size()) {
    ++place;
  }
  return &reply;
}

template <typename Key>
void CheckSequences(const std::map<Key, ReplySequence>& sequences) {
  for (const auto& [key, replies] : sequences) {
    if (replies.empty()) {
      throw std::invalid_argument("a command has no reply");
    }
  }
}

}  // namespace

Processors::Processors(const SpDescription& description)
    : fDescription(description), fDotPlaces(description.instances.size()) {
  CheckComponents(description.components);
  for (const auto& commands : description.instances) {
    CheckSequences(commands);
  }
  CheckSequences(description.kestleCommands);
}

const Reply* Processors::TakeDotReply(int sp, std::span<const unsigned char> identifier) {
  if (sp < 0 || static_cast<std::size_t>(sp) >= fDescription.instances.size()) {
    return nullptr;
  }
  const auto index = static_cast<std::size_t>(sp);
  return Take(fDescription.instances.at(index), fDotPlaces.at(index),
              Identifier(identifier.begin(), identifier.end()));
}

const Reply* Processors::TakeKestleReply(unsigned char code) {
  return Take(fDescription.kestleCommands, fKestlePlaces, code);
}

DriverState& TheDriver() {
  static DriverState driver;
  return driver;
}

}  // namespace strake::platform

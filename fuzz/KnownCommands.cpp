#include "fuzz/KnownCommands.h"

#include "plugin/config/Records.h"
#include "text/DotNotation.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace strake::fuzz {
namespace {

using platform::Identifier;

constexpr CommandNumber kNumbers[] = {
    {0, "1.1"},           {1, "4.4.1"},         {2, "4.4.2"},         {3, "4.9.3.1.2"},
    {4, "4.9.3.1.1"},     {5, "4.9.3.1.3"},     {6, "4.9.3.1.5"},     {7, "4.9.3.1.6"},
    {8, "4.9.3.1.4.255"}, {9, "4.9.3.2.255"},   {10, "4.9.1.1.255"},  {11, "4.1.2.1.255"},
    {12, "4.1.3.1.255"},  {13, "4.1.4.1.255"},  {14, "4.1.4.1.9"},    {15, "4.1.4.1.3"},
    {16, "4.2.1.255"},    {17, "4.9.1.1.16.1"}, {18, "4.9.1.1.16.2"}, {19, "4.9.1.1.16.3"},
    {20, "4.9.1.1.16.4"}, {21, "4.9.1.1.16.5"}, {22, "4.9.1.1.16.6"}, {23, "4.9.1.1.16.7"},
    {24, "4.9.1.1.16.8"}, {25, "4.9.1.1.16.9"}, {26, "2.2.1.1"},      {27, "2.2.1.2"},
    {28, "2.2.1.3"},      {29, "2.2.1.4"},      {30, "2.2.1.5"},      {31, "2.2.1.6"},
    {32, "2.2.1.7"},      {33, "2.2.1.8"},      {34, "2.2.1.13"},     {35, "2.2.1.19"},
    {36, "2.2.1.20"},     {37, "2.2.3.1"},      {38, "2.2.3.2"},      {39, "2.1.1.1"},
    {40, "2.1.1.2"},      {41, "2.1.1.3"},      {42, "2.1.1.4"},      {43, "2.1.1.5"},
    {44, "2.1.1.6"},      {45, "2.1.2.1"},      {46, "2.1.2.2"},      {47, "2.1.2.3"},
    {48, "2.1.2.4"},      {49, "2.1.5.1"},      {50, "2.1.4.1"},      {51, "2.1.4.2"},
    {52, "2.3.1"},        {53, "2.3.2"},        {54, "2.3.3"},        {55, "2.3.4"},
    {56, "2.3.5"},        {57, "2.3.6"},        {58, "2.3.7"},        {59, "2.3.8"},
    {60, "2.3.9"},        {61, "2.3.10"},       {62, "2.3.11"},       {63, "2.3.12"},
    {64, "2.3.13"},       {65, "2.3.14"},       {66, "2.3.15"},       {67, "2.3.16"},
};

std::optional<unsigned char> NumberOf(const Identifier& identifier) {
  const std::string command = text::DotNotation(
      {reinterpret_cast<const unsigned char*>(identifier.data()), identifier.size()});
  const auto* const found = std::ranges::find(kNumbers, command, &CommandNumber::command);
  if (found == std::end(kNumbers)) return std::nullopt;
  return found->number;
}

std::vector<KnownCommand> Collect() {
  std::vector<KnownCommand> commands;
  for (const NamedIdentifier& named : AllIdentifiers()) {
    const std::span<const unsigned char> bytes = named.identifier.Bytes();
    const Identifier identifier(bytes.begin(), bytes.end());
    commands.push_back({identifier, named.isNumbered, NumberOf(identifier)});
  }
  return commands;
}

using Numbered = std::array<const KnownCommand*, kUnnumbered + 1>;

Numbered ByNumber() {
  Numbered commands{};
  for (const KnownCommand& command : KnownCommands()) {
    if (command.number) commands.at(*command.number) = &command;
  }
  return commands;
}

}  // namespace

const std::vector<KnownCommand>& KnownCommands() {
  static const std::vector<KnownCommand> commands = Collect();
  return commands;
}

const KnownCommand* CommandNumbered(unsigned char number) {
  static const Numbered commands = ByNumber();
  return commands.at(number & kUnnumbered);
}

std::span<const CommandNumber> CommandNumbers() { return kNumbers; }

}  // namespace strake::fuzz

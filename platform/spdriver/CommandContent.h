// Opens commands to the library that carries them.
#pragma once

#include "plugin/spaccess/SPLibrary.h"

#include <cstddef>
#include <span>

struct dotCmdContent {
  static int Class(const dotCmd& command) { return command.fCommandClass; }
  static std::span<const unsigned char> Identifier(const dotCmd& command) {
    if (command.fIdentifier == nullptr || command.fIdentifierLength <= 0) {
      return {};
    }
    return {command.fIdentifier, static_cast<std::size_t>(command.fIdentifierLength)};
  }
  static int SecondLength(const dotCmd& command) { return command.fSecondLength; }
  static const unsigned char* ExtraData(const dotCmd& command) { return command.fExtraData; }
};

struct KestleCmdContent {
  static int TotalLength(const KestleCmd& command) { return command.fTotalLength; }
  static int Code(const KestleCmd& command) { return command.fCommandCode; }
  static int ExpectedCode(const KestleCmd& command) { return command.fExpectedCode; }
  static int Checksum(const KestleCmd& command) { return command.fChecksum; }
  static const unsigned char* Data(const KestleCmd& command) { return command.fCommandData; }
  static int DataLength(const KestleCmd& command) { return command.fCommandDataLength; }
  static bool Acknowledge(const KestleCmd& command) { return command.fAcknowledge; }
  static bool IsRead(const KestleCmd& command) { return command.fIsRead; }
};

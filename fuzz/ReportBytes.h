// A finished collection as bytes, the input of the report harness. Any bytes are
// one.
//
// Texts are a byte that counts them and their bytes, numbers low byte first. In
// order:
//
//   flags        bit 0: secrets are shown; bit 1: headings have colours
//   server       name and description: texts
//   instances    their number; each: its class' name, the number of its
//                properties, and of each
//   property     its name; its type, a byte: with bit 3 the one of bits 0-2
//                (CimType, modulo 5), without it the one that the class says; its
//                value: a 32-bit number, or a text, which a date-time has too
//
// A name that no class (or property of the class) has is a text whose length
// says which it is; a property that was there before is left out.
#pragma once

#include "cim/StoredInstance.h"

#include <span>
#include <string>
#include <vector>

namespace strake::fuzz {

struct ReportCase {
  bool showSecrets = false;
  bool colours = false;
  std::string serverName;
  std::string serverDescription;
  std::vector<cim::StoredInstance> instances;
};

ReportCase DecodeReport(std::span<const unsigned char> bytes);

// Throws std::length_error for what the form has no room for.
std::string EncodeReport(const ReportCase& reportCase);

}  // namespace strake::fuzz

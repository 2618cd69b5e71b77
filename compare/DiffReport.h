// What changed, written for people and for programs. No secret is shown: of one
// that differs, only that it does.
#pragma once

#include "compare/Comparison.h"
#include "report/Writer.h"

#include <string>

namespace strake::compare {

struct Compared {
  std::string name;  // of the file
  const report::ReadReport* report = nullptr;
};

struct DiffReport {
  Compared before;
  Compared after;
  std::vector<Difference> differences;
  std::string version;  // of Strake
};

// A block a difference, with + for what came, - for what went and ~ for what
// changed; a closing line counts them.
void WriteDiffTable(const DiffReport& diff, const report::Sink& sink);

// One object, {"format":"strake-diff/1","strake":VERSION,"before":{"file","server",
// "collected_at"},"after":{...},"differences":[...]}, a difference a line:
// {"change":"added|removed|changed","class","keys":{...},"properties":{NAME:
// {"before","after"}}}. A property that is not set has no such key; of a secret,
// {"masked":true} stands in place of both.
void WriteDiffJson(const DiffReport& diff, const report::Sink& sink);

}  // namespace strake::compare

// What a reader of the table sees first.
#pragma once

#include "report/ProcessorParts.h"
#include "report/TableText.h"

#include <span>

namespace strake::report {

// Of each service processor: whether it answered, its address and its clock, and
// of its sensors by kind how many there are, the lowest and the highest reading,
// and how many did not answer; of more than a few the sensors in one number. Of
// more than a screen takes those that the gravest findings are about stand here,
// and the others are counted. Then the gravest findings.
void WriteFirstScreen(const Report& report, std::span<const ProcessorPart> parts, TableText& out);

}  // namespace strake::report

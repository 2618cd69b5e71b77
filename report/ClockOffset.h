// How far a service processor's clock is off another one.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace strake::report {

// Of a CIM date-time, in UTC, whole seconds; its offset is in minutes. Empty when
// it is no moment: another form, no calendar day, no time of day.
std::optional<std::chrono::sys_seconds> MomentOf(std::string_view cimText);

// "3 s ahead", "1 h 5 min behind", "979 d 22 h behind", "no difference": the two
// largest units, rounded down.
std::string OffsetForPeople(std::chrono::seconds ahead);

}  // namespace strake::report

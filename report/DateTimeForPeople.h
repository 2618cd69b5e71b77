// A CIM date-time as a person writes it.
#pragma once

#include <string>
#include <string_view>

namespace strake::report {

// Whether the text has the form of a CIM date-time, whatever its numbers are.
bool IsDateTime(std::string_view text);

// "20100615134530.000000-120" gives "2010-06-15 13:45:30 UTC-02:00": the offset
// is in minutes. Microseconds stand only where they are not 0. A text of
// another form is returned as it is.
std::string DateTimeForPeople(std::string_view cimText);

}  // namespace strake::report

#include "report/ValueForPeople.h"

#include "report/DateTimeForPeople.h"
#include "text/TextEscape.h"

namespace strake::report {

std::string ValueForPeople(const cim::Value& value) {
  const auto* const dateTime = std::get_if<cim::DateTime>(&value);
  return text::EscapeForPeople(dateTime == nullptr ? cim::ToText(value)
                                                   : DateTimeForPeople(dateTime->Text()));
}

}  // namespace strake::report

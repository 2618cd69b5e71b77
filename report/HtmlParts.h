// Pieces that several parts of the page are made of.
#pragma once

#include "cim/StoredInstance.h"
#include "report/HtmlOut.h"
#include "report/Sensor.h"

#include <optional>
#include <span>
#include <string_view>

namespace strake::report {

// A shape; the word beside it says the same.
enum class Icon { Yes, No, Info, Warning, Critical };

void AddIcon(HtmlOut& out, Icon icon);
// Shape and word; "ok" is for whoever does not see the shape.
void AddState(HtmlOut& out, SensorState state);
// As a card shows it: with a shape when it is on or off, with the reason when it
// is masked.
void AddValue(HtmlOut& out, const cim::SchemaProperty& property, std::string_view value);
// For whoever does not see that a place is empty.
void AddUnseen(HtmlOut& out, std::string_view said);

// Opens a part that scrolls sideways where it is too wide, by the keyboard too.
// Its name is the only one of a page: "Logins, service processor 1".
void AddWideRegion(HtmlOut& out, std::string_view what, std::string_view whose,
                   std::optional<int> sp);

// The properties by their own names, folded away: of one instance a row each, of
// several a column each. The instances are of one class, and there is one.
void AddCimProperties(HtmlOut& out, std::span<const cim::StoredInstance* const> instances);

// "3 sensors", "1 sensor".
void AddCount(HtmlOut& out, std::size_t count, std::string_view one, std::string_view many);

}  // namespace strake::report

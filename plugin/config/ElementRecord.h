// Element records as tables of fields, and the one walk that reads them all.
#pragma once

#include "plugin/config/ElementCursor.h"
#include "plugin/config/ValueDecoders.h"
#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <span>
#include <string_view>

namespace strake {

class TStrakePluginCallbacks;

enum class FieldForm {
  Plain,        // L data bytes
  String,       // L characters, however small M is
  BoundedText,  // min(L, M) characters
};

// The value bytes of the element that the cursor stands on.
inline ByteView FieldValue(const ElementCursor& element, FieldForm form) {
  switch (form) {
    case FieldForm::String:
      return element.Characters();
    case FieldForm::BoundedText:
      return element.BoundedCharacters();
    case FieldForm::Plain:
      break;
  }
  return element.Data();
}

struct RecordField {
  std::string_view name;
  FieldForm form = FieldForm::Plain;
  ValueDecoder decode = nullptr;
  bool isPublished = true;      // else it is only logged
  std::string_view label = {};  // what the bracketed lines call it; empty: its name
};

struct RecordLayout {
  std::span<const RecordField> fields;
  bool tellsVectorIds = true;     // "[...] Vector ID = "
  bool tellsPlainLength = false;  // "[...] Data length = " for plain elements too
};

// Decodes the record's fields in order: logs each, and sets those that are
// published on the instance.
void PublishRecord(const TStrakePluginCallbacks& callbacks, const RecordLayout& layout,
                   ByteView record, const boost::shared_ptr<NVELKZEV20::ICIMInstance>& instance);

}  // namespace strake

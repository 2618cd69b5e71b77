#include "plugin/config/ElementRecord.h"

#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/frame/base/InstanceBuilder.h"

namespace strake {
namespace {

void LogElement(const TStrakePluginCallbacks& callbacks, const RecordLayout& layout,
                const RecordField& field, const ElementCursor& element) {
  const std::string_view label = field.label.empty() ? field.name : field.label;
  const bool isString = field.form != FieldForm::Plain;
  if (layout.tellsVectorIds) {
    callbacks.LogLevel4("[", label, "] Vector ID = ", element.VectorId(), " ", element.Header());
  }
  if (isString || layout.tellsPlainLength) {
    callbacks.LogLevel4("[", label, "] Data length = ", element.DataLength());
  }
  if (isString) {
    callbacks.LogLevel4("[", label, "] Max length of string = ", element.MaximumLength());
  }
}

}  // namespace

void PublishRecord(const TStrakePluginCallbacks& callbacks, const RecordLayout& layout,
                   ByteView record, const boost::shared_ptr<NVELKZEV20::ICIMInstance>& instance) {
  ElementCursor element(record);
  std::string text;
  const bool isLogging = callbacks.IsLogging();
  for (const RecordField& field : layout.fields) {
    if (isLogging || field.isPublished) {
      field.decode(FieldValue(element, field.form), text);
    }
    if (isLogging) {
      LogElement(callbacks, layout, field, element);
      callbacks.LogLevel3(field.name, " = ", text);
    }
    if (field.isPublished) {
      SetProperty(instance, field.name, text);
    }
    element.Advance();
  }
}

}  // namespace strake

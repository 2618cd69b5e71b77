#include "app/Schema.h"

#include "app/Output.h"

namespace strake::app {

void WriteSchema(const SchemaOptions& options) {
  WriteOutput(options.output,
              [&options](const report::Sink& sink) { sink(options.format->write()); });
}

}  // namespace strake::app

// Loads the simulated SP driver with the service processors that it stands for.
#pragma once

namespace strake::platform {

class BoundaryObserver;
struct SpDescription;

// Every reply sequence starts again at its first reply.
void SetServiceProcessors(const SpDescription& description);
void SetDriverObserver(BoundaryObserver* observer);  // null: nobody watches
// Command objects that are alive.
long LiveDotCommands();
long LiveKestleCommands();

}  // namespace strake::platform

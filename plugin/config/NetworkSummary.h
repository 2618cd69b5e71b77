// The SNMP and DNS summary of one SP.
#pragma once

#include "plugin/config/ServiceProcessor.h"

namespace strake {

class TStrakePluginCallbacks;

void PublishNetworkSummary(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp);

}  // namespace strake

// The hosting system's name, as the collection driver and the sensor export
// both ask for it.
#pragma once

#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <string>

namespace strake {

// Ask the host and log what came of it through `gate`. A host that throws a
// std::exception costs the name: "Unknown SystemName". The driver's guard covers
// the lines on the name too; the export's only the question.
std::string ReadSystemName(const void* gate,
                           const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace);
std::string ReadExportedSystemName(
    const void* gate, const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace);

}  // namespace strake

// The module's load and unload notification.
#pragma once

#include <boost/config.hpp>

namespace strake {

// The only reason that does anything: the module joins a host process.
inline constexpr unsigned int kProcessAttach = 1;

}  // namespace strake

// Creates the plug-in object, which registers itself with the host. Returns 1,
// or 0 when the object cannot be allocated. Whoever loads the module calls this
// with 1 after loading and with 0 before unloading; an ELF loader passes no
// reason code of its own. Nothing is freed on detach: the host owns the object.
extern "C" BOOST_SYMBOL_EXPORT int StrakeModuleEntry(unsigned int reason);

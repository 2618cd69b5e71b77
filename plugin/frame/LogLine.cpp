#include "plugin/frame/LogLine.h"

namespace strake {

std::string LineInTheMaking::text;

}  // namespace strake

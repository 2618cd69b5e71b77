#include "plugin/host/TZEVStatusCode.h"

namespace NVELKZEV20 {

TZEVStatusCode::TZEVStatusCode(EZEVStatusCode code) : fCode(code) {}

}  // namespace NVELKZEV20

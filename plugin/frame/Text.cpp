#include "plugin/frame/Text.h"

namespace strake {

void Lengthen(std::string& text, std::size_t size) { text.resize(size); }

}  // namespace strake

// The slots that the plug-in never calls. Reaching one means that caller and
// host disagree on the slot order, so the answer names the slot that was hit.
#include "plugin/host/ICIM.h"

#include <stdexcept>
#include <string>

namespace NVELKZEV20 {
namespace {

[[noreturn]] void Refuse(const char* interface, int slot) {
  throw std::logic_error(std::string(interface) + " slot " + std::to_string(slot) + " is reserved");
}

}  // namespace

ICIMInstance::~ICIMInstance() = default;
void ICIMInstance::ReservedSlot1() { Refuse("ICIMInstance", 1); }
void ICIMInstance::ReservedSlot3() { Refuse("ICIMInstance", 3); }
void ICIMInstance::ReservedSlot4() { Refuse("ICIMInstance", 4); }
void ICIMInstance::ReservedSlot5() { Refuse("ICIMInstance", 5); }
void ICIMInstance::ReservedSlot6() { Refuse("ICIMInstance", 6); }
void ICIMInstance::ReservedSlot7() { Refuse("ICIMInstance", 7); }
void ICIMInstance::ReservedSlot8() { Refuse("ICIMInstance", 8); }
void ICIMInstance::ReservedSlot9() { Refuse("ICIMInstance", 9); }
void ICIMInstance::ReservedSlot10() { Refuse("ICIMInstance", 10); }

ICIMClass::~ICIMClass() = default;
void ICIMClass::ReservedSlot1() { Refuse("ICIMClass", 1); }
void ICIMClass::ReservedSlot2() { Refuse("ICIMClass", 2); }
void ICIMClass::ReservedSlot3() { Refuse("ICIMClass", 3); }
void ICIMClass::ReservedSlot4() { Refuse("ICIMClass", 4); }
void ICIMClass::ReservedSlot6() { Refuse("ICIMClass", 6); }
void ICIMClass::ReservedSlot7() { Refuse("ICIMClass", 7); }
void ICIMClass::ReservedSlot8() { Refuse("ICIMClass", 8); }
void ICIMClass::ReservedSlot9() { Refuse("ICIMClass", 9); }
void ICIMClass::ReservedSlot10() { Refuse("ICIMClass", 10); }
void ICIMClass::ReservedSlot11() { Refuse("ICIMClass", 11); }
void ICIMClass::ReservedSlot12() { Refuse("ICIMClass", 12); }
void ICIMClass::ReservedSlot13() { Refuse("ICIMClass", 13); }
void ICIMClass::ReservedSlot14() { Refuse("ICIMClass", 14); }
void ICIMClass::ReservedSlot15() { Refuse("ICIMClass", 15); }
void ICIMClass::ReservedSlot16() { Refuse("ICIMClass", 16); }
void ICIMClass::ReservedSlot17() { Refuse("ICIMClass", 17); }
void ICIMClass::ReservedSlot18() { Refuse("ICIMClass", 18); }
void ICIMClass::ReservedSlot19() { Refuse("ICIMClass", 19); }
void ICIMClass::ReservedSlot20() { Refuse("ICIMClass", 20); }
void ICIMClass::ReservedSlot21() { Refuse("ICIMClass", 21); }

ICIMNamespace::~ICIMNamespace() = default;
void ICIMNamespace::ReservedSlot1() { Refuse("ICIMNamespace", 1); }
void ICIMNamespace::ReservedSlot2() { Refuse("ICIMNamespace", 2); }
void ICIMNamespace::ReservedSlot3() { Refuse("ICIMNamespace", 3); }
void ICIMNamespace::ReservedSlot4() { Refuse("ICIMNamespace", 4); }

}  // namespace NVELKZEV20

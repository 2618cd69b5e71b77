#include "os/FileIdentity.h"

namespace strake::os {

bool FileIdentity::IsSameAs(const FileIdentity& other) const {
  if (descriptor && descriptor == other.descriptor) {
    return true;
  }
  const bool isOneFile = device == other.device && node == other.node && newName == other.newName;
  return isOneFile && (isRegular || (!descriptor && !other.descriptor));
}

}  // namespace strake::os

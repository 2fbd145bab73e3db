#include "zelhost/contacts/ContactPicture.h"

#include "Common/Log.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/SafeFileName.h"
#include "zelhost/apiwrapper/client/FileBinary.h"

namespace zelhost {

ZEString SaveContactPicture(const ZEString& name, const ZEString& picture) {
  if (picture.isEmpty()) return ZEString();
  const std::string path = AvatarPath(name.view());
  ZELTO_DEBUG("save avatar to %s\n", path.c_str());
  C_BinToFile(picture, path.c_str(), false);
  return ZEString((kFileLocation + path).c_str());
}

}  // namespace zelhost

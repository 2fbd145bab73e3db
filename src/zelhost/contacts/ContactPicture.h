// Pictures of contacts as files of the television.
#pragma once

#include <string>

#include "apiwrapper/ZEString.h"

namespace zelhost {

// Saves the picture under the contact's name (identity or phone number) and answers its location, "file://"
// and the path, also when the file could not be written; the null string for an empty picture.
ZEString SaveContactPicture(const ZEString& name, const ZEString& picture);

}  // namespace zelhost

// Tables of properties as requests take them.
#pragma once

#include "apiwrapper/ZEIntList.h"

namespace zelhost {

// The numbers of an array, in its order.
template <class Properties>
ZEIntList ListOf(const Properties& properties) {
  ZEIntList list;
  for (const int property : properties) list.append(property);
  return list;
}

}  // namespace zelhost

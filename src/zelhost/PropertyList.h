// Properties as requests take them, and as their answers come.
#pragma once

#include <utility>

#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEIntList.h"
#include "apiwrapper/ZEObject.h"

namespace zelhost {

// The numbers of an array, in its order.
template <class Properties>
ZEIntList ListOf(const Properties& properties) {
  ZEIntList list;
  for (const int property : properties) list.append(property);
  return list;
}

// What was fetched for an object together with others. The proxy keeps no copy: thousands of them, pictures
// among them, would fill the memory.
inline ZEIntDict TakeValues(ZEObject& object) { return std::exchange(object.propCache, ZEIntDict()); }

}  // namespace zelhost

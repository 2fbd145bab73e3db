#include "zelhost/apiwrapper/client/ClientObject.h"

#include <cstdarg>
#include <cstdio>
#include <string>

#include "zelhost/apiwrapper/client/CZelto.h"

namespace client {

CZelto* RootOf(const ZEObject& object) { return dynamic_cast<CZelto*>(object.getRoot()); }

void Trace(const ZEObject& object, unsigned category, const char* format, ...) {
  const CZelto* root = RootOf(object);
  if (root == nullptr || !root->IsTraced(category)) return;
  va_list arguments;
  va_start(arguments, format);
  root->traceList(category, format, arguments);
  va_end(arguments);
}

void TraceChange(ZEObject& object, unsigned category, int property, const ZEString& value) {
  const CZelto* root = RootOf(object);
  if (root == nullptr || !root->IsTraced(category)) return;
  const ZEStringList words = object.getPropDebug(property, value);
  root->trace(category, ".%s:%s = %s", static_cast<const char*>(words[0]), static_cast<const char*>(words[1]),
              static_cast<const char*>(words[2]));
}

}  // namespace client

// What the engine's proxies of the runtime's objects share.
#pragma once

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEString.h"
#include "zelhost/apiwrapper/client/TraceCategories.h"

class CZelto;

namespace client {

// The application's root behind a proxy; null while that root is being destroyed.
CZelto* RootOf(const ZEObject& object);

// A trace line through the object's root; nothing without one.
__attribute__((format(printf, 3, 4))) void Trace(const ZEObject& object, unsigned category,
                                                 const char* format, ...);
// Traces a changed property with its class, name and value; texts are only made when the line is wanted.
void TraceChange(ZEObject& object, unsigned category, int property, const ZEString& value);

}  // namespace client

// The application's subclass of a protocol class: traces its birth, changes and end, and deletes itself when
// the runtime drops the object. Made by the root's factories only.
// Threads: the caller holds the service-host mutex.
template <class Base, unsigned kCategory>
class ClientObject : public Base {
 public:
  ClientObject(int oid, Zelto* root) : Base(oid, root) {
    client::Trace(*this, kCategory | kTraceLifetime, ":new:%d,%p", oid, static_cast<void*>(this));
  }
  ~ClientObject() override {
    client::Trace(*this, kCategory | kTraceLifetime, ":delete:%p", static_cast<void*>(this));
  }

  void OnChange(int property, const ZEString& value) override {
    client::TraceChange(*this, kCategory, property, value);
  }
  void OnDelete() override {
    client::Trace(*this, kCategory, ":OnDelete");
    delete this;
  }
};

// An engine's proxy that can show itself whole.
#pragma once

#include "Common/Log.h"
#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEIntList.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// Threads: the caller holds the service-host mutex.
template <class Base, unsigned kCategory>
class DescribedObject : public ClientObject<Base, kCategory> {
 public:
  using ClientObject<Base, kCategory>::ClientObject;

  // Every property of the class.
  ZEIntList GetPropList() {
    ZEIntList properties;
    for (const PMAP* row = this->getPMap(); row->name != nullptr; ++row) properties.append(row->value);
    return properties;
  }
  // Their values, from the runtime in one request.
  ZEIntDict GetAllProps() { return this->GetProps(GetPropList()); }
  // One line for each: class, property, value.
  void PrintProperties() {
    const ZEIntDict values = GetAllProps();
    for (unsigned i = 0; i < values.size(); ++i) {
      const ZEStringList words = this->getPropDebug(values.keyAt(i), values[i]);
      zelto::Print("%s:%s = %s\n", static_cast<const char*>(words[0]), static_cast<const char*>(words[1]),
                   static_cast<const char*>(words[2]));
    }
  }
};

#pragma once

#include <vector>

#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEString.h"

class CCall;

// The members of the current call with the properties that the widget asks for again and again.
// A member object may be gone at any time: its pointer is compared only, and Forget takes it away before
// another object can come to live in its place.
// Threads: the caller holds the service-host mutex.
class CallMemberCache {
 public:
  // Asks the runtime for the call's members, one request for each member's properties.
  void Rebuild(CCall& call);
  void Clear() { m_entries.clear(); }

  int Count() const { return static_cast<int>(m_entries.size()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }
  // The null string for what is not there.
  ZEString Value(int index, int property) const;

  // The position of the member object; -1 when it is in no entry.
  int IndexOf(const void* member) const;
  // Nothing without that entry.
  void Store(int index, int property, const ZEString& value);
  // In every entry of that object.
  void Update(const void* member, int property, const ZEString& value);
  // The entry stays, as nobody's.
  void Forget(const void* member);

 private:
  struct Entry {
    const void* member;
    ZEIntDict properties;
  };
  std::vector<Entry> m_entries;
};

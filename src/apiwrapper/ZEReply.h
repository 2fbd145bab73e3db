// The results of one request, read as the row of its method says.
#pragma once

#include <cstddef>

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/ZEPtrVector.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringDict.h"
#include "apiwrapper/ZEStringList.h"
#include "apiwrapper/Zelto.h"

// An object list longer than this comes from a broken runtime: what lies beyond is dropped, with one error
// line, before a proxy is made for every entry of it.
constexpr unsigned int kMaxObjectsInReply = 200000;

// The proxy of class T with that id, by the root's get operation of the class: null for id 0 and for an id
// that belongs to another class. For ZEObject itself whatever the registry holds.
template <class T>
ZEObject* zeResolve(Zelto* root, unsigned int oid);
// clang-format off
template <> ZEObject* zeResolve<ZEObject>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Account>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Alert>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Call>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<CallMember>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Chat>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<ChatMember>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<ChatMessage>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Contact>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<ContactGroup>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<ContactSearch>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<PriceQuote>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Search>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Sms>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Transfer>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Video>(Zelto* root, unsigned int oid);
template <> ZEObject* zeResolve<Voicemail>(Zelto* root, unsigned int oid);
// clang-format on

// The proxy in a slot of a list that a request answered; null for an empty slot. T is the class that the
// request names.
template <class T>
T* zeObjectAt(const ZEPtrVector& objects, unsigned int index) {
  return static_cast<T*>(static_cast<ZEObject*>(objects[index]));
}

// A result is named by its place in the row, 0 being the main one. Absent results read as false, 0, -1 for an
// enumerator, the null string, an empty list, no object.
// Threads: as the root object.
class ZEReply {
 public:
  using Resolver = ZEObject* (*)(Zelto*, unsigned int);

  ZEReply(const ZEMethod& method, Zelto* root, const ZEStringDict& values);

  ZEString text(std::size_t result = 0) const;
  bool flag(std::size_t result = 0) const;
  int number(std::size_t result = 0) const;
  unsigned int unsignedNumber(std::size_t result = 0) const;
  ZEStringList texts(std::size_t result = 0) const;
  template <class Enum>
  Enum enumerator(std::size_t result = 0) const {
    return static_cast<Enum>(tokenValue(result));
  }
  template <class T>
  T* object(std::size_t result = 0) const {
    return static_cast<T*>(zeResolve<T>(m_root, unsignedNumber(result)));
  }
  // One slot (ZEObject*) for each entry of the list, null where there is no such object.
  template <class T>
  ZEPtrVector objects(std::size_t result = 0) const {
    return objects(result, &zeResolve<T>);
  }
  ZEPtrVector objects(std::size_t result, Resolver resolve) const;
  // The whole reply, for those that are a dictionary of their own.
  const ZEStringDict& values() const { return m_values; }

 private:
  int tokenValue(std::size_t result) const;

  const ZEMethod& m_method;
  Zelto* const m_root;
  const ZEStringDict m_values;
};

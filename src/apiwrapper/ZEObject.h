// A proxy of an object that lives in the runtime: its class's tables, its id, and the requests every class
// has. The concrete classes add their methods, the application adds what happens on events.
#pragma once

#include <cstdint>

#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEIntList.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringDict.h"
#include "apiwrapper/ZEStringList.h"

class Zelto;

// An id with one or both of these bits names a property that an application defined for itself; the other
// 30 bits are its number.
constexpr std::uint32_t kExtendedPropertyBit31 = 0x80000000;
constexpr std::uint32_t kExtendedPropertyBit30 = 0x40000000;
constexpr std::uint32_t kExtendedPropertyNumber = 0x3FFFFFFF;

// Made by the root's factories only. The root's registry owns a proxy until somebody deletes it, which any
// event handler may do, its own included.
// Threads: as the root object.
class ZEObject {
 public:
  // `oid` 0 marks an object that is no longer valid. `root` outlives the proxy.
  ZEObject(unsigned int oid, Zelto* root);
  ZEObject(const ZEObject&) = delete;
  ZEObject& operator=(const ZEObject&) = delete;

  // Leaves the registry.
  virtual ~ZEObject();
  virtual ZEString getNamespace() = 0;  // the class's token on the wire
  virtual const PMAP* getPMap() = 0;    // property token to property id
  virtual const EMAP* getEMap() = 0;    // the tables of the enumerated properties
  virtual void OnChange(int property, const ZEString& value);
  virtual void OnDelete();

  // The object id. For an object that is no longer valid 0, after one error line.
  unsigned int getOID();

  // The text of a request: class, method, the arguments and the object's id. `escape` guards commas, quotes
  // and backslashes of the values.
  ZEString createRequest(const ZEString& method);
  ZEString createRequest(const ZEString& method, const ZEStringDict& arguments, bool escape);
  // One-way: no answer is read.
  void send(const ZEString& method);
  void send(const ZEString& method, const ZEStringDict& arguments, bool escape);
  // The results, empty when the runtime answered with an error or the stream is gone.
  ZEStringDict sendWithReply(const ZEString& method);
  ZEStringDict sendWithReply(const ZEString& method, const ZEStringDict& arguments, bool escape);

  // Asks the runtime; the property cache plays no part. Enumerated values are the enumerators' numbers in
  // decimal, "-1" for an unknown one. No ids: no request. A failure reads as absent: empty, the null string.
  ZEIntDict GetProps(const ZEIntList& ids);
  ZEString GetProp(int id);

  // Sets properties that the application defined for itself, one-way; other ids are ignored.
  void SetExtProps(const ZEIntDict& values);
  void SetExtProp(int id, const ZEString& value);

  // The names of properties on the wire, separated by commas; an unknown id has an empty name.
  ZEString makeProps(const ZEIntList& ids);
  // The values of a reply by property id; all unknown names share the id -1.
  ZEIntDict parseProps(const ZEStringDict& reply);
  // The reverse, for requests that set properties: names and enumerators as the wire wants them. Ids
  // without a name are left out.
  ZEStringDict wireProps(const ZEIntDict& values);
  // A value as the engine holds it: an enumerated property's token becomes its number in decimal.
  ZEString parseValue(int property, const ZEString& token);
  // For people: class token, property token, value (an enumerated one as its token).
  ZEStringList getPropDebug(int property, const ZEString& value);

  Zelto* getRoot() const { return m_root; }

  // Filled, as a whole, by Zelto::GetMultipleObjectsProps; empty until then.
  ZEIntDict propCache;

 private:
  friend class Zelto;  // keeps the registry's chains

  Zelto* const m_root;
  ZEObject* m_nextInBucket = nullptr;
  const unsigned int m_oid;
};

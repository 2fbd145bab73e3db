// One request: a row of the method tables and the values of its arguments, ready to be sent.
#pragma once

#include <type_traits>

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/ZEPtrVector.h"
#include "apiwrapper/ZEReply.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringDict.h"
#include "apiwrapper/ZEStringList.h"

class Zelto;

// Built and sent within one method of a proxy or of the root. What cannot be sent is sent as nothing: a null
// text and an enumerator without a token as an empty value, a null proxy as object 0.
// Threads: as the root object.
class ZERequest {
 public:
  // The values stand in the row's order, one for each of its arguments: ZEString (binary ones keep their
  // form), bool, int, unsigned int, an enumerator, a pointer to a proxy, ZEStringList, or ZEPtrVector of
  // ZEObject*.
  template <class... Values>
  explicit ZERequest(const ZEMethod& method, const Values&... values) : m_method(method) {
    static_assert(sizeof...(Values) <= kMaxMethodArguments, "no method takes that many arguments");
    [[maybe_unused]] const ZEField* field = method.arguments;
    (add(*field++, values), ...);
  }

  // For requests whose keys are no row's: property names and values.
  static ZERequest WithPairs(const ZEMethod& method, const ZEStringDict& pairs);

  // The search request carries each term as a further pair under one key, after the arguments.
  ZERequest& withTerms(const ZEStringList& terms);

  // One-way.
  void send(ZEObject* object) const;
  void send(Zelto* root) const;
  // Waits for the results.
  ZEReply ask(ZEObject* object) const;
  ZEReply ask(Zelto* root) const;

 private:
  void add(const ZEField& field, const ZEString& value);
  void add(const ZEField& field, const ZEStringList& values);
  void add(const ZEField& field, const ZEPtrVector& objects);
  void add(const ZEField& field, bool value);
  void add(const ZEField& field, unsigned int value);
  void add(const ZEField& field, int value);
  void addObject(const ZEField& field, ZEObject* object);
  void add(const ZEField& field, const char* value) = delete;  // would travel as a flag

  template <class Object>
  void add(const ZEField& field, Object* object) {
    addObject(field, object);
  }
  template <class Enum, std::enable_if_t<std::is_enum_v<Enum>, int> = 0>
  void add(const ZEField& field, Enum value) {
    add(field, static_cast<int>(value));
  }

  ZEString rootText() const;

  const ZEMethod& m_method;
  ZEStringDict m_arguments;
  ZEString m_terms;
};

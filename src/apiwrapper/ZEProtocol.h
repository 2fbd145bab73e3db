// The shapes of the protocol's tables. The tables themselves are data in src/apiwrapper/tables/; the
// engine, the simulated runtime and the decoder all read the same rows, and no token stands elsewhere.
#pragma once

#include <cstdint>

// A name on the wire and its number in the engine. A table ends with a null name; the first matching
// entry counts.
struct PMAP {
  const char* name;
  std::int32_t value;
};

// An enumerated property and the table of its values. A table ends with property 0.
struct EMAP {
  std::int32_t property;
  const PMAP* table;
};

// A class of the runtime's objects.
struct ZEClass {
  const char* name;        // for people: "Account"
  const char* token;       // on the wire: "2046"
  int objectType;          // number in ZELTO_OBJECTTYPE_MAP, 0 for none
  const PMAP* properties;  // null for none
  const EMAP* enums;       // null for none
};

enum class ZECall : std::uint8_t {
  Reply,   // blocking, the reply is read
  OneWay,  // nothing comes back
  Either,  // one of the two, chosen by the caller at each call
};

// An argument: its key on the wire, its name for people, and the table of its value when it is an
// enumerator's token.
struct ZEArgument {
  const char* key;
  const char* name;
  const PMAP* table;
};

constexpr int kMaxMethodArguments = 7;
constexpr int kMaxMethodResults = 4;

// A method of a class, or one of the root's service-wide requests.
struct ZEMethod {
  const ZEClass* owner;  // class whose token goes first on the wire
  const char* name;      // for people: "Logout"
  const char* token;     // on the wire: "1911"
  ZECall call;
  bool onObject;                               // carries the object id under ZEKey::ObjectId
  ZEArgument arguments[kMaxMethodArguments];   // in the order of the C++ parameters, ends with a null key
  const char* results[kMaxMethodResults];      // keys read from the reply, ends with null
};

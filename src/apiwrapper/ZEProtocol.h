// The shapes of the protocol's tables and the look-ups over them. The tables themselves are data in
// src/apiwrapper/tables/; the engine, the simulated runtime and the decoder all read the same rows, and no
// token stands elsewhere.
#pragma once

#include <cstddef>
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

// A class of the runtime's objects, or a class token that only names a group of service-wide requests.
struct ZEClass {
  const char* name;        // for people: "Account"
  const char* token;       // on the wire: "2046"
  int objectType;          // number in ZELTO_OBJECTTYPE_MAP, 0 for none
  const PMAP* properties;  // null for none
  const EMAP* enums;       // null for none
};

// How a value is written on the wire.
enum class ZEKind : std::uint8_t {
  Text,
  Flag,     // "1" or "0"
  Number,   // decimal
  Token,    // an enumerator's token, out of the field's table
  Object,   // decimal object id, 0 for none
  Objects,  // decimal object ids with commas between them
  Texts,    // texts, each escaped, with commas between them
  Binary,   // escaped bytes
};

// A value of a request, reply or event: its key on the wire, how it is written, and the table of a token.
struct ZEField {
  const char* key;
  ZEKind kind;
  const PMAP* table;
};

enum class ZECall : std::uint8_t {
  Reply,   // blocking, the reply is read
  OneWay,  // nothing comes back
  Either,  // one of the two, chosen by the caller at each call
};

enum class ZETarget : std::uint8_t {
  Object,   // on one object, whose id travels under ZEKey::ObjectId
  Service,  // on the service as a whole
};

constexpr std::size_t kMaxMethodArguments = 7;
constexpr std::size_t kMaxMethodResults = 4;
constexpr std::size_t kMaxEventFields = 3;

// A method of a class, or one of the root's service-wide requests. Both lists end with a null key unless
// they are full. A reply that is a dictionary of its own (country names) has no results listed.
struct ZEMethod {
  const ZEClass* owner;  // class whose token goes first on the wire
  const char* name;      // for people: "Logout"
  const char* token;     // on the wire: "1911"
  ZETarget target;
  ZECall call;
  ZEField arguments[kMaxMethodArguments];  // in the order of the C++ parameters
  ZEField results[kMaxMethodResults];      // keys read from the reply
};

// An event that the runtime raises. Its token stands in ZELTO_CALLBACK_MAP.
struct ZEEvent {
  int number;
  const char* name;  // for people: "NewCall"
  ZEField fields[kMaxEventFields];
};

// Look-ups over the tables. Every one answers null when nothing matches, and takes null for a text that
// matches nothing. What they answer is constant data that lives as long as the program.
// Threads: any.
struct ZEProtocol {
  static const ZEClass* ClassByToken(const char* token);
  static const ZEClass* ClassByType(int objectType);
  static const ZEClass* ClassByName(const char* name);

  // A method that every object class has (GetProps and its like) is found under any class. Setting the
  // targets of an Sms and marking it seen share one token; whether the sender waits for a reply tells them
  // apart.
  static const ZEMethod* MethodByToken(const ZEClass* owner, const char* token, bool waits = true);
  static const ZEMethod* MethodByName(const ZEClass* owner, const char* name);

  static const ZEEvent* EventByNumber(int number);
  static const ZEEvent* EventByToken(const char* token);

  // Linear look-ups in one table: the first entry counts.
  static const char* TokenOf(const PMAP* table, int value);
  static int ValueOf(const PMAP* table, const char* token);  // -1 when absent
  static const PMAP* EnumOf(const EMAP* table, int property);

  // The name for people of a wire key: "password". Null for a key that is no key of a table.
  static const char* KeyName(const char* key);
};

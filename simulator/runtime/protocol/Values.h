// Property values between their form in the world and their form on the wire.
#pragma once

#include <string_view>

#include "apiwrapper/ZEProtocol.h"

namespace simulator {

class PairWriter;
struct Pair;
struct Value;

// Writes a property's value under a key: enumerators as tokens, binary data marked as such.
void WriteProperty(PairWriter& writer, const char* key, const ZEClass& type, int property,
                   const Value& value);

// The value of a property as the engine sent it. Binary data come without a mark: only the property tells.
Value ReadProperty(const ZEClass& type, int property, const Pair& pair);

// The property with that token, 0 for none.
int PropertyByToken(const ZEClass& type, std::string_view token);

// Whether a property holds binary data (pictures).
bool IsBinaryProperty(const ZEClass& type, int property);

}  // namespace simulator

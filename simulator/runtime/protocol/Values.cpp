#include "simulator/runtime/protocol/Values.h"

#include <cstring>
#include <string>

#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/world/World.h"

namespace simulator {
namespace {

struct BinaryProperty {
  const char* type;
  int property;
};

// clang-format off
constexpr BinaryProperty kBinaryProperties[] = {
    {"Account", 15},  // own picture
    {"Contact", 32},  // a contact's picture
};
// clang-format on

const PMAP* EnumTable(const ZEClass& type, int property) {
  return type.enums == nullptr ? nullptr : ZEProtocol::EnumOf(type.enums, property);
}

}  // namespace

void WriteProperty(PairWriter& writer, const char* key, const ZEClass& type, int property,
                   const Value& value) {
  if (value.binary) {
    writer.Binary(key, value.text);
    return;
  }
  const PMAP* table = EnumTable(type, property);
  if (table == nullptr) {
    writer.Text(key, value.text);
    return;
  }
  const char* token = ZEProtocol::TokenOf(table, ToInt(value.text));
  writer.Text(key, token == nullptr ? "" : token);
}

Value ReadProperty(const ZEClass& type, int property, const Pair& pair) {
  if (IsBinaryProperty(type, property)) return Value{std::string(pair.raw), true};
  std::string text = Unescape(pair.raw);
  const PMAP* table = EnumTable(type, property);
  if (table != nullptr) text = std::to_string(ZEProtocol::ValueOf(table, text.c_str()));
  return Value{std::move(text), false};
}

int PropertyByToken(const ZEClass& type, std::string_view token) {
  if (type.properties == nullptr) return 0;
  for (const PMAP* row = type.properties; row->name != nullptr; ++row) {
    if (token == row->name) return row->value;
  }
  return 0;
}

bool IsBinaryProperty(const ZEClass& type, int property) {
  for (const BinaryProperty& row : kBinaryProperties) {
    if (row.property == property && std::strcmp(row.type, type.name) == 0) return true;
  }
  return false;
}

}  // namespace simulator

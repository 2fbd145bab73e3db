#include "apiwrapper/ZEProtocol.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>
#include <vector>

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/Events.h"
#include "apiwrapper/tables/RootMethods.h"

namespace {

bool same(const char* a, const char* b) { return a != nullptr && b != nullptr && std::strcmp(a, b) == 0; }

template <class Matches>
const ZEClass* findClass(Matches matches) {
  const auto* found = std::find_if(std::begin(ALL_CLASSES), std::end(ALL_CLASSES),
                                   [&](const ZEClass* row) { return matches(*row); });
  return found == std::end(ALL_CLASSES) ? nullptr : *found;
}

// All methods in order of their tokens, then of their owners, so that the simulated runtime finds one among
// the 250 in a few steps.
using MethodIndex = std::vector<const ZEMethod*>;

bool precedes(const ZEMethod* row, std::string_view token, const ZEClass* owner) {
  const int order = std::string_view(row->token).compare(token);
  return order != 0 ? order < 0 : std::less<const ZEClass*>()(row->owner, owner);
}

const MethodIndex& methodIndex() {
  static const MethodIndex index = [] {
    MethodIndex rows(std::begin(CLASS_METHODS), std::end(CLASS_METHODS));
    rows.insert(rows.end(), std::begin(ROOT_METHODS), std::end(ROOT_METHODS));
    std::stable_sort(rows.begin(), rows.end(),
                     [](const ZEMethod* a, const ZEMethod* b) { return precedes(a, b->token, b->owner); });
    return rows;
  }();
  return index;
}

const ZEMethod* findMethod(const ZEClass* owner, const char* token, bool waits) {
  const MethodIndex& index = methodIndex();
  auto row = std::lower_bound(
      index.begin(), index.end(), owner,
      [&](const ZEMethod* method, const ZEClass* wanted) { return precedes(method, token, wanted); });
  const ZEMethod* found = nullptr;
  for (; row != index.end() && (*row)->owner == owner && same((*row)->token, token); ++row) {
    if (found == nullptr || (*row)->call == (waits ? ZECall::Reply : ZECall::OneWay)) found = *row;
  }
  return found;
}

}  // namespace

const ZEClass* ZEProtocol::ClassByToken(const char* token) {
  return findClass([&](const ZEClass& row) { return same(row.token, token); });
}

const ZEClass* ZEProtocol::ClassByType(int objectType) {
  return findClass([&](const ZEClass& row) { return objectType != 0 && row.objectType == objectType; });
}

const ZEClass* ZEProtocol::ClassByName(const char* name) {
  return findClass([&](const ZEClass& row) { return same(row.name, name); });
}

const ZEMethod* ZEProtocol::MethodByToken(const ZEClass* owner, const char* token, bool waits) {
  if (owner == nullptr || token == nullptr) return nullptr;
  const ZEMethod* own = findMethod(owner, token, waits);
  return own != nullptr ? own : findMethod(nullptr, token, waits);
}

const ZEMethod* ZEProtocol::MethodByName(const ZEClass* owner, const char* name) {
  const MethodIndex& index = methodIndex();
  const auto found = std::find_if(index.begin(), index.end(), [&](const ZEMethod* row) {
    return (row->owner == owner || row->owner == nullptr) && same(row->name, name);
  });
  return found == index.end() ? nullptr : *found;
}

const ZEEvent* ZEProtocol::EventByNumber(int number) {
  const auto* found = std::find_if(std::begin(ALL_EVENTS), std::end(ALL_EVENTS),
                                   [&](const ZEEvent& row) { return row.number == number; });
  return found == std::end(ALL_EVENTS) ? nullptr : found;
}

const ZEEvent* ZEProtocol::EventByToken(const char* token) {
  return EventByNumber(ValueOf(ZELTO_CALLBACK_MAP, token));
}

const char* ZEProtocol::TokenOf(const PMAP* table, int value) {
  for (; table != nullptr && table->name != nullptr; ++table) {
    if (table->value == value) return table->name;
  }
  return nullptr;
}

int ZEProtocol::ValueOf(const PMAP* table, const char* token) {
  for (; table != nullptr && table->name != nullptr; ++table) {
    if (same(table->name, token)) return table->value;
  }
  return -1;
}

const PMAP* ZEProtocol::EnumOf(const EMAP* table, int property) {
  for (; table != nullptr && table->property != 0; ++table) {
    if (table->property == property) return table->table;
  }
  return nullptr;
}

const char* ZEProtocol::KeyName(const char* key) {
  const auto* found = std::find_if(std::begin(KEY_NAMES), std::end(KEY_NAMES),
                                   [&](const ZEKeyName& row) { return same(row.key, key); });
  return found == std::end(KEY_NAMES) ? nullptr : found->name;
}

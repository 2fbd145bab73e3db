// The root's work on properties: names and ids, many objects at once, and what nobody wants to hear of.
#include <vector>

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/Zelto.h"
#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/Keys.h"

namespace {

std::vector<ZEObject*> presentObjects(const ZEPtrVector& objects) {
  std::vector<ZEObject*> present;
  present.reserve(objects.size());
  for (unsigned int i = 0; i < objects.size(); ++i) {
    if (objects[i] != nullptr) present.push_back(static_cast<ZEObject*>(objects[i]));
  }
  return present;
}

ZEString joinIds(const std::vector<ZEObject*>& objects) {
  ZEStringList ids;
  for (ZEObject* object : objects) ids.append(ZEString::from(object->getOID(), 10));
  return ids.join(",", false);
}

}  // namespace

ZEIntDict Zelto::mapDict(const ZEStringDict& values, const PMAP* table) {
  ZEIntDict mapped;
  for (unsigned int i = 0; i < values.size(); ++i)
    mapped.insert(ZEPMap(table).map(values.keyAt(i)), values[i]);
  return mapped;
}

ZEStringDict Zelto::mapDict(const ZEIntDict& values, const PMAP* table) {
  ZEStringDict mapped;  // drops null keys
  for (unsigned int i = 0; i < values.size(); ++i)
    mapped.insert(ZEPMap(table).map(values.keyAt(i)), values[i]);
  return mapped;
}

bool Zelto::GetMultipleObjectsProps(const ZEPtrVector& objects, const ZEIntList& ids) {
  const std::vector<ZEObject*> present = presentObjects(objects);
  if (present.empty()) return false;
  ZEStringDict arguments;
  arguments.insert(ZEKey::Objects, joinIds(present));
  arguments.insert(ZEKey::Properties, present.front()->makeProps(ids));
  ZEString request("a ");
  request += present.front()->getNamespace();
  request += " ";
  request += ObjectMethod::GetMultipleObjectsProps.token;
  request += " ";
  request += arguments.format(false);

  // One line for every object; a missing one leaves its object's cache empty.
  ZEStringList lines = ZEStringList::split(sendAndBlock(request), '\n', '\\');
  for (ZEObject* object : present) {
    object->propCache = object->parseProps(ZEStringDict::parse(lines.peek().trim("b ")));
  }
  return true;
}

void Zelto::FilterOutProps(OBJECTTYPE type, const ZEIntList& ids) {
  const ZEClass* described = ZEProtocol::ClassByType(type);
  // Only the classes of proxies have an enumeration table.
  if (described == nullptr || described->enums == nullptr) return;
  ZEString text("a ");
  text += described->token;
  text += " ";
  text += ObjectMethod::FilterOutProps.token;
  if (!ids.isEmpty()) {
    ZEString names;
    for (unsigned int i = 0; i < ids.size(); ++i) {
      if (i != 0) names += ",";
      names += ZEPMap(described->properties).map(ids[i]);
    }
    ZEStringDict arguments;
    arguments.insert(ZEKey::Properties, names);
    text += " ";
    text += arguments.format(false);
  }
  send(text);
}

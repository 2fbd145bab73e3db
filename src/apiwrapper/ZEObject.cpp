#include "apiwrapper/ZEObject.h"

#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/Zelto.h"
#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/Words.h"

namespace {

bool isExtended(int id) {
  return (static_cast<std::uint32_t>(id) & (kExtendedPropertyBit31 | kExtendedPropertyBit30)) != 0;
}

ZEString extendedName(int id) {
  const std::uint32_t bits = static_cast<std::uint32_t>(id);
  const bool bit31 = (bits & kExtendedPropertyBit31) != 0;
  const bool bit30 = (bits & kExtendedPropertyBit30) != 0;
  ZEString name(ZEWord::ExtendedPrefix);
  name += ZEString::from(bits & kExtendedPropertyNumber, 10);
  name += bit31 ? (bit30 ? ZEWord::ExtendedBothBits : ZEWord::ExtendedBit31) : ZEWord::ExtendedBit30;
  return name;
}

ZEString propertyName(int id, const PMAP* table) {
  return isExtended(id) ? extendedName(id) : ZEPMap(table).map(id);
}

// The table of an enumerated property's values, or null.
const PMAP* enumeratorsOf(int property, const EMAP* enums) {
  for (; enums != nullptr && enums->property != 0; ++enums) {
    if (enums->property == property) return enums->table;
  }
  return nullptr;
}

}  // namespace

ZEObject::ZEObject(unsigned int oid, Zelto* root) : m_root(root), m_oid(oid) {}

ZEObject::~ZEObject() {
  const unsigned int oid = getOID();
  // The id may meanwhile belong to another proxy.
  if (m_root->getObject(oid) == this) m_root->removeObject(oid);
}

void ZEObject::OnChange(int, const ZEString&) {}

void ZEObject::OnDelete() {}

unsigned int ZEObject::getOID() {
  if (m_oid == 0) Zelto::log("ZELTO ERROR - Calling a function on a deleted object");
  return m_oid;
}

ZEString ZEObject::createRequest(const ZEString& method) {
  return createRequest(method, ZEStringDict(), false);
}

ZEString ZEObject::createRequest(const ZEString& method, const ZEStringDict& arguments, bool escape) {
  ZEStringDict pairs(arguments);
  pairs.insert(ZEKey::ObjectId, ZEString::from(getOID(), 10));
  ZEString request("a ");
  request += getNamespace();
  request += " ";
  request += method;
  request += " ";
  request += pairs.format(escape);
  return request;
}

void ZEObject::send(const ZEString& method) { m_root->send(createRequest(method)); }

void ZEObject::send(const ZEString& method, const ZEStringDict& arguments, bool escape) {
  m_root->send(createRequest(method, arguments, escape));
}

ZEStringDict ZEObject::sendWithReply(const ZEString& method) {
  return sendWithReply(method, ZEStringDict(), false);
}

ZEStringDict ZEObject::sendWithReply(const ZEString& method, const ZEStringDict& arguments, bool escape) {
  return ZEStringDict::parse(m_root->sendAndBlock(createRequest(method, arguments, escape)).trim("b "));
}

ZEIntDict ZEObject::GetProps(const ZEIntList& ids) {
  if (ids.size() == 0) return ZEIntDict();
  ZEStringDict arguments;
  arguments.insert(ZEKey::Properties, makeProps(ids));
  return parseProps(sendWithReply(ObjectMethod::GetProps.token, arguments, false));
}

ZEString ZEObject::GetProp(int id) {
  ZEIntList ids;
  ids.append(id);
  return GetProps(ids)[0];
}

void ZEObject::SetExtProps(const ZEIntDict& values) {
  if (values.size() == 0) return;
  ZEStringDict pairs;
  for (unsigned int i = 0; i < values.size(); ++i) {
    const int id = values.keyAt(i);
    if (isExtended(id)) pairs.insert(extendedName(id), values[i]);
  }
  send(ObjectMethod::SetExtProps.token, pairs, true);
}

void ZEObject::SetExtProp(int id, const ZEString& value) {
  ZEIntDict values;
  values.insert(id, value);
  SetExtProps(values);
}

ZEString ZEObject::makeProps(const ZEIntList& ids) {
  ZEString names;
  for (unsigned int i = 0; i < ids.size(); ++i) {
    if (i != 0) names += ",";
    names += propertyName(ids[i], getPMap());
  }
  return names;
}

ZEIntDict ZEObject::parseProps(const ZEStringDict& reply) {
  ZEIntDict values = Zelto::mapDict(reply, getPMap());
  for (const EMAP* row = getEMap(); row != nullptr && row->property != 0; ++row) {
    const int value = ZEPMap(row->table).map(values.find(row->property));
    values.insert(row->property, ZEString::from(value), true);
  }
  return values;
}

ZEStringDict ZEObject::wireProps(const ZEIntDict& values) {
  ZEIntDict wire(values);
  for (const EMAP* row = getEMap(); row != nullptr && row->property != 0; ++row) {
    wire.insert(row->property, ZEPMap(row->table).map(wire.find(row->property).toInt()), true);
  }
  return Zelto::mapDict(wire, getPMap());
}

ZEString ZEObject::parseValue(int property, const ZEString& token) {
  const PMAP* table = enumeratorsOf(property, getEMap());
  return table == nullptr ? token : ZEString::from(ZEPMap(table).map(token));
}

ZEStringList ZEObject::getPropDebug(int property, const ZEString& value) {
  const PMAP* table = enumeratorsOf(property, getEMap());
  const ZEString parts[] = {getNamespace(), propertyName(property, getPMap()),
                            table == nullptr ? value : ZEPMap(table).map(value.toInt())};
  ZEStringList list;
  for (const ZEString& part : parts) {
    // The list drops null strings, and readers count on three parts.
    list.append(part.equals(ZEString()) ? ZEString("") : part);
  }
  return list;
}

#include "simulator/runtime/world/World.h"

#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/protocol/Values.h"

namespace simulator {
namespace {

const Value kNoValue;

}  // namespace

const Value& Object::Get(int property) const {
  const auto found = properties.find(property);
  return found == properties.end() ? kNoValue : found->second;
}

int Object::GetInt(int property) const { return ToInt(Get(property).text); }

Object& World::Create(const ZEClass& type) {
  const unsigned id = ++m_lastId;
  Object& object = m_objects[id];
  object.id = id;
  object.type = &type;
  return object;
}

Object* World::Find(unsigned id) {
  const auto found = m_objects.find(id);
  return found == m_objects.end() ? nullptr : &found->second;
}

void World::Set(Object& object, int property, Value value) {
  Value& place = object.properties[property];
  if (place == value) return;
  place = std::move(value);
  Report(object, property);
}

void World::Report(const Object& object, int property) {
  const auto filter = m_filters.find(object.type);
  if (filter != m_filters.end() && filter->second.count(property) != 0) return;
  const char* token = ZEProtocol::TokenOf(object.type->properties, property);
  if (token == nullptr) return;
  std::string pairs;
  PairWriter writer(pairs);
  writer.Text(ZEKey::Property, token);
  WriteProperty(writer, ZEKey::Value, *object.type, property, object.Get(property));
  Event(object, ZEEventNumber::PropertyChange, pairs);
}

void World::Filter(const ZEClass& type, std::set<int> properties) {
  m_filters[&type] = std::move(properties);
}

void World::Event(const Object& object, int event, std::string_view pairs) {
  std::string text;
  PairWriter(text).Number(ZEKey::ObjectId, object.id);
  if (!pairs.empty()) text.append(" ").append(pairs);
  ClassEvent(*object.type, event, text);
}

void World::ClassEvent(const ZEClass& type, int event, std::string_view pairs) {
  const char* token = ZEProtocol::TokenOf(ZELTO_CALLBACK_MAP, event);
  if (token == nullptr) return;
  // The first word of an event is free as long as it is no reply's.
  std::string text = "e ";
  text.append(type.token).append(" ").append(token);
  if (!pairs.empty()) text.append(" ").append(pairs);
  m_outbox.Send(text);
}

void World::Delete(unsigned id) {
  const auto found = m_objects.find(id);
  if (found == m_objects.end()) return;
  Event(found->second, ZEEventNumber::ObjectDelete);
  m_objects.erase(found);
}

void World::Clear() {
  m_objects.clear();
  m_filters.clear();
}

}  // namespace simulator

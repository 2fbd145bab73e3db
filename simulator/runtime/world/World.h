// The runtime's objects: accounts, contacts, groups, searches and whatever comes later, all of one make.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "apiwrapper/ZEProtocol.h"

namespace simulator {

// A property's value. Enumerated values are kept as the decimal text of the enumerator, binary ones in
// their escaped form, in which they also travel.
struct Value {
  std::string text;
  bool binary = false;

  bool operator==(const Value& other) const { return text == other.text && binary == other.binary; }
};

struct Object {
  unsigned id = 0;
  const ZEClass* type = nullptr;
  std::map<int, Value> properties;

  // The property's value; an empty one when it was never set.
  const Value& Get(int property) const;
  int GetInt(int property) const;
  const std::string& GetText(int property) const { return Get(property).text; }
};

// Where the messages to the engine go.
class Outbox {
 public:
  virtual ~Outbox() = default;
  // Takes one message's text; never fails, also when nobody is connected.
  virtual void Send(std::string_view text) = 0;
};

inline constexpr std::size_t kMaxObjects = 100000;

// Owns all objects and reports every change of them to the engine, except changes of properties that the
// engine asked not to hear of.
// Threads: none of its own.
class World {
 public:
  explicit World(Outbox& outbox) : m_outbox(outbox) {}
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  // The object lives until Delete() or Clear(); its id is never used again.
  Object& Create(const ZEClass& type);
  // There can be more objects than any engine needs: whoever wants more asks for the sake of asking.
  bool HasRoomFor(int more) const { return m_objects.size() + static_cast<std::size_t>(more) <= kMaxObjects; }
  bool IsFull() const { return !HasRoomFor(1); }
  // Null for an unknown id.
  Object* Find(unsigned id);
  const std::unordered_map<unsigned, Object>& Objects() const { return m_objects; }

  // Sets a property; tells the engine when that changed it.
  void Set(Object& object, int property, Value value);
  void Set(Object& object, int property, std::string_view text) {
    Set(object, property, Value{std::string(text)});
  }
  void SetInt(Object& object, int property, long long value) { Set(object, property, std::to_string(value)); }
  // Sets a property without a word: for objects that the engine has not met yet.
  void Put(Object& object, int property, Value value) { object.properties[property] = std::move(value); }
  void Put(Object& object, int property, std::string_view text) {
    Put(object, property, Value{std::string(text)});
  }
  void PutInt(Object& object, int property, long long value) { Put(object, property, std::to_string(value)); }
  // Tells the engine of the property's value once more.
  void Report(const Object& object, int property);

  // From now on changes of exactly these properties of the class are not reported.
  void Filter(const ZEClass& type, std::set<int> properties);

  // Sends an event of the object with further pairs as they stand on the wire (or none).
  void Event(const Object& object, int event, std::string_view pairs = {});
  // Sends an event of a class that needs no object.
  void ClassEvent(const ZEClass& type, int event, std::string_view pairs);

  // Removes an object, the engine being told.
  void Delete(unsigned id);
  // Removes one without a word: of those that go with another by the thousand.
  void Remove(unsigned id) { m_objects.erase(id); }
  // Forgets all objects and filters without a word, as when a new engine connects.
  void Clear();

 private:
  Outbox& m_outbox;
  std::unordered_map<unsigned, Object> m_objects;
  std::map<const ZEClass*, std::set<int>> m_filters;
  unsigned m_lastId = 0;
};

}  // namespace simulator

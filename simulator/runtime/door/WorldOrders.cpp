// Orders about the runtime's world.
#include <algorithm>
#include <functional>
#include <vector>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/Wire.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/protocol/Message.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

// The object of that class before which so many newer ones were made; null when there is none.
Object* ObjectBefore(World& world, const std::string& className, std::size_t newer) {
  std::vector<unsigned> ids;
  for (const auto& [id, object] : world.Objects()) {
    if (className == object.type->name) ids.push_back(id);
  }
  if (newer >= ids.size()) return nullptr;
  std::sort(ids.begin(), ids.end(), std::greater<>());
  return world.Find(ids[newer]);
}

// "account" is the account whose sign-in is under way or complete, a class's name its newest object, with
// "~1" behind it the one before that, anything else an object's id.
Object& ObjectOf(Controls& controls, const json& order) {
  Session& session = SessionOf(controls);
  const std::string name = TextOf(order, "object");
  const std::size_t mark = std::min(name.find('~'), name.size());
  const std::string className = name.substr(0, mark);
  Object* object = nullptr;
  if (name == "account") {
    object = session.signIn.Current();
  } else if (ZEProtocol::ClassByName(className.c_str()) != nullptr) {
    const std::size_t newer = mark < name.size() ? ToUnsigned(name.substr(mark + 1)) : 0;
    object = ObjectBefore(session.world, className, newer);
  } else {
    object = session.world.Find(ToUnsigned(name));
  }
  if (object == nullptr) Refuse("no object " + name);
  return *object;
}

void WriteField(PairWriter& writer, const ZEField& field, const json& value) {
  if (field.table != nullptr && value.is_number()) {
    const char* token = ZEProtocol::TokenOf(field.table, value.get<int>());
    writer.Text(field.key, token == nullptr ? "" : token);
  } else if (field.kind == ZEKind::Binary) {
    writer.Binary(field.key, EscapeBinary(value.get<std::string>()));
  } else {
    writer.Text(field.key, value.is_string() ? value.get<std::string>() : value.dump());
  }
}

}  // namespace

void Status(Controls& controls, const json&, json& answer) {
  answer["connected"] = controls.session != nullptr;
  answer["frames"] = controls.wire.Frames();
  answer["faults"] = controls.faults.Waiting();
  if (controls.session == nullptr) return;
  answer["started"] = controls.session->started;
  answer["account"] = controls.session->signIn.Name();
  answer["objects"] = controls.session->world.Objects().size();
}

void Describe(Controls& controls, const json& order, json& answer) {
  const Object& object = ObjectOf(controls, order);
  answer["object"] = object.id;
  answer["class"] = object.type->name;
  json& properties = answer["properties"] = json::object();
  for (const auto& [property, value] : object.properties) {
    properties[std::to_string(property)] =
        value.binary ? "<" + std::to_string(UnescapeBinary(value.text).size()) + " bytes>" : value.text;
  }
}

void SetProperty(Controls& controls, const json& order, json&) {
  Object& object = ObjectOf(controls, order);
  const int property = order.at("property").get<int>();
  if (ZEProtocol::TokenOf(object.type->properties, property) == nullptr) Refuse("no such property");
  SessionOf(controls).world.Set(object, property, TextOf(order, "value"));
}

void SignOut(Controls& controls, const json& order, json&) {
  LogoutReason reason = LogoutReason::SignedInElsewhere;
  if (order.contains("reason")) {
    const json& value = order["reason"];
    reason = value.is_number() ? static_cast<LogoutReason>(value.get<int>())
                               : Choose(kLogoutReasons, value.get<std::string>()).reason;
  }
  if (!SessionOf(controls).signIn.Drop(reason)) Refuse("nobody is signed in");
}

void FailCommit(Controls& controls, const json& order, json&) {
  SessionOf(controls).commit.FailNext(order.value("count", 1));
}

void SendEvent(Controls& controls, const json& order, json&) {
  const ZEEvent& event = Choose(ALL_EVENTS, TextOf(order, "event"));
  std::string pairs;
  PairWriter writer(pairs);
  for (const ZEField& field : event.fields) {
    if (field.key == nullptr) break;
    const auto value = order.find(ZEProtocol::KeyName(field.key));
    if (value != order.end()) WriteField(writer, field, *value);
  }
  Session& session = SessionOf(controls);
  if (order.contains("object")) {
    session.world.Event(ObjectOf(controls, order), event.number, pairs);
    return;
  }
  const ZEClass* type = ZEProtocol::ClassByName(TextOf(order, "class", ROOT_CLASS.name).c_str());
  if (type == nullptr) Refuse("unknown class");
  session.world.ClassEvent(*type, event.number, pairs);
}

}  // namespace orders
}  // namespace simulator

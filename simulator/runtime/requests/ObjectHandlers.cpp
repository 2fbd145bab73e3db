#include <set>

#include "apiwrapper/tables/ClassMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/protocol/Values.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

// The tokens of a list of properties; empty ones stand for properties that the engine could not name.
std::vector<std::string> PropertyTokens(const Exchange& exchange) {
  std::vector<std::string> tokens;
  const std::string list = exchange.Text(ZEKey::Properties);
  for (const auto token : SplitList(list)) {
    if (!token.empty()) tokens.emplace_back(token);
  }
  return tokens;
}

void WriteProperties(PairWriter writer, const Object& object, const std::vector<std::string>& tokens) {
  for (const std::string& token : tokens) {
    const int property = PropertyByToken(*object.type, token);
    if (property != 0) WriteProperty(writer, token.c_str(), *object.type, property, object.Get(property));
  }
}

void GetProps(Session&, Exchange& exchange) {
  WriteProperties(exchange.Writer(), exchange.Target(), PropertyTokens(exchange));
}

// One line for each object, in the order of the question; a line of its own for one that is not there.
void GetMultipleObjectsProps(Session& session, Exchange& exchange) {
  const std::vector<std::string> tokens = PropertyTokens(exchange);
  bool first = true;
  for (const unsigned id : exchange.Ids(ZEKey::Objects)) {
    if (!first) exchange.Reply() += "\nb ";
    first = false;
    const Object* object = session.world.Find(id);
    if (object == nullptr || object->type != &exchange.Class()) continue;
    WriteProperties(PairWriter(exchange.Reply()), *object, tokens);
  }
}

void FilterOutProps(Session& session, Exchange& exchange) {
  std::set<int> properties;
  for (const std::string& token : PropertyTokens(exchange)) {
    properties.insert(PropertyByToken(exchange.Class(), token));
  }
  session.world.Filter(exchange.Class(), std::move(properties));
}

// Properties that an application defines for itself have no place here.
void SetExtProps(Session&, Exchange&) {}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&ObjectMethod::GetProps,                GetProps},
    {&ObjectMethod::GetMultipleObjectsProps, GetMultipleObjectsProps},
    {&ObjectMethod::FilterOutProps,          FilterOutProps},
    {&ObjectMethod::SetExtProps,             SetExtProps},
};
// clang-format on

}  // namespace

HandlerRows ObjectHandlers() { return RowsOf(kRows); }

}  // namespace simulator

#include "simulator/runtime/door/Orders.h"

#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"

namespace simulator {

using nlohmann::json;

json Orders::Execute(const json& order) {
  json answer = {{"ok", true}};
  try {
    const std::string name = order.at("order").get<std::string>();
    const OrderRow* row = FindOrder(name);
    if (row == nullptr) Refuse("unknown order " + name);
    if (row->carryOut == nullptr) Refuse(name + " is for scenario files");
    row->carryOut(m_controls, order, answer);
  } catch (const std::exception& failure) {
    return {{"ok", false}, {"error", failure.what()}};
  }
  return answer;
}

std::string Orders::ExecuteLine(std::string_view line) {
  const json order = json::parse(line, nullptr, false);
  const json answer =
      order.is_object() ? Execute(order) : json{{"ok", false}, {"error", "not an object of JSON"}};
  // Foreign bytes may be no proper text; the answer is one all the same.
  return answer.dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace simulator

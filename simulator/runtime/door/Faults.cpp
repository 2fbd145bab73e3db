#include "simulator/runtime/door/Faults.h"

#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/tables/Words.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/World.h"

namespace simulator {
namespace {

constexpr char kOtherId[] = "#FFFFFF ";

bool Fits(const FaultOrder& order, const ZEMethod* method) {
  if (order.method.empty()) return true;
  if (method == nullptr) return false;
  const std::string owner = method->owner == nullptr ? "Object" : method->owner->name;
  return order.method == owner + "." + method->name;
}

}  // namespace

bool Faults::Take(const ZEMethod* method, FaultOrder& order) {
  for (auto candidate = m_orders.begin(); candidate != m_orders.end(); ++candidate) {
    if (!Fits(*candidate, method)) continue;
    if (candidate->after > 0) {
      --candidate->after;
      continue;
    }
    order = *candidate;
    if (candidate->count > 0 && --candidate->count == 0) m_orders.erase(candidate);
    return true;
  }
  return false;
}

void Faults::Answer(const ZEMethod* method, std::string_view id, const std::string& reply, Outbox& outbox,
                    Scheduler& scheduler) {
  FaultOrder order;
  if (!Take(method, order)) {
    outbox.Send(reply);
    return;
  }
  const std::string idText(id);
  switch (order.fault) {
    case ReplyFault::Drop:
      break;
    case ReplyFault::Delay:
      scheduler.After(order.milliseconds, [&outbox, reply] { outbox.Send(reply); });
      break;
    case ReplyFault::Repeat:
      outbox.Send(reply);
      outbox.Send(reply);
      break;
    case ReplyFault::Garble:
      outbox.Send(Garbled(id, reply));
      break;
    case ReplyFault::Error:
      outbox.Send(idText + ZEWord::Error + " refused by order");
      break;
    case ReplyFault::Empty:
      outbox.Send(idText + ZEWord::Reply + " ");
      break;
    case ReplyFault::OtherId:
      outbox.Send(kOtherId + reply.substr(id.size()));
      break;
  }
}

std::string Faults::Garbled(std::string_view id, const std::string& reply) {
  std::string text = reply;
  for (std::size_t i = id.size(); i < text.size(); ++i) {
    // No zero bytes: those cannot be in a text at all.
    if (m_random() % 2 == 0) text[i] = static_cast<char>(1 + m_random() % 255);
  }
  return text;
}

}  // namespace simulator

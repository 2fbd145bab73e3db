// Replies that go wrong on purpose.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

struct ZEMethod;

namespace simulator {

class Outbox;
class Scheduler;

enum class ReplyFault {
  Drop,     // none at all
  Delay,    // later
  Repeat,   // twice
  Garble,   // the text behind the id is spoilt
  Error,    // an error instead
  Empty,    // a reply without results
  OtherId,  // for a request that nobody made
};

struct FaultOrder {
  ReplyFault fault = ReplyFault::Drop;
  std::string method;    // "Account.GetProps"; empty for every request
  int after = 0;         // of the replies it meets, so many stay whole first
  int count = 1;         // of the next replies it spoils; negative for all
  int milliseconds = 0;  // of a delay
};

// The orders apply in turn: the first that fits a request spoils its reply, and goes when used up; one that
// has replies to leave whole first counts this one and lets the next order have it.
// Threads: none of its own.
class Faults {
 public:
  explicit Faults(unsigned seed) : m_random(seed) {}

  bool Any() const { return !m_orders.empty(); }
  // The orders that are not used up.
  std::size_t Waiting() const { return m_orders.size(); }
  void Add(FaultOrder order) { m_orders.push_back(std::move(order)); }
  void Clear() { m_orders.clear(); }

  // Sends the reply, spoilt as ordered. `method` is null for a request that nobody knows. The outbox must
  // outlive the scheduler's actions.
  void Answer(const ZEMethod* method, std::string_view id, const std::string& reply, Outbox& outbox,
              Scheduler& scheduler);

 private:
  // The order for this request, counted down; false for none.
  bool Take(const ZEMethod* method, FaultOrder& order);
  std::string Garbled(std::string_view id, const std::string& reply);

  std::vector<FaultOrder> m_orders;
  std::mt19937 m_random;
};

}  // namespace simulator

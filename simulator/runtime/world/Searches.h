// Searches that the engine has begun.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// More open searches than any engine has: one more, and the oldest is released.
inline constexpr std::size_t kMostSearches = 100;

// A search runs for a moment and is then finished, its results staying as they are until it is released.
// Threads: none of its own; the scheduler finishes them.
class Searches {
 public:
  // What a class of searches looks like: the numbers of its status.
  struct Kind {
    const ZEClass& type;
    int running;
    int finished;
    int failed;
    bool tells;  // each result in an event of its own
  };
  // Finds object ids; false when the search cannot be made.
  using Find = std::function<bool(std::vector<unsigned>& results)>;

  Searches(World& world, Scheduler& scheduler) : m_world(world), m_scheduler(scheduler) {}
  Searches(const Searches&) = delete;
  Searches& operator=(const Searches&) = delete;

  // `find` runs when the search finishes; the kind must outlive that.
  Object& Start(const Kind& kind, Find find);
  // A part of the results, `limit` below 1 for all from there on; nothing before it is finished.
  std::vector<unsigned> Results(unsigned search, int from, int limit) const;
  // Deletes the object, the engine being told.
  void Release(unsigned search);
  // While held, searches run on; those that would be finished by then finish when they no longer are.
  void Hold(bool hold);

 private:
  void Finish(const Kind& kind, unsigned search, const Find& find);

  World& m_world;
  Scheduler& m_scheduler;
  std::map<unsigned, std::vector<unsigned>> m_results;  // by the search: ids grow with time
  bool m_holds = false;
  std::vector<std::function<void()>> m_held;
};

}  // namespace simulator

#include "simulator/runtime/world/Searches.h"

#include <algorithm>
#include <utility>

#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/protocol/Message.h"

namespace simulator {
namespace {

constexpr int kStatus = 1;  // property of both classes of searches
constexpr int kSearchMilliseconds = 20;

}  // namespace

Object& Searches::Start(const Kind& kind, Find find) {
  if (m_results.size() >= kMostSearches) Release(m_results.begin()->first);
  Object& search = m_world.Create(kind.type);
  m_world.PutInt(search, kStatus, kind.running);
  m_results[search.id];
  m_scheduler.After(kSearchMilliseconds,
                    [this, &kind, id = search.id, find = std::move(find)] { Finish(kind, id, find); });
  return search;
}

void Searches::Finish(const Kind& kind, unsigned id, const Find& find) {
  if (m_holds) {
    m_held.push_back([this, &kind, id, find] { Finish(kind, id, find); });
    return;
  }
  const auto place = m_results.find(id);
  Object* search = m_world.Find(id);
  if (place == m_results.end() || search == nullptr) return;
  const bool found = find(place->second);
  if (kind.tells) {
    for (const unsigned result : place->second) {
      std::string pairs;
      PairWriter(pairs).Number(ZEKey::Contact, result);
      m_world.Event(*search, ZEEventNumber::NewSearchResult, pairs);
    }
  }
  m_world.SetInt(*search, kStatus, found ? kind.finished : kind.failed);
}

std::vector<unsigned> Searches::Results(unsigned id, int from, int limit) const {
  const auto place = m_results.find(id);
  if (place == m_results.end()) return {};
  const std::vector<unsigned>& all = place->second;
  const std::size_t begin = std::min(all.size(), static_cast<std::size_t>(std::max(0, from)));
  const std::size_t count =
      limit < 1 ? all.size() - begin : std::min(all.size() - begin, static_cast<std::size_t>(limit));
  const auto first = all.begin() + static_cast<std::ptrdiff_t>(begin);
  return {first, first + static_cast<std::ptrdiff_t>(count)};
}

void Searches::Release(unsigned id) {
  m_results.erase(id);
  m_world.Delete(id);
}

void Searches::Hold(bool hold) {
  m_holds = hold;
  if (hold) return;
  for (const auto& finish : std::exchange(m_held, {})) finish();
}

}  // namespace simulator

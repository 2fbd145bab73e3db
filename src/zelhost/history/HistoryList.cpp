#include "zelhost/history/HistoryList.h"

#include <algorithm>
#include <utility>

CHistoryInfo* HistoryList::At(int position) const {
  if (position < 0 || position >= Count()) return nullptr;
  return m_items[static_cast<std::size_t>(position)].entry.get();
}

std::uint64_t HistoryList::KeyOf(int category, std::int64_t time) {
  constexpr int kTimeBits = 62;
  constexpr std::int64_t kLatest = (std::int64_t{1} << kTimeBits) - 1;
  const auto age = static_cast<std::uint64_t>(kLatest - std::clamp<std::int64_t>(time, 0, kLatest));
  return (static_cast<std::uint64_t>(category) << kTimeBits) | age;
}

int HistoryList::PositionOf(const char* time) const {
  for (std::size_t i = 0; i < m_unsorted; ++i) {
    if (m_items[i].entry->Get(CHistoryInfo::KEY_TIME) == time) return static_cast<int>(i);
  }
  const std::int64_t seconds = CHistoryInfo::Seconds(time);
  for (const int category : {CHistoryInfo::CATEGORY_UNSEEN, CHistoryInfo::CATEGORY_SEEN}) {
    const std::uint64_t key = KeyOf(category, seconds);
    // Times of the same number may be written differently.
    for (std::size_t i = FirstFrom(key); i < m_items.size() && m_items[i].key == key; ++i) {
      if (m_items[i].entry->Get(CHistoryInfo::KEY_TIME) == time) return static_cast<int>(i);
    }
  }
  return -1;
}

// Halves without a branch that depends on the keys: every second one would be guessed wrong.
std::size_t HistoryList::FirstFrom(std::uint64_t key) const {
  if (m_unsorted == m_items.size()) return m_items.size();
  const Item* first = m_items.data() + m_unsorted;
  for (std::size_t left = m_items.size() - m_unsorted; left > 1;) {
    const std::size_t half = left / 2;
    first += half * static_cast<std::size_t>(first[half - 1].key < key);
    left -= half;
  }
  first += static_cast<std::size_t>(first->key < key);
  return static_cast<std::size_t>(first - m_items.data());
}

int HistoryList::PositionOf(const ZEObject* object) const {
  const auto held = m_objects.find(object);
  if (held == m_objects.end()) return -1;
  const auto item = std::find_if(m_items.begin(), m_items.end(),
                                 [&](const Item& i) { return i.entry.get() == held->second; });
  return static_cast<int>(item - m_items.begin());
}

void HistoryList::Reserve(std::size_t entries) {
  m_items.reserve(m_items.size() + entries);
  m_objects.reserve(m_objects.size() + entries);
}

bool HistoryList::Register(CHistoryInfo* entry) {
  return entry->Object() == nullptr || m_objects.emplace(entry->Object(), entry).second;
}

bool HistoryList::Append(std::unique_ptr<CHistoryInfo> entry) {
  if (!Register(entry.get())) return false;
  m_items.push_back({0, std::move(entry)});
  m_unsorted = m_items.size();
  return true;
}

bool HistoryList::InsertFront(std::unique_ptr<CHistoryInfo> entry) {
  if (!Register(entry.get())) return false;
  m_items.insert(m_items.begin(), Item{0, std::move(entry)});
  ++m_unsorted;
  return true;
}

void HistoryList::Erase(int position) {
  const auto at = static_cast<std::size_t>(position);
  m_objects.erase(m_items[at].entry->Object());
  m_items.erase(m_items.begin() + position);
  if (at < m_unsorted) --m_unsorted;
}

void HistoryList::Sort() {
  for (Item& item : m_items) item.key = KeyOf(item.entry->Category(), item.entry->Timestamp());
  std::stable_sort(m_items.begin(), m_items.end(),
                   [](const Item& a, const Item& b) { return a.key < b.key; });
  m_unsorted = 0;
}

void HistoryList::Clear() {
  m_items.clear();
  m_objects.clear();
  m_unsorted = 0;
}

void HistoryList::Forget(const ZEObject* object) {
  const auto held = m_objects.find(object);
  if (held == m_objects.end()) return;
  held->second->DropObject();
  m_objects.erase(held);
}

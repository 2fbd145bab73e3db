#include "zelhost/contacts/ContactList.h"

#include <algorithm>
#include <utility>

namespace {

// Small enough to shift quickly, large enough that a list of 50,000 has few chunks to count through.
constexpr std::size_t kLargestChunk = 512;
constexpr std::size_t kSortedChunk = 384;  // leaves room for newcomers
constexpr std::size_t kSmallPair = 192;    // two neighbours that hold no more become one

constexpr int kBehindAllCategories = 0xFF;

constexpr int kNames[] = {Contact::P_IDENTITY, Contact::P_PHONE_NUMBER};

}  // namespace

ContactList::~ContactList() { Clear(); }

int ContactList::Count(int category) const {
  if (category < 0 || category >= CContactInfo::SORT_CATEGORIES) return 0;
  return m_NumContact[static_cast<std::size_t>(category)];
}

// For entries whose keys are the same.
bool ContactList::NameBefore(const CContactInfo& a, const CContactInfo& b) {
  const int order =
      zelhost::CompareNames(a.m_place.name.view(), b.m_place.name.view(), zelhost::NameKey::kBytes);
  return order != 0 ? order < 0 : a.m_place.sequence < b.m_place.sequence;
}

// Gives the entry the place that its category and name say.
ContactList::Item ContactList::Placed(CContactInfo* entry) {
  entry->m_place.name = entry->Get(Contact::P_DISPLAY_NAME);
  entry->m_place.key = zelhost::NameKey(entry->m_nCategory, entry->m_place.name.view());
  return {entry->m_place.key, entry};
}

// Where the item stands, or belongs: behind the last chunk when it comes after all others.
ContactList::Spot ContactList::SpotFor(const Item& item) const {
  const auto chunk = std::lower_bound(m_order.begin(), m_order.end(), item,
                                      [](const Chunk& c, const Item& i) { return Before()(c.back(), i); });
  if (chunk == m_order.end()) return {m_order.size(), 0};
  const auto at = std::lower_bound(chunk->begin(), chunk->end(), item, Before());
  return {static_cast<std::size_t>(chunk - m_order.begin()), static_cast<std::size_t>(at - chunk->begin())};
}

ContactList::Spot ContactList::SpotAt(int position) const {
  auto left = static_cast<std::size_t>(position);
  std::size_t chunk = 0;
  while (chunk < m_order.size() && left >= m_order[chunk].size()) left -= m_order[chunk++].size();
  return {chunk, left};
}

const CContactInfo* ContactList::At(int position) const {
  if (position < 0 || position >= m_count) return nullptr;
  const Spot spot = SpotAt(position);
  return m_order[spot.chunk][spot.index].entry;
}

int ContactList::PositionOf(const CContactInfo* entry) const {
  const Spot spot = SpotFor({entry->m_place.key, Own(entry)});
  std::size_t position = spot.index;
  for (std::size_t chunk = 0; chunk < spot.chunk; ++chunk) position += m_order[chunk].size();
  return static_cast<int>(position);
}

const CContactInfo* ContactList::Find(std::string_view name) const {
  if (name.empty()) return nullptr;
  CContactInfo* first = nullptr;
  m_names.VisitEach(name, [&](CContactInfo* entry) {
    if (!entry->GoesBy(name)) return;
    if (first == nullptr || Before()({entry->m_place.key, entry}, {first->m_place.key, first})) first = entry;
  });
  return first;
}

void ContactList::Link(const Item& item) {
  Spot spot = SpotFor(item);
  if (spot.chunk == m_order.size()) {
    if (m_order.empty()) m_order.emplace_back();
    spot = {m_order.size() - 1, m_order.back().size()};
  }
  Chunk& chunk = m_order[spot.chunk];
  chunk.insert(chunk.begin() + static_cast<std::ptrdiff_t>(spot.index), item);
  if (chunk.size() < kLargestChunk) return;
  const auto middle = chunk.begin() + kLargestChunk / 2;
  Chunk upper(middle, chunk.end());
  chunk.erase(middle, chunk.end());
  m_order.insert(m_order.begin() + static_cast<std::ptrdiff_t>(spot.chunk) + 1, std::move(upper));
}

void ContactList::Unlink(const Item& item) {
  const Spot spot = SpotFor(item);
  const auto chunk = m_order.begin() + static_cast<std::ptrdiff_t>(spot.chunk);
  chunk->erase(chunk->begin() + static_cast<std::ptrdiff_t>(spot.index));
  if (chunk->empty()) {
    m_order.erase(chunk);
  } else if (chunk != m_order.begin() && std::prev(chunk)->size() + chunk->size() <= kSmallPair) {
    std::prev(chunk)->insert(std::prev(chunk)->end(), chunk->begin(), chunk->end());
    m_order.erase(chunk);
  }
}

void ContactList::AddName(CContactInfo* entry, int property) {
  const ZEString& name = entry->Get(property);
  if (!name.isEmpty()) m_names.Add(name.view(), entry);
}

void ContactList::DropName(CContactInfo* entry, int property) {
  m_names.Remove(entry->Get(property).view(), entry);
}

CContactInfo* ContactList::Take(std::unique_ptr<CContactInfo> entry) {
  CContactInfo* taken = entry.release();
  taken->m_place.sequence = ++m_sequence;
  for (const int property : kNames) AddName(taken, property);
  ++m_count;
  ++m_NumContact[static_cast<std::size_t>(taken->m_nCategory)];
  return taken;
}

const CContactInfo* ContactList::Insert(std::unique_ptr<CContactInfo> entry) {
  CContactInfo* taken = Take(std::move(entry));
  Link(Placed(taken));
  return taken;
}

const CContactInfo* ContactList::Append(std::unique_ptr<CContactInfo> entry) {
  CContactInfo* taken = Take(std::move(entry));
  taken->m_place.key = zelhost::NameKey(kBehindAllCategories, {});
  if (m_order.empty() || m_order.back().size() >= kSortedChunk) {
    m_order.emplace_back().reserve(kLargestChunk);
  }
  m_order.back().push_back({taken->m_place.key, taken});
  return taken;
}

void ContactList::Set(const CContactInfo* entry, int property, const ZEString& value) {
  CContactInfo* own = Own(entry);
  const bool isName = std::find(std::begin(kNames), std::end(kNames), property) != std::end(kNames);
  if (isName) DropName(own, property);
  own->Set(property, value);
  if (isName) AddName(own, property);
}

void ContactList::SetCategory(const CContactInfo* entry, int category) {
  --m_NumContact[static_cast<std::size_t>(entry->m_nCategory)];
  Own(entry)->SetCategory(category);
  ++m_NumContact[static_cast<std::size_t>(category)];
}

void ContactList::Place(const CContactInfo* entry) {
  Unlink({entry->m_place.key, Own(entry)});
  Link(Placed(Own(entry)));
}

void ContactList::Remove(const CContactInfo* entry) {
  CContactInfo* own = Own(entry);
  Unlink({own->m_place.key, own});
  for (const int property : kNames) DropName(own, property);
  --m_count;
  --m_NumContact[static_cast<std::size_t>(own->m_nCategory)];
  delete own;
}

void ContactList::Sort() {
  if (m_order.size() == 1) {  // no need of a second place for the items
    Chunk& items = m_order.front();
    for (Item& item : items) item = Placed(item.entry);
    std::sort(items.begin(), items.end(), Before());
    return;
  }
  std::vector<Item> items;
  items.reserve(static_cast<std::size_t>(m_count));
  for (const Chunk& chunk : m_order) {
    for (const Item& item : chunk) items.push_back(Placed(item.entry));
  }
  std::sort(items.begin(), items.end(), Before());
  m_order.clear();
  for (auto from = items.begin(); from != items.end();) {
    const auto to = from + std::min<std::ptrdiff_t>(items.end() - from, kSortedChunk);
    m_order.emplace_back(from, to);
    from = to;
  }
}

void ContactList::Clear() {
  for (const Chunk& chunk : m_order) {
    for (const Item& item : chunk) delete item.entry;
  }
  m_order.clear();
  m_names.Clear();
  m_NumContact = {};
  m_count = 0;
}

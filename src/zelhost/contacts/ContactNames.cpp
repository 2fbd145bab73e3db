#include "zelhost/contacts/ContactNames.h"

#include <functional>
#include <utility>

namespace {

constexpr std::size_t kFirstSlots = 256;

}  // namespace

std::uint32_t ContactNames::HashOf(std::string_view name) {
  return static_cast<std::uint32_t>(std::hash<std::string_view>()(name));
}

void ContactNames::Put(const Slot& slot) {
  std::size_t at = Home(slot.hash);
  while (m_slots[at].entry != nullptr) at = Next(at);
  m_slots[at] = slot;
}

void ContactNames::Grow() {
  const std::vector<Slot> old =
      std::exchange(m_slots, std::vector<Slot>(m_slots.empty() ? kFirstSlots : 4 * m_slots.size()));
  for (const Slot& slot : old) {
    if (slot.entry != nullptr) Put(slot);
  }
}

void ContactNames::Add(std::string_view name, CContactInfo* entry) {
  if (2 * (m_used + 1) > m_slots.size()) Grow();
  Put({HashOf(name), entry});
  ++m_used;
}

void ContactNames::Remove(std::string_view name, const CContactInfo* entry) {
  if (m_slots.empty()) return;
  const std::uint32_t hash = HashOf(name);
  std::size_t hole = Home(hash);
  while (m_slots[hole].entry != nullptr && (m_slots[hole].entry != entry || m_slots[hole].hash != hash)) {
    hole = Next(hole);
  }
  if (m_slots[hole].entry == nullptr) return;
  // What was pushed behind its home by the one that goes moves up, so that no search ends at the hole.
  const std::size_t mask = m_slots.size() - 1;
  for (std::size_t at = Next(hole); m_slots[at].entry != nullptr; at = Next(at)) {
    const std::size_t pushed = (at - Home(m_slots[at].hash)) & mask;
    if (pushed < ((at - hole) & mask)) continue;
    m_slots[hole] = m_slots[at];
    hole = at;
  }
  m_slots[hole] = Slot();
  --m_used;
}

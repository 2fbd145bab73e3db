#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

class CContactInfo;

// An index of entries by the names that they go by: one table of hashes and pointers, in which an entry
// stands as often as it was added. It keeps no texts, so the caller compares them. Threads: none of its own.
class ContactNames {
 public:
  void Add(std::string_view name, CContactInfo* entry);
  // Takes it out once; nothing when it is not there under that name.
  void Remove(std::string_view name, const CContactInfo* entry);
  void Clear() { m_slots.clear(), m_used = 0; }

  // Shows every entry of that name and, rarely, others.
  template <class Visit>
  void VisitEach(std::string_view name, Visit visit) const {
    if (m_slots.empty()) return;
    const std::uint32_t hash = HashOf(name);
    for (std::size_t at = Home(hash); m_slots[at].entry != nullptr; at = Next(at)) {
      if (m_slots[at].hash == hash) visit(m_slots[at].entry);
    }
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    CContactInfo* entry = nullptr;  // null: free
  };

  static std::uint32_t HashOf(std::string_view name);
  std::size_t Home(std::uint32_t hash) const { return hash & (m_slots.size() - 1); }
  std::size_t Next(std::size_t at) const { return (at + 1) & (m_slots.size() - 1); }
  void Put(const Slot& slot);
  void Grow();

  std::vector<Slot> m_slots;  // none, or a power of two of them, at least half of them free
  std::size_t m_used = 0;
};

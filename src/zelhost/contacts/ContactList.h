#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "zelhost/contacts/ContactInfo.h"
#include "zelhost/contacts/ContactNames.h"

// The contacts in the order in which the widget shows them: by category, then by display name without regard
// to case; entries of the same name keep the order in which they came. Thousands of entries are normal:
// finding, placing and counting take time that hardly grows with their number. A contact may be listed more
// than once.
// The order is kept in pieces of bounded size, so that a move shifts few entries, and an entry's position is
// found by the place it was given. An index by identity and phone number stands beside it.
// Threads: none of its own; the contact manager's callers hold the service-host mutex.
class ContactList {
 public:
  ContactList() = default;
  ContactList(const ContactList&) = delete;
  ContactList& operator=(const ContactList&) = delete;
  ~ContactList();

  int Count() const { return m_count; }
  // 0 for what is no category.
  int Count(int category) const;

  // Null for positions outside the list.
  const CContactInfo* At(int position) const;
  // The entry is in this list.
  int PositionOf(const CContactInfo* entry) const;
  // The first entry whose identity or phone number that is; null when there is none, and for an empty name.
  const CContactInfo* Find(std::string_view name) const;
  // Shows entries in their order, from a position on, until `visit(entry, position)` answers false.
  template <class Visit>
  void VisitFrom(int position, Visit visit) const;

  // Puts an entry where it belongs, or behind all others until Sort() is called. Both answer it.
  const CContactInfo* Insert(std::unique_ptr<CContactInfo> entry);
  const CContactInfo* Append(std::unique_ptr<CContactInfo> entry);
  // Both change an entry of this list. It keeps its position until Place() or Sort() is called.
  void Set(const CContactInfo* entry, int property, const ZEString& value);
  void SetCategory(const CContactInfo* entry, int category);
  // Moves one entry where its category and name say.
  void Place(const CContactInfo* entry);
  // Takes an entry of this list out and frees it.
  void Remove(const CContactInfo* entry);
  // Moves all.
  void Sort();
  void Clear();

 private:
  // The key again, so that most comparisons need not look at the entry.
  struct Item {
    zelhost::NameKey key;
    CContactInfo* entry;
  };
  using Chunk = std::vector<Item>;
  struct Spot {
    std::size_t chunk;
    std::size_t index;
  };

  struct Before {
    bool operator()(const Item& a, const Item& b) const {
      return a.key == b.key ? NameBefore(*a.entry, *b.entry) : a.key < b.key;
    }
  };
  static bool NameBefore(const CContactInfo& a, const CContactInfo& b);
  static Item Placed(CContactInfo* entry);
  static CContactInfo* Own(const CContactInfo* entry) { return const_cast<CContactInfo*>(entry); }

  Spot SpotFor(const Item& item) const;
  Spot SpotAt(int position) const;
  void Link(const Item& item);
  void Unlink(const Item& item);
  CContactInfo* Take(std::unique_ptr<CContactInfo> entry);
  void AddName(CContactInfo* entry, int property);
  void DropName(CContactInfo* entry, int property);

  std::vector<Chunk> m_order;  // none of them is empty
  int m_count = 0;
  std::array<int, CContactInfo::SORT_CATEGORIES> m_NumContact{};
  ContactNames m_names;  // by identity and phone number
  std::uint64_t m_sequence = 0;
};

template <class Visit>
void ContactList::VisitFrom(int position, Visit visit) const {
  if (position < 0) return;
  Spot spot = SpotAt(position);
  for (; spot.chunk < m_order.size(); ++spot.chunk, spot.index = 0) {
    const Chunk& chunk = m_order[spot.chunk];
    for (; spot.index < chunk.size(); ++spot.index, ++position) {
      const CContactInfo* entry = chunk[spot.index].entry;
      if (!visit(entry, position)) return;
    }
  }
}

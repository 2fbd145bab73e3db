#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "zelhost/chats/ChatInfo.h"

// The entries of all chats, the most recent activity first. No two have the same name. Adding and changing
// entries leaves the order to the next look at it, so that a list of thousands is brought in order once.
// Threads: none of its own; the chat manager's callers hold the service-host mutex.
class ChatList {
 public:
  using Entries = std::vector<std::unique_ptr<CChatInfo>>;

  int Count() const { return static_cast<int>(m_entries.size()); }
  // In their order; valid until the next change.
  const Entries& Ordered();
  // Null for positions outside the list.
  CChatInfo* At(int position);
  // The entry is in this list.
  int PositionOf(const CChatInfo* entry);
  // Null when there is none.
  CChatInfo* Find(std::string_view name) const;

  // Nobody goes by the entry's name yet. Answers it.
  CChatInfo* Add(std::unique_ptr<CChatInfo> entry);
  // Newer values of the same chat; the entry is in this list.
  void Update(CChatInfo* entry, const ZEIntDict& values);
  // The entry is in this list; it is gone afterwards.
  void Remove(CChatInfo* entry);
  void Clear();

 private:
  void Unsettle(CChatInfo* entry);

  Entries m_entries;
  std::unordered_map<std::string_view, CChatInfo*> m_byName;  // the names are the entries' own
  bool m_isOrdered = true;
  std::uint64_t m_lastSequence = 0;
};

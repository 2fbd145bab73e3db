#include "zelhost/chats/ChatList.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "apiwrapper/Chat.h"

namespace {

bool Before(const std::unique_ptr<CChatInfo>& a, const CChatInfo* b) {
  return CChatInfo::Compare(a.get(), b);
}

}  // namespace

const ChatList::Entries& ChatList::Ordered() {
  if (!m_isOrdered) {
    std::sort(m_entries.begin(), m_entries.end(),
              [](const auto& a, const auto& b) { return CChatInfo::Compare(a.get(), b.get()); });
    m_isOrdered = true;
  }
  return m_entries;
}

CChatInfo* ChatList::At(int position) {
  if (position < 0 || position >= Count()) return nullptr;
  return Ordered()[static_cast<std::size_t>(position)].get();
}

int ChatList::PositionOf(const CChatInfo* entry) {
  const Entries& entries = Ordered();
  return static_cast<int>(std::lower_bound(entries.begin(), entries.end(), entry, Before) - entries.begin());
}

CChatInfo* ChatList::Find(std::string_view name) const {
  const auto found = m_byName.find(name);
  return found == m_byName.end() ? nullptr : found->second;
}

CChatInfo* ChatList::Add(std::unique_ptr<CChatInfo> entry) {
  CChatInfo* added = entry.get();
  added->m_sequence = ++m_lastSequence;
  m_byName.emplace(added->Name(), added);
  m_entries.push_back(std::move(entry));
  Unsettle(added);
  return added;
}

void ChatList::Update(CChatInfo* entry, const ZEIntDict& values) {
  entry->m_properties = values;
  entry->SetUnread(entry->m_nUnread);
  Unsettle(entry);
}

void ChatList::Unsettle(CChatInfo* entry) {
  entry->m_activity = std::strtoll(entry->Get(Chat::P_LAST_ACTIVITY), nullptr, 10);
  m_isOrdered = false;
}

void ChatList::Remove(CChatInfo* entry) {
  const int position = PositionOf(entry);
  m_byName.erase(entry->Name());
  m_entries.erase(m_entries.begin() + position);
}

void ChatList::Clear() {
  m_byName.clear();
  m_entries.clear();
  m_isOrdered = true;
}

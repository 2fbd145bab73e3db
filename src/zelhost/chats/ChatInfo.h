#pragma once

#include <cstdint>
#include <string_view>

#include "apiwrapper/ZEIntDict.h"
#include "zelhost/chats/ChatDialog.h"

class CChat;

// One entry of the chat list: the values that are known of a chat, and its messages while it is open.
// Entry and chat object know each other, and whichever goes first takes itself out of the other.
// Threads: none of its own; the chat manager's callers hold the service-host mutex.
class CChatInfo {
 public:
  // Where the count of unread messages stands among the properties.
  static constexpr int kUnread = 4;

  // `values` are the chat's properties. A chat that had an entry already now has this one.
  CChatInfo(CChat* chat, const ZEIntDict& values);
  CChatInfo(const CChatInfo&) = delete;
  CChatInfo& operator=(const CChatInfo&) = delete;
  ~CChatInfo();

  // Whether a stands before b: the most recent activity comes first, among equals the longer known.
  static bool Compare(const CChatInfo* a, const CChatInfo* b);

  // The null string when absent.
  ZEString Get(int property) const { return m_properties.find(property); }
  std::string_view Name() const { return m_name.view(); }
  int Type() const;

  // Null once the runtime's object has gone.
  CChat* Chat() const { return m_pChat; }
  // For an entry whose object has gone, or never was.
  void SetChat(CChat* chat);
  // The object is going.
  void ForgetChat() { m_pChat = nullptr; }

  int Unread() const { return m_nUnread; }
  // Below 0 counts as 0.
  void SetUnread(int messages);

  bool IsOpened() const { return m_bOpened; }
  // Both start from no messages at all.
  void Open();
  void Close();

  ChatDialog m_Dialog;
  int m_nMessages = 0;  // in m_Dialog when the chat was opened

 private:
  friend class ChatList;

  CChat* m_pChat = nullptr;
  ZEIntDict m_properties;
  const ZEString m_name;  // what the list finds it by
  int m_nUnread = 0;
  bool m_bOpened = false;
  // What the list orders by.
  std::int64_t m_activity = 0;  // seconds since the epoch
  std::uint64_t m_sequence = 0;
};

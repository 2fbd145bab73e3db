#pragma once

#include <cstddef>
#include <utility>

#include "apiwrapper/ChatMessage.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

class ChatDialog;

// One message of a chat; leaves the dialog that shows it when it goes.
// Threads: the caller holds the service-host mutex.
class CChatMessage : public ClientObject<ChatMessage, kTraceChatMessage> {
 public:
  using ClientObject::ClientObject;
  ~CChatMessage() override;

  static bool IsText(int type) { return type == TYPE_TEXT || type == TYPE_TEXT_TOO; }

  // Notes that the message is part of a count of unread ones; false when it was already.
  bool CountAsUnread() { return !std::exchange(m_isCounted, true); }

 private:
  friend class ChatDialog;

  ChatDialog* m_dialog = nullptr;
  std::size_t m_position = 0;  // there
  bool m_isCounted = false;
};

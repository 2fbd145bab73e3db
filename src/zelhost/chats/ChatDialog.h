#pragma once

#include <cstddef>
#include <vector>

#include "apiwrapper/ZEPtrVector.h"

class CChatMessage;

// The text messages of an opened chat, oldest first, and how many of them have been handed out. A message is
// in one dialog at most and leaves it by itself when it is deleted; those behind it move up. Ten thousand of
// them are normal: adding one and its leaving take the same time however many there are.
// Threads: none of its own; the chat manager's callers hold the service-host mutex.
class ChatDialog {
 public:
  ChatDialog() = default;
  ChatDialog(const ChatDialog&) = delete;
  ChatDialog& operator=(const ChatDialog&) = delete;
  ~ChatDialog() { Clear(); }

  // Appends those that are texts by their fetched values, which the messages then no longer keep.
  void Fill(const ZEPtrVector& messages);
  // Puts it behind all others; false for one that is in a dialog already.
  bool Append(CChatMessage* message);
  // A message that is in this dialog goes.
  void Forget(const CChatMessage* message);
  void Clear();

  int Count() const { return static_cast<int>(m_messages.size() - m_gone); }
  // Slots of CChatMessage, none of them empty: `count` messages from `position` on, which must be there.
  ZEPtrVector Slots(int position, int count);

  // The position of the first message that nobody has read through the dialog.
  int ReadIndex();
  void SetReadIndex(int position) { m_nReadIndex = static_cast<std::size_t>(position); }

 private:
  void CloseGaps();

  std::vector<CChatMessage*> m_messages;  // null where one has gone since the last look
  std::size_t m_gone = 0;                 // how many are null
  std::size_t m_nReadIndex = 0;
};

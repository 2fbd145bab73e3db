#include "zelhost/chats/ChatDialog.h"

#include <algorithm>

#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CChatMessage.h"
#include "zelhost/chats/RecentMessages.h"

bool ChatDialog::Append(CChatMessage* message) {
  if (message->m_dialog != nullptr) return false;
  message->m_dialog = this;
  message->m_position = m_messages.size();
  m_messages.push_back(message);
  return true;
}

void ChatDialog::Fill(const ZEPtrVector& messages) {
  m_messages.reserve(m_messages.size() + messages.size());
  for (unsigned i = 0; i < messages.size(); ++i) {
    CChatMessage* message = zelhost::MessageAt(messages, i);
    const ZEIntDict values = zelhost::TakeValues(*message);
    if (CChatMessage::IsText(values.find(ChatMessage::P_TYPE).toInt())) Append(message);
  }
}

// The others keep their positions until somebody looks, so that many may go at once.
void ChatDialog::Forget(const CChatMessage* message) {
  m_messages[message->m_position] = nullptr;
  ++m_gone;
}

void ChatDialog::CloseGaps() {
  if (m_gone == 0) return;
  std::size_t kept = 0;
  std::size_t keptRead = 0;
  for (std::size_t i = 0; i < m_messages.size(); ++i) {
    if (m_messages[i] == nullptr) continue;
    m_messages[i]->m_position = kept;
    m_messages[kept++] = m_messages[i];
    if (i < m_nReadIndex) keptRead = kept;
  }
  m_messages.resize(kept);
  m_nReadIndex = keptRead;
  m_gone = 0;
}

void ChatDialog::Clear() {
  for (CChatMessage* message : m_messages) {
    if (message != nullptr) message->m_dialog = nullptr;
  }
  m_messages.clear();
  m_messages.shrink_to_fit();
  m_gone = 0;
  m_nReadIndex = 0;
}

ZEPtrVector ChatDialog::Slots(int position, int count) {
  CloseGaps();
  const auto from = m_messages.begin() + position;
  ZEPtrVector slots(static_cast<unsigned>(count));
  std::transform(from, from + count, &slots[0], [](ZEObject* message) -> void* { return message; });
  return slots;
}

int ChatDialog::ReadIndex() {
  CloseGaps();
  return static_cast<int>(m_nReadIndex);
}

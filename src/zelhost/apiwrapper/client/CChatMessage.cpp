#include "zelhost/apiwrapper/client/CChatMessage.h"

#include "zelhost/chats/ChatDialog.h"

CChatMessage::~CChatMessage() {
  if (m_dialog != nullptr) m_dialog->Forget(this);
}

#include "zelhost/apiwrapper/client/CChat.h"

#include "zelhost/apiwrapper/client/CZelto.h"

CChat::~CChat() {
  if (CZelto* root = client::RootOf(*this)) root->m_chats.Forget(this);
}

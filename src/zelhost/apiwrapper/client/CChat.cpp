#include "zelhost/apiwrapper/client/CChat.h"

#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/contacts/ZelhostContactManager.h"

namespace {

constexpr int kStatusEnded = 7;  // what the account is to a dialog whose partner it has blocked

}  // namespace

CChat::~CChat() {
  if (m_info != nullptr) m_info->ForgetChat();
  if (CZelto* root = client::RootOf(*this)) root->m_chats.Forget(this);
}

void CChat::OnChange(int property, const ZEString& value) {
  ClientObject::OnChange(property, value);
  if (property != P_MYSTATUS || value.toInt() != kStatusEnded) return;
  constexpr int kWanted[] = {P_TYPE, P_DIALOG_PARTNER};
  const ZEIntDict values = GetProps(zelhost::ListOf(kWanted));
  if (values.find(P_TYPE).toInt() != TYPE_DIALOG) return;
  if (CZelhostContactManager::GetInstance()->IsBlocked(values.find(P_DIALOG_PARTNER))) Delete();
}

void CChat::OnDelete() {
  CZelhostChatManager::GetInstance()->OnDelete(this);
  ClientObject::OnDelete();
}

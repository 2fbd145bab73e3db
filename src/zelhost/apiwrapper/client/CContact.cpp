#include "zelhost/apiwrapper/client/CContact.h"

#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"

ZEString CContact::Key() {
  const ZEString identity = GetProp(P_IDENTITY);
  return identity.isEmpty() ? GetProp(P_PHONE_NUMBER) : identity;
}

void CContact::OnChange(int property, const ZEString& value) {
  ClientObject::OnChange(property, value);
  if (!CZelhostContactManager::IsFollowed(property)) return;
  const ZEString key = Key();
  if (!key.isEmpty()) CZelhostContactManager::GetInstance()->UpdateContactInfo(key, property, value, this);
}

void CContact::OnContactGoneOffline() {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceContact)) return;
  root->trace(kTraceContact, ":OnContactGoneOffline() = %s", static_cast<const char*>(GetProp(P_IDENTITY)));
}

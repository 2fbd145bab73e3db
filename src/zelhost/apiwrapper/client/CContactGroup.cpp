#include "zelhost/apiwrapper/client/CContactGroup.h"

#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"

bool CContactGroup::Holds(CZelto& root, TYPE type, Contact* contact) {
  ContactGroup* group = root.GetHardwiredContactGroup(type);
  return group != nullptr && contact->IsMemberOf(group);
}

int CContactGroup::Type() {
  if (m_type <= 0) m_type = GetProp(P_TYPE).toInt();
  return m_type;
}

ZEString CContactGroup::Name() {
  if (Type() != CUSTOM_GROUP) return ZEPMap(CONTACTGROUP_TYPE_MAP).map(Type());
  if (m_customName.isNull()) m_customName = GetProp(P_CUSTOM_NAME);
  return m_customName;
}

void CContactGroup::OnChange(int property, const ZEString& value) {
  ClientObject::OnChange(property, value);
  if (property == P_CUSTOM_NAME) m_customName = value;
}

void CContactGroup::TraceChange(Contact* contact, bool joined) {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceContactGroup)) return;
  const ZEString who = contact == nullptr ? "multiple contacts" : contact->GetProp(Contact::P_IDENTITY);
  root->trace(kTraceContactGroup, ".%s:OnGroupChanged = %s (%s %s) (%s)", static_cast<const char*>(Name()),
              static_cast<const char*>(who), static_cast<const char*>(GetProp(P_3)),
              static_cast<const char*>(GetProp(P_4)), joined ? "ADDED" : "DELETED");
}

void CContactGroup::OnGroupChanged(Contact* contact, bool joined) {
  TraceChange(contact, joined);
  if (contact == nullptr) return;
  if (Type() == CONTACTS_WAITING_MY_AUTHORIZATION) return OnWaitingContact(contact, joined);
  if (Type() == CONTACTS_BLOCKED_BY_ME && !joined) {
    CZeltoManager::SendEvent(CZeltoManager::CONTACT_GROUP_CHANGED, 0);
  }
}

void CContactGroup::OnWaitingContact(Contact* contact, bool joined) {
  if (contact->GetProp(Contact::P_AUTH_REQUEST).toInt() != 0) {
    CZeltoManager::SendEvent(CZeltoManager::CONTACT_AUTHREQUEST_RECEIVED, 0);
    CZelhostContactManager::GetInstance()->AddNewContactToList(contact,
                                                               CZelhostContactManager::kAuthorizationRequest);
  }
  CZelto* root = client::RootOf(*this);
  if (joined || root == nullptr) return;
  if (Holds(*root, ZELTO_BUDDIES, contact) || Holds(*root, ZELTOOUT_BUDDIES, contact)) {
    CZeltoManager::SendEvent(CZeltoManager::CONTACT_AUTHREQUEST_ADDED, static_cast<int>(contact->getOID()));
  } else if (!Holds(*root, CONTACTS_BLOCKED_BY_ME, contact)) {
    CZeltoManager::SendEvent(CZeltoManager::CONTACT_AUTHREQUEST_REMOVED, 0);
  }
}

#include "zelhost/ZelhostContactManager.h"

#include "Common/ContactManager.h"
#include "Common/ZeltoEvent.h"
#include "Common/ZeltoManager.h"

CZelhostContactManager::~CZelhostContactManager() { m_instance.Forget(); }

void CZelhostContactManager::Init() {
  for (const auto type : {CZeltoManager::CONTACT_GROUP_CHANGED, CZeltoManager::CONTACT_AUTHREQUEST_ADDED,
                          CZeltoManager::CONTACT_AUTHREQUEST_REMOVED}) {
    CZeltoManager::SetEventHandler(type, CContactManager::GetInstance());
  }
}

bool CZelhostContactManager::OnEvent(const CZeltoEvent* event) {
  // A change of groups concerns the widget only when it was asked for, and nothing asks yet.
  return event->type != CZeltoManager::CONTACT_GROUP_CHANGED;
}

bool CZelhostContactManager::GetContactAllInfo() { return false; }
void CZelhostContactManager::ClearContactList() {}

int CZelhostContactManager::GetNumOfContacts() { return 0; }
int CZelhostContactManager::GetNumOfContactsInCategory(int) { return 0; }
const char* CZelhostContactManager::GetContactInfo(int, int) { return nullptr; }
const char* CZelhostContactManager::GetContactInfo(const char*, int) { return nullptr; }
const char* CZelhostContactManager::GetContactInfo(const char*, int, int) { return nullptr; }

const char* CZelhostContactManager::GetContactListWithoutCallMember(int, int) { return nullptr; }
const char* CZelhostContactManager::GetContactListWithoutUnauthorizedContacts(int, int) { return nullptr; }
const char* CZelhostContactManager::GetContactListWithoutCallMemberAndUnauthorizedContacts(int, int) {
  return nullptr;
}
int CZelhostContactManager::GetNumOfContactsWithoutUnauthorizedContacts() { return 0; }

bool CZelhostContactManager::Remove(const char*) { return false; }
bool CZelhostContactManager::Block(const char*, bool) { return false; }
bool CZelhostContactManager::Unblock(const char*) { return false; }
bool CZelhostContactManager::IsBlocked(const char*) { return false; }
const char* CZelhostContactManager::GetBlockedContact(int) { return nullptr; }
const char* CZelhostContactManager::GetBlockedContactList() { return nullptr; }
bool CZelhostContactManager::AddContact(const char*, const char*) { return false; }
bool CZelhostContactManager::AddZeltoOutContact(const char*, const char*) { return false; }
bool CZelhostContactManager::Authorize(const char*, bool, bool) { return false; }

int CZelhostContactManager::GetIndexOfContact(const char*) { return -1; }
bool CZelhostContactManager::IsMyBuddy(const char*) { return false; }

bool CZelhostContactManager::SearchNewContact(const char*) { return false; }
bool CZelhostContactManager::SearchContactProfile(const char*) { return false; }
const char* CZelhostContactManager::GetSearchedContactList() { return nullptr; }
const char* CZelhostContactManager::GetProfileInfo(const char*) { return nullptr; }

bool CZelhostContactManager::Rename(const char*, const char*) { return false; }
bool CZelhostContactManager::SetAssignedPhoneNumber(const char*, unsigned int, const char*, const char*) {
  return false;
}
bool CZelhostContactManager::HasCapability(const char*, int, bool) { return false; }
const char* CZelhostContactManager::GetOnlinedContactName() { return nullptr; }
const char* CZelhostContactManager::GetStateChangedContact() { return nullptr; }
int CZelhostContactManager::GetTypeOfIdentity(const char*) {
  constexpr int kUnknownType = 1;
  return kUnknownType;
}

const char* CZelhostContactManager::GetOnlineContacts() { return nullptr; }
bool CZelhostContactManager::SetCallee(const char*) { return false; }
const char* CZelhostContactManager::GetCallee() { return nullptr; }

const char* CZelhostContactManager::FindContactWithEmail(const char*) { return nullptr; }
const char* CZelhostContactManager::GetContactImage(const char*) { return nullptr; }
int CZelhostContactManager::GetContactStatus(const char*) { return -1; }
const char* CZelhostContactManager::GetZeltoNameWithDisplayName(const char*) { return nullptr; }

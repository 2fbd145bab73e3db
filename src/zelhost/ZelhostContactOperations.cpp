// The contact manager's operations that change the runtime's list; there are none yet, and all are refused.
#include "zelhost/ZelhostContactManager.h"

bool CZelhostContactManager::Remove(const char*) { return false; }
bool CZelhostContactManager::Block(const char*, bool) { return false; }
bool CZelhostContactManager::Unblock(const char*) { return false; }
bool CZelhostContactManager::IsBlocked(const char*) { return false; }
const char* CZelhostContactManager::GetBlockedContact(int) { return nullptr; }
const char* CZelhostContactManager::GetBlockedContactList() { return nullptr; }
bool CZelhostContactManager::AddContact(const char*, const char*) { return false; }
bool CZelhostContactManager::AddZeltoOutContact(const char*, const char*) { return false; }
bool CZelhostContactManager::Authorize(const char*, bool, bool) { return false; }

bool CZelhostContactManager::SearchNewContact(const char*) { return false; }
bool CZelhostContactManager::SearchContactProfile(const char*) { return false; }
const char* CZelhostContactManager::GetSearchedContactList() { return nullptr; }
const char* CZelhostContactManager::GetProfileInfo(const char*) { return nullptr; }

bool CZelhostContactManager::Rename(const char*, const char*) { return false; }
bool CZelhostContactManager::SetAssignedPhoneNumber(const char*, unsigned int, const char*, const char*) {
  return false;
}
const char* CZelhostContactManager::FindContactWithEmail(const char*) { return nullptr; }

// What the user and the other people do with the contacts.
#include <ctime>

#include "simulator/runtime/world/ContactProperties.h"
#include "simulator/runtime/world/Contacts.h"

namespace simulator {

void Contacts::SetBuddy(Object& contact, bool buddy) {
  const std::string& identity = IdentityOf(contact);
  if (buddy) {
    if (!m_account.empty()) m_service.AddContact(m_account, identity);
    m_listed.insert(contact.id);
  } else {
    if (!m_account.empty()) m_service.RemoveContact(m_account, identity);
    m_listed.erase(contact.id);
    // Whoever is sent away has been answered.
    if (contact.GetInt(contact::kRequested) != 0) Note(contact, contact::kRequested, "0");
  }
  Settle(contact);
}

void Contacts::SetAuthLevel(Object& contact, int level) {
  // The engine asks for the request when it hears of the groups, so that goes first.
  if (contact.GetInt(contact::kRequested) != 0) Note(contact, contact::kRequested, "0");
  Note(contact, contact::kAuthLevel, std::to_string(level));
  Settle(contact);
}

void Contacts::GiveName(Object& contact, const std::string& name) {
  Note(contact, contact::kGivenName, name);
  ShowName(contact, true);
}

bool Contacts::SetGroupMember(Object& group, Object& contact, bool member) {
  if (!m_groups.SetMember(group, contact, IdentityOf(contact), member)) return false;
  Settle(contact);
  return true;
}

bool Contacts::DeleteGroup(Object& group) {
  const std::vector<unsigned> members = m_groups.Members(group);
  if (!m_groups.Delete(group)) return false;
  for (const unsigned id : members) {
    if (Object* contact = m_world.Find(id)) Settle(*contact);
  }
  return true;
}

void Contacts::SetNumber(Object& contact, int slot, const std::string& label, const std::string& number) {
  Note(contact, contact::NumberOfSlot(slot), number);
  Note(contact, contact::LabelOfSlot(slot), label);
}

void Contacts::SetSpeedDial(Object& contact, const std::string& keys) {
  Object* before = FindBySpeedDial(keys);
  if (before != nullptr && before != &contact) Note(*before, contact::kSpeedDial, "");
  Note(contact, contact::kSpeedDial, keys);
}

bool Contacts::Ask(Object& contact, const std::string& words) {
  if (IsPhone(contact)) return false;
  Note(contact, contact::kAsked, words);
  return true;
}

void Contacts::RefreshProfile(Object& contact) {
  if (IsPhone(contact)) return;
  FillProfile(contact, true);
  ShowName(contact, true);
}

void Contacts::SetPresence(Object& contact, int availability) {
  m_world.SetInt(contact, contact::kPresence, availability);
  Settle(contact);
}

bool Contacts::Request(Object& contact) {
  if (contact.GetInt(contact::kAuthLevel) != contact::kNotAuthorized) return false;
  Note(contact, contact::kRequested, std::to_string(std::time(nullptr)));
  Settle(contact);
  return true;
}

void Contacts::Answer(Object& contact, bool yes) {
  Note(contact, contact::kAnswer, yes ? "1" : "0");
  Settle(contact);
}

void Contacts::TakeIn(const std::vector<std::string>& identities) {
  const std::map<std::string, Notes> notes = m_service.Notes(m_account);
  // The engine takes in some hundred events a second: every group telling each of thousands would keep it
  // busy for minutes.
  const ContactGroups::Quiet quiet(m_groups);
  for (const std::string& identity : identities) {
    Object* contact = Find(identity);
    if (contact == nullptr) continue;
    m_listed.insert(contact->id);
    m_groups.Introduce(*contact);
    const auto noted = notes.find(identity);
    Apply(*contact, true, noted == notes.end() ? Notes() : noted->second);
  }
}

}  // namespace simulator

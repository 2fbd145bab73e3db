// The contacts of the account that is signed in, and everybody else who was asked for.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/ContactGroups.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// Threads: none of its own.
class Contacts {
 public:
  Contacts(World& world, Service& service) : m_groups(world, service), m_world(world), m_service(service) {}

  // Takes list, groups and everything that the account has noted about others from the service; after that
  // changes are stored there. Forget() makes them strangers again, as when the account signs out; what the
  // engine has been told stays until the next account is loaded.
  void Load(std::string_view account);
  void Forget();

  // The contact of an account or phone number, made when it is met first; null for what is neither.
  Object* Find(std::string_view identity);
  // What the contact is shown as; the identity itself when it is nobody's.
  std::string NameOf(std::string_view identity);
  // Whom invented calls, chats and voicemails are with: never nobody, since the sound test is always there.
  std::vector<std::string> Acquaintances();
  // The listed contact that has this as its own or an assigned number, and the property that holds it; null
  // for nobody.
  Object* FindByNumber(std::string_view number, int& property);
  Object* FindBySpeedDial(std::string_view keys);

  ContactGroups& Groups() { return m_groups; }
  // Account name or phone number, whichever the contact has.
  static const std::string& IdentityOf(const Object& contact);
  static bool IsPhone(const Object& contact);
  bool IsListed(const Object& contact) const { return m_listed.count(contact.id) != 0; }
  // Whether the other side lets the account see it. People of the service do so with everybody unless they
  // have answered otherwise.
  bool HasAuthorizedMe(const Object& contact) const;

  // What the user does.
  void SetBuddy(Object& contact, bool buddy);  // takes a contact into the list or out of it
  void SetAuthLevel(Object& contact, int level);
  void GiveName(Object& contact, const std::string& name);  // an empty one takes it back
  // Custom groups only; false for others. A deleted group's object is gone.
  bool SetGroupMember(Object& group, Object& contact, bool member);
  bool DeleteGroup(Object& group);
  void SetNumber(Object& contact, int slot, const std::string& label, const std::string& number);
  void SetSpeedDial(Object& contact, const std::string& keys);
  // Asks to be authorized; false for telephones, which cannot be asked.
  bool Ask(Object& contact, const std::string& words);

  // What the other side does.
  void RefreshProfile(Object& contact);  // shows what the service now tells of it
  void SetPresence(Object& contact, int availability);
  bool Request(Object& contact);           // asks to be authorized; false when it is already, or blocked
  void Answer(Object& contact, bool yes);  // lets the account see it, or no longer

  // Contacts that have come into the list at the service, from elsewhere.
  void TakeIn(const std::vector<std::string>& identities);

 private:
  using Notes = Service::Properties;

  void Apply(Object& contact, bool listed, const Notes& notes);
  void FillProfile(Object& contact, bool tell);
  void Put(Object& contact, int property, Value value, bool tell);
  void Note(Object& contact, int property, const std::string& value);
  void ShowName(Object& contact, bool tell);
  // Availability and groups, from everything else.
  void Settle(Object& contact);

  ContactGroups m_groups;
  World& m_world;
  Service& m_service;
  std::string m_account;
  std::map<std::string, unsigned, std::less<>> m_byIdentity;
  std::set<unsigned> m_listed;
};

}  // namespace simulator

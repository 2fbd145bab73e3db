// The contacts of the account that is signed in, and the groups they are in.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// Threads: none of its own.
class Contacts {
 public:
  Contacts(World& world, Service& service) : m_world(world), m_service(service) {}

  // Fills the groups from the service; after that changes are stored there. Forget() empties them, as when
  // the account signs out, without a word: the engine forgets its list by itself.
  void Load(std::string_view account);
  void Forget();

  // The contact of an account or phone number, made when it is met first; null for what is neither.
  Object* Find(std::string_view identity);
  // The account's group of a hardwired type; null for no type.
  Object* HardwiredGroup(int type);

  std::vector<unsigned> Members(const Object& group) const;
  bool IsMember(const Object& group, unsigned contact) const;

  // Takes a contact into the list or out of it.
  void SetBuddy(Object& contact, bool buddy);
  void SetAuthLevel(Object& contact, int level);

 private:
  void FillProfile(Object& object, std::string_view name);
  void Change(Object& group, Object& contact, bool member);

  World& m_world;
  Service& m_service;
  std::string m_account;
  std::map<std::string, unsigned, std::less<>> m_byIdentity;
  std::map<int, unsigned> m_groups;                  // by type
  std::map<unsigned, std::set<unsigned>> m_members;  // by group
};

}  // namespace simulator

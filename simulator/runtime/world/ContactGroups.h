// Who is in which contact group: the groups that every account has, and those that its user has made.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// What decides in which of the hardwired groups a contact is.
struct Standing {
  bool listed = false;
  bool phone = false;
  bool online = false;
  bool trusting = false;  // has authorized the account
  bool waiting = false;   // asks to be authorized
  int level = 0;          // of authorization, given by the account
  bool grouped = false;   // in a custom group
};

// Every change of a membership is told to the engine.
// Threads: none of its own.
class ContactGroups {
 public:
  ContactGroups(World& world, Service& service) : m_world(world), m_service(service) {}

  // Empties the hardwired groups without a word and deletes the custom ones.
  void Forget();
  // Makes the custom groups of an account; members that are no known contacts are left out.
  void LoadCustom(std::string_view account, const std::map<std::string, unsigned, std::less<>>& contacts);

  // While one lives no memberships are told; at its end each changed group tells once that much has changed.
  class Quiet {
   public:
    explicit Quiet(ContactGroups& groups) : m_groups(groups) { m_groups.m_quiet = true; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet() { m_groups.SpeakAgain(); }

   private:
    ContactGroups& m_groups;
  };

  // Takes the contact into the hardwired groups that its standing opens and out of the others.
  void Place(const Object& contact, const Standing& standing);

  // Tells, quiet or not, that the contact is in the list: so the engine gets to know it.
  void Introduce(const Object& contact);

  // Made when it is asked for first; null for no type of the protocol.
  Object* Hardwired(int type);
  std::vector<unsigned> Members(const Object& group) const;
  bool IsMember(const Object& group, unsigned contact) const;
  bool IsInCustomGroup(const Object& contact) const { return m_groupsOf.count(contact.id) != 0; }

  std::vector<unsigned> Custom() const;
  bool IsCustom(const Object& group) const;
  // Null when nobody is signed in or there are too many groups.
  Object* CreateCustom();
  // These work on custom groups only; false for others.
  bool Rename(Object& group, const std::string& name);
  bool SetMember(Object& group, const Object& contact, std::string_view identity, bool member);
  // The object is gone when this answers true.
  bool Delete(Object& group);

 private:
  struct Group {
    std::int64_t number = 0;  // of a custom group, at the service; 0 for a hardwired one
    std::set<unsigned> members;
  };

  void SpeakAgain();
  Object& New(int type, const std::string& name, std::int64_t number);
  std::int64_t NumberOf(const Object& group) const;
  void Change(Object& group, const Object& contact, bool member);
  void Tell(const Object& group, unsigned contact, bool member);
  void CountCustom(unsigned contact, bool member);

  World& m_world;
  Service& m_service;
  std::string m_account;
  std::map<int, unsigned> m_hardwired;           // ids by type
  std::map<unsigned, Group> m_groups;            // by id
  std::unordered_map<unsigned, int> m_groupsOf;  // contacts: in how many custom groups
  std::set<unsigned> m_changed;                  // groups, while quiet
  bool m_quiet = false;
};

}  // namespace simulator

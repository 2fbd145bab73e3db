// A whole service host whose runtime knows contacts, and somebody who signs in.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/zelhost/Service.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/contacts/ZelhostContactManager.h"

namespace test {

// Tokens of a contact's properties.
inline constexpr char kIdentity[] = "1704";
inline constexpr char kPhone[] = "1092";
inline constexpr char kName[] = "1238";
inline constexpr char kAvailability[] = "1842";
inline constexpr char kGender[] = "1618";
inline constexpr char kPicture[] = "1946";
inline constexpr char kMood[] = "1423";
inline constexpr char kAuthorization[] = "2107";
inline constexpr char kRequested[] = "1616";
// Availabilities.
inline constexpr char kPending[] = "1760";
inline constexpr char kPhoneNumber[] = "1485";
inline constexpr char kOnline[] = "1242";
inline constexpr char kAway[] = "1316";  // 9
// Types of groups, and the objects that stand for them.
inline constexpr char kWaiting[] = "1017";
inline constexpr char kBlocked[] = "1932";
inline constexpr char kAll[] = "2067";
inline constexpr char kBuddies[] = "2012";
inline constexpr char kPhones[] = "1755";
inline constexpr char kStrangers[] = "1078";
inline const std::map<std::string, unsigned> kGroups = {{kWaiting, 308}, {kBlocked, 310}, {kAll, 302},
                                                        {kBuddies, 303}, {kPhones, 304},  {kStrangers, 306}};
inline constexpr char kAvatars[] = "/mtd_rwcommon/moip/engines/Zelto/avatar/";
inline constexpr char kImages[] = "/mtd_rwcommon/moip/engines/Zelto/Resource/";

using Values = std::map<std::string, std::string>;

// A runtime with groups of contacts, and somebody who signs in.
class ContactService : public Service {
 protected:
  ContactService() {
    m_memory.Serve(*m_runtime);
    m_runtime->reply("1825", ScriptedRuntime::pair("0", "5"));  // the account
    m_runtime->on("1538", [](ScriptedRuntime& to, const ScriptedRequest& request) {
      const auto group = kGroups.find(request.arguments.at("1085"));
      to.answer(request,
                group == kGroups.end() ? "" : ScriptedRuntime::pair("0", std::to_string(group->second)));
    });
    m_runtime->on("1249", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, ScriptedRuntime::pair("1271", m_members[request.arguments.at("1137")]));
    });
    m_runtime->on("1283", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      std::string lines;
      const std::string ids = request.arguments.at("1271") + ",";
      for (std::size_t from = 0, end; (end = ids.find(',', from)) != std::string::npos; from = end + 1) {
        for (const auto& [token, value] : m_people[ids.substr(from, end - from)]) {
          lines += ScriptedRuntime::pair(token, value);
        }
        lines += "\nb ";
      }
      to.answer(request, lines);
    });
    m_runtime->on("1726", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, ScriptedRuntime::pair("0", IdOf(request.arguments.at("1971"))));
    });
    m_runtime->on("1649", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request,
                ScriptedRuntime::pair("0", std::to_string(m_memberOf.count(request.arguments.at("1102")))));
    });
    for (const auto& [token, id] : kGroups) m_memory.SetProperty(id, "1931", token);
  }
  void SetUp() override {
    ASSERT_TRUE(IsLoaded());
    ASSERT_TRUE(CZelhostAccountManager::GetInstance()->Login("ann", "secret", true));
  }

  // Before the list is built: a contact that the runtime knows, and where it is listed.
  void Know(unsigned id, const Values& values) {
    m_people[std::to_string(id)] = values;
    for (const auto& [token, value] : values) m_memory.SetProperty(id, token, value);
  }
  void Add(const char* group, unsigned id, const Values& values) {
    Know(id, values);
    std::string& members = m_members[std::to_string(kGroups.at(group))];
    members += (members.empty() ? "" : ",") + std::to_string(id);
  }
  void AddThree() {
    Add(kWaiting, 41, {{kIdentity, "zoe"}, {kName, "Zoe"}, {kAvailability, kPending}});
    Add(kAll, 42,
        {{kIdentity, "max"}, {kName, "Max"}, {kAvailability, kOnline}, {kGender, "2"}, {kMood, "hi"}});
    Add(kAll, 43, {{kPhone, "+49123"}, {kAvailability, kPhoneNumber}});
  }
  void Build() { ASSERT_TRUE(Contacts().GetContactAllInfo()); }

  void Change(unsigned id, const char* token, const std::string& value) {
    m_runtime->sendEvent("1799", "2073",
                         ScriptedRuntime::pair("1137", std::to_string(id)) +
                             ScriptedRuntime::pair("1551", token) + ScriptedRuntime::pair("1667", value));
  }
  void ChangeGroup(const char* group, unsigned contact, bool joined) {
    m_runtime->sendEvent("1221", "1762",
                         ScriptedRuntime::pair("1137", std::to_string(kGroups.at(group))) +
                             ScriptedRuntime::pair("1396", std::to_string(contact)) +
                             ScriptedRuntime::pair("1293", joined ? "1" : "0"));
  }

  // "0" for who is unknown.
  std::string IdOf(const std::string& name) {
    for (const auto& [id, values] : m_people) {
      for (const char* token : {kIdentity, kPhone}) {
        const auto value = values.find(token);
        if (value != values.end() && value->second == name) return id;
      }
    }
    return "0";
  }

  CZelhostContactManager& Contacts() { return *CZelhostContactManager::GetInstance(); }
  // The identities (or phone numbers) in the list's order.
  std::vector<std::string> Listed() {
    std::vector<std::string> names;
    for (int i = 0; i < Contacts().GetNumOfContacts(); ++i) {
      const std::string identity = Text(Contacts().GetContactInfo(i, 1));
      names.push_back(identity.empty() || identity == "null" ? Text(Contacts().GetContactInfo(i, 2))
                                                             : identity);
    }
    return names;
  }
  std::vector<int> Counts() {
    std::vector<int> counts;
    for (int category = 0; category < 6; ++category) {
      counts.push_back(Contacts().GetNumOfContactsInCategory(category));
    }
    return counts;
  }
  static std::string Text(const char* text) { return text == nullptr ? "null" : text; }
  // What stands in each field of the records.
  static std::vector<std::string> Fields(const char* records) {
    std::vector<std::string> fields;
    const std::string text = Text(records);
    for (std::size_t from = 0, end; (end = text.find("\x03\x02", from)) != std::string::npos;
         from = end + 2) {
      fields.push_back(text.substr(from, end - from));
    }
    return fields;
  }
  static std::vector<std::string> Identities(const char* records) {
    std::vector<std::string> identities;
    const std::vector<std::string> fields = Fields(records);
    for (std::size_t i = 0; i < fields.size(); i += 7) identities.push_back(fields[i] + fields[i + 1]);
    return identities;
  }

  std::map<std::string, Values> m_people;        // by object
  std::map<std::string, std::string> m_members;  // by group
  std::set<std::string> m_memberOf;              // groups of whoever asks
};

}  // namespace test

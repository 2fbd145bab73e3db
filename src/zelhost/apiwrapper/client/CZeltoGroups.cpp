// The root object's work on contact groups and contact searches.
#include <vector>

#include "Common/Log.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/ZEReply.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

constexpr int kFirstHardwiredType = 1;
constexpr int kLastHardwiredType = 12;
constexpr int kShownTypes[] = {2, 9, 8};
constexpr int kSearchLimit = 50;

// A printed failure, told from a success by nobody but the reader of the log.
int Complain(const char* what) {
  zelto::Print("%s", what);
  return 1;
}

const char* YesOrNo(bool yes) { return yes ? "YES" : "NO"; }

ContactGroup::TYPE TypeByToken(const ZEString& token) {
  return static_cast<ContactGroup::TYPE>(ZEPMap(CONTACTGROUP_TYPE_MAP).map(token));
}

}  // namespace

void CZelto::HandleContactGroups(PARAM mode) {
  for (int type = kFirstHardwiredType; type <= kLastHardwiredType; ++type) {
    HandleContactGroup(GetHardwiredContactGroup(static_cast<ContactGroup::TYPE>(type)), mode);
  }
  const ZEPtrVector groups = GetCustomContactGroups();
  for (unsigned i = 0; i < groups.size(); ++i) HandleContactGroup(zeObjectAt<ContactGroup>(groups, i), mode);
}

void CZelto::HandleSomeContactGroups() {
  for (const int type : kShownTypes) {
    HandleContactGroup(GetHardwiredContactGroup(static_cast<ContactGroup::TYPE>(type)), kGroupsTrace);
  }
}

void CZelto::HandleContactGroup(ContactGroup* group, PARAM mode) {
  if (group == nullptr) return;
  const ZEPtrVector contacts = group->GetContacts();
  constexpr int kWanted[] = {Contact::P_DISPLAY_NAME, Contact::P_IDENTITY, Contact::P_PHONE_NUMBER,
                             Contact::P_AVAILABILITY};
  GetMultipleObjectsProps(contacts, zelhost::ListOf(kWanted));
  if (mode == kGroupsTrace) TraceGroup(group, contacts);
  if (mode == kGroupsDelete) DeleteGroup(group, contacts);
}

void CZelto::TraceGroup(ContactGroup* group, const ZEPtrVector& contacts) const {
  if (!IsTraced(kTraceContactGroup)) return;
  const ZEString type = ZEPMap(CONTACTGROUP_TYPE_MAP).map(group->GetProp(ContactGroup::P_TYPE).toInt());
  trace(kTraceContactGroup, ":%s,%s", static_cast<const char*>(type),
        static_cast<const char*>(group->GetProp(ContactGroup::P_CUSTOM_NAME)));
  trace(kTraceContactGroup, "CAN_ADD_CONTACT:%s", YesOrNo(group->CanAddContact(nullptr)));
  trace(kTraceContactGroup, "CAN_REMOVE_CONTACT:%s", YesOrNo(group->CanRemoveContact()));
  for (unsigned i = 0; i < contacts.size(); ++i) {
    const auto* contact = zeObjectAt<Contact>(contacts, i);
    if (contact == nullptr) continue;
    const ZEIntDict& values = contact->propCache;
    const ZEString availability =
        ZEPMap(CONTACT_AVAILABILITY_MAP).map(values.find(Contact::P_AVAILABILITY).toInt());
    trace(kTraceContactGroup, "%s,%s,%s,%s,%s", static_cast<const char*>(type),
          static_cast<const char*>(values.find(Contact::P_DISPLAY_NAME)),
          static_cast<const char*>(values.find(Contact::P_IDENTITY)),
          static_cast<const char*>(values.find(Contact::P_PHONE_NUMBER)),
          static_cast<const char*>(availability));
  }
}

// By id: the runtime may have listed a contact twice.
void CZelto::DeleteGroup(ContactGroup* group, const ZEPtrVector& contacts) {
  std::vector<unsigned> ids;
  for (unsigned i = 0; i < contacts.size(); ++i) {
    if (contacts[i] != nullptr) ids.push_back(static_cast<Contact*>(contacts[i])->getOID());
  }
  for (const unsigned id : ids) delete findObject<Contact>(id);
  delete group;
}

ContactGroup* CZelto::FindByName(const ZEString& name) {
  const ContactGroup::TYPE type = TypeByToken(name);
  if (type > 0) return GetHardwiredContactGroup(type);
  const ZEPtrVector groups = GetCustomContactGroups();
  for (unsigned i = 0; i < groups.size(); ++i) {
    auto* group = zeObjectAt<ContactGroup>(groups, i);
    if (group != nullptr && group->GetProp(ContactGroup::P_CUSTOM_NAME) == name) return group;
  }
  return nullptr;
}

int CZelto::AddRemoveContact(const ZEString& groupName, const ZEString& identity, bool custom, bool add) {
  const ContactGroup::TYPE type = TypeByToken(groupName);
  ContactGroup* group = nullptr;
  if (custom) {
    group = FindByName(groupName);
  } else if (type > 0) {
    group = GetHardwiredContactGroup(type);
  }
  if (group == nullptr) return Complain("bad group");
  Contact* contact = GetContact(identity);
  if (contact == nullptr) return Complain("bad contact");
  if (add) return group->AddContact(contact) ? 1 : Complain("cannot add");
  return group->RemoveContact(contact) ? 1 : Complain("cannot remove");
}

bool CZelto::StartContactSearch(const ZEString& text, CContactSearch::SEARCH_TYPE type) {
  ContactSearch* search = nullptr;
  if (type == CContactSearch::kSearchContacts) search = NewBasicSearch(text, false, kSearchLimit);
  if (type == CContactSearch::kSearchProfile) search = NewIdentitySearch(text, false, kSearchLimit);
  auto* started = dynamic_cast<CContactSearch*>(search);
  if (started == nullptr) return false;
  started->SetSearchType(type);
  return true;
}

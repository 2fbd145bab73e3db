#include "zelhost/history/HistoryEntries.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "Common/Log.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/CallMember.h"
#include "apiwrapper/Voicemail.h"
#include "apiwrapper/ZEReply.h"
#include "apiwrapper/Zelto.h"
#include "zelhost/PropertyList.h"

namespace zelhost {
namespace {

using Info = CHistoryInfo;

// What becomes of an object's property.
struct Source {
  int property;
  Info::KEY key;
  bool number;  // reads "0" when the runtime withholds it
};

// In the order of the request.
// clang-format off
constexpr Source kCallSources[] = {
    {Call::P_START_TIME, Info::KEY_TIME,       true},
    {Call::P_UNSEEN,     Info::KEY_UNSEEN,     true},
    {Call::P_INCOMING,   Info::KEY_INCOMING,   true},
    {Call::P_CONFERENCE, Info::KEY_CONFERENCE, true},
};
constexpr int kMemberProperties[] = {CallMember::P_IDENTITY, CallMember::P_DISPLAY_NAME, CallMember::P_TYPE,
                                     CallMember::P_STATUS};
constexpr int kVoicemailProperties[] = {Voicemail::P_TYPE, Voicemail::P_STATUS, Voicemail::P_PARTNER_IDENTITY,
                                        Voicemail::P_PARTNER_DISPLAY_NAME, Voicemail::P_TIMESTAMP,
                                        Voicemail::P_DURATION};
constexpr Source kVoicemailSources[] = {
    {Voicemail::P_PARTNER_IDENTITY,     Info::KEY_IDENTITY,     false},
    {Voicemail::P_PARTNER_DISPLAY_NAME, Info::KEY_DISPLAY_NAME, false},
    {Voicemail::P_TIMESTAMP,            Info::KEY_TIME,         true},
    {Voicemail::P_DURATION,             Info::KEY_DURATION,     true},
};
// clang-format on

// Values of enumerated properties.
constexpr int kMemberPhoneNumber[] = {3, 4};
constexpr int kVoicemailIncoming = 1;
constexpr int kVoicemailUnplayed[] = {1, 3};

template <std::size_t kCount>
bool IsOneOf(const int (&values)[kCount], int value) {
  return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

const ZEString& Flag(bool value) {
  static const ZEString yes("1");
  static const ZEString no("0");
  return value ? yes : no;
}

ZEString Value(const ZEIntDict& values, int property, bool number) {
  static const ZEString empty("");
  ZEString value = values.find(property);
  if (number && value.isEmpty()) return Flag(false);
  return value.isNull() ? empty : value;
}

template <std::size_t kCount>
void Take(CHistoryInfo& entry, const Source (&sources)[kCount], const ZEIntDict& values, const char* kind) {
  for (const Source& source : sources) {
    entry.Set(source.key, Value(values, source.property, source.number));
    ZELTO_INFO("%s History: prop[%d] = %s", kind, source.property,
               static_cast<const char*>(entry.Get(source.key)));
  }
}

// The first member's identity, then those of the others of a conference.
ZEString MemberNames(const CallMembers& members, bool conference) {
  const ZEString first = Value(members.front(), CallMember::P_IDENTITY, false);
  if (!conference || members.size() < 2) return first;
  std::string names(first.view());
  for (auto member = members.begin() + 1; member != members.end(); ++member) {
    const ZEString identity = member->find(CallMember::P_IDENTITY);
    if (!identity.isEmpty()) names.append(", ").append(identity.view());
  }
  return ZEString(std::string_view(names));
}

// The objects in the slots that are filled.
template <class Object>
std::vector<Object*> Present(const ZEPtrVector& slots, const char* missing) {
  std::vector<Object*> objects;
  objects.reserve(slots.size());
  for (unsigned i = 0; i < slots.size(); ++i) {
    if (auto* object = zeObjectAt<Object>(slots, i)) {
      objects.push_back(object);
    } else {
      ZELTO_DEBUG("%s", missing);
    }
  }
  return objects;
}

// A call and its members among those of all calls.
struct FoundCall {
  Call* call;
  ZEIntDict properties;
  std::size_t firstMember;
  std::size_t members;
};

ZEPtrVector SlotsOf(const std::vector<CallMember*>& members) {
  ZEPtrVector slots(static_cast<unsigned int>(members.size()));
  for (unsigned i = 0; i < slots.size(); ++i) slots[i] = static_cast<ZEObject*>(members[i]);
  return slots;
}

CallMembers PropertiesOf(const FoundCall& found, const std::vector<CallMember*>& members) {
  CallMembers properties;
  properties.reserve(found.members);
  for (std::size_t i = 0; i < found.members; ++i) {
    properties.push_back(TakeValues(*members[found.firstMember + i]));
  }
  return properties;
}

}  // namespace

bool SetCallHistoryProperty(CHistoryInfo& entry, const ZEIntDict& call, const CallMembers& members) {
  Take(entry, kCallSources, call, "Call");
  if (members.empty()) {
    ZELTO_DEBUG("Where is callmember ????");
    return false;
  }
  if (entry.Get(Info::KEY_UNSEEN) != "0") entry.SetCategory(Info::CATEGORY_UNSEEN);
  const ZEIntDict& first = members.front();
  const bool incoming = entry.Get(Info::KEY_INCOMING) == "1";
  entry.Set(Info::KEY_IDENTITY, Value(first, CallMember::P_IDENTITY, false));
  entry.Set(Info::KEY_DISPLAY_NAME, Value(first, CallMember::P_DISPLAY_NAME, false));
  entry.Set(Info::KEY_PHONE, Flag(IsOneOf(kMemberPhoneNumber, first.find(CallMember::P_TYPE).toInt())));
  entry.Set(Info::KEY_UNANSWERED,
            Flag(incoming && first.find(CallMember::P_STATUS).toInt() == CallMember::STATUS_MISSED));
  entry.Set(Info::KEY_DURATION, Flag(false));
  entry.Set(Info::KEY_MEMBERS, MemberNames(members, entry.Get(Info::KEY_CONFERENCE).toInt() >= 1));
  return true;
}

bool SetVoiceMailHistoryProperty(CHistoryInfo& entry, const ZEIntDict& voicemail) {
  if (voicemail.find(Voicemail::P_TYPE).toInt() != kVoicemailIncoming) return false;
  Take(entry, kVoicemailSources, voicemail, "Voicemail");
  const bool unseen = IsOneOf(kVoicemailUnplayed, voicemail.find(Voicemail::P_STATUS).toInt());
  if (unseen) entry.SetCategory(Info::CATEGORY_UNSEEN);
  entry.Set(Info::KEY_UNSEEN, Flag(unseen));
  entry.Set(Info::KEY_INCOMING, Flag(true));
  for (const Info::KEY key : {Info::KEY_CONFERENCE, Info::KEY_PHONE, Info::KEY_UNANSWERED}) {
    entry.Set(key, Flag(false));
  }
  entry.Set(Info::KEY_MEMBERS, entry.Get(Info::KEY_IDENTITY));
  return true;
}

HistoryEntries ReadCalls(Zelto& root, const ZEPtrVector& slots) {
  ZEIntList callProperties;
  for (const Source& source : kCallSources) callProperties.append(source.property);
  root.GetMultipleObjectsProps(slots, callProperties);
  std::vector<FoundCall> calls;
  std::vector<CallMember*> members;
  for (Call* call : Present<Call>(slots, "call object is NULL")) {
    const auto own = Present<CallMember>(call->GetMembers(), "call member is NULL");
    calls.push_back({call, TakeValues(*call), members.size(), own.size()});
    members.insert(members.end(), own.begin(), own.end());
  }
  root.GetMultipleObjectsProps(SlotsOf(members), ListOf(kMemberProperties));

  HistoryEntries entries;
  entries.reserve(calls.size());
  for (const FoundCall& found : calls) {
    auto entry = std::make_unique<CHistoryInfo>(found.call);
    if (SetCallHistoryProperty(*entry, found.properties, PropertiesOf(found, members))) {
      entries.push_back(std::move(entry));
    }
  }
  return entries;
}

HistoryEntries ReadVoicemails(Zelto& root, const ZEPtrVector& slots) {
  root.GetMultipleObjectsProps(slots, ListOf(kVoicemailProperties));
  HistoryEntries entries;
  entries.reserve(slots.size());
  for (Voicemail* voicemail : Present<Voicemail>(slots, "voicecall object is NULL")) {
    auto entry = std::make_unique<CHistoryInfo>(voicemail);
    if (SetVoiceMailHistoryProperty(*entry, TakeValues(*voicemail))) entries.push_back(std::move(entry));
  }
  return entries;
}

std::unique_ptr<CHistoryInfo> ReadVoicemail(Voicemail* voicemail) {
  auto entry = std::make_unique<CHistoryInfo>(voicemail);
  if (!SetVoiceMailHistoryProperty(*entry, voicemail->GetProps(ListOf(kVoicemailProperties)))) return nullptr;
  return entry;
}

}  // namespace zelhost

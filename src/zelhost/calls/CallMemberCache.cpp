#include "zelhost/calls/CallMemberCache.h"

#include <algorithm>

#include "Common/Log.h"
#include "apiwrapper/CallMember.h"
#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CCall.h"

namespace {

constexpr int kCachedProperties[] = {CallMember::P_IDENTITY, CallMember::P_DISPLAY_NAME, CallMember::P_TYPE,
                                     CallMember::P_STATUS};

}  // namespace

void CallMemberCache::Rebuild(CCall& call) {
  const ZEPtrVector members = call.GetMembers();
  ZELTO_DEBUG("size of callmember = %d\n", static_cast<int>(members.size()));
  const ZEIntList properties = zelhost::ListOf(kCachedProperties);
  Clear();
  for (unsigned i = 0; i < members.size(); ++i) {
    auto* member = static_cast<CallMember*>(members[i]);
    if (member != nullptr) m_entries.push_back({member, member->GetProps(properties)});
  }
}

ZEString CallMemberCache::Value(int index, int property) const {
  return Has(index) ? m_entries[static_cast<std::size_t>(index)].properties.find(property) : ZEString();
}

int CallMemberCache::IndexOf(const void* member) const {
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [member](const Entry& entry) { return entry.member == member; });
  return member == nullptr || found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

void CallMemberCache::Store(int index, int property, const ZEString& value) {
  if (Has(index)) m_entries[static_cast<std::size_t>(index)].properties.insert(property, value);
}

void CallMemberCache::Update(const void* member, int property, const ZEString& value) {
  for (Entry& entry : m_entries) {
    if (member != nullptr && entry.member == member) entry.properties.insert(property, value);
  }
}

void CallMemberCache::Forget(const void* member) {
  for (Entry& entry : m_entries) {
    if (entry.member == member) entry.member = nullptr;
  }
}

#include "simulator/runtime/world/PastCalls.h"

#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/CallProperties.h"
#include "simulator/runtime/world/ObjectLists.h"

namespace simulator {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;
constexpr int kInventedMissed = 3;

}  // namespace

bool PastCalls::IsReady() {
  const std::string& account = m_signIn.Name();
  if (account.empty()) return false;
  if (account == m_account) return true;
  Forget();
  for (CallRecord& record : m_service.PastCalls(account)) Insert(std::move(record));
  m_account = account;
  return true;
}

void PastCalls::Forget() {
  m_account.clear();
  for (const auto& [id, call] : m_calls) {
    for (const unsigned member : call.members) m_world.Remove(member);
    m_world.Remove(id);
  }
  m_calls.clear();
  m_lived.clear();
}

unsigned PastCalls::Insert(CallRecord record) {
  if (m_world.IsFull()) return 0;
  Object& object = m_world.Create(CALL_CLASS);
  m_world.PutInt(object, call::kStartTime, record.started);
  m_world.PutInt(object, call::kUnseen, record.unseen);
  if (!record.parties.empty()) m_world.Put(object, call::kPartner, record.parties.front().identity);
  m_world.PutInt(object, call::kDuration, record.duration);
  m_world.PutInt(object, call::kActiveMembers, 0);
  m_world.PutInt(object, call::kOngoing, 0);
  m_world.PutInt(object, call::kIncoming, record.incoming);
  m_world.PutInt(object, call::kConference, record.conference);
  m_calls[object.id].record = std::move(record);
  return object.id;
}

PastCalls::Call* PastCalls::Of(unsigned id) {
  if (!IsReady()) return nullptr;
  const auto lived = m_lived.find(id);
  const auto found = m_calls.find(lived == m_lived.end() ? id : lived->second);
  return found == m_calls.end() ? nullptr : &found->second;
}

void PastCalls::Keep(const CallCourse& course) {
  const Object* live = m_world.Find(course.Id());
  if (live == nullptr || course.Members().empty() || !IsReady()) return;
  CallRecord record;
  record.started = live->GetInt(call::kStartTime);
  record.duration = live->GetInt(call::kDuration);
  record.incoming = live->GetInt(call::kIncoming) != 0;
  record.conference = live->GetInt(call::kConference) != 0;
  record.unseen = live->GetInt(call::kUnseen) != 0;
  for (const auto& member : course.Members()) {
    const Object* object = m_world.Find(member->Id());
    if (object == nullptr) continue;
    record.parties.push_back({member->Identity(), object->GetText(member::kDisplayName),
                              object->GetInt(member::kType), member->Status()});
  }
  record.number = m_service.AddPastCall(m_account, record);
  m_lived[course.Id()] = Insert(std::move(record));
}

std::vector<unsigned> PastCalls::All() {
  if (!IsReady()) return {};
  return NewestFirst(m_calls, [](const Call& call) { return call.record.started; });
}

std::vector<unsigned> PastCalls::UnseenMissed() {
  return Only(All(), [this](unsigned id) { return m_calls[id].record.unseen; });
}

std::vector<unsigned> PastCalls::Members(unsigned id) {
  Call* call = Of(id);
  if (call == nullptr) return {};
  if (!call->members.empty() || m_world.IsFull()) return call->members;
  for (const CallPartyRecord& party : call->record.parties) {
    Object& object = m_world.Create(CALLMEMBER_CLASS);
    m_world.Put(object, member::kIdentity, party.identity);
    m_world.Put(object, member::kDisplayName, party.name);
    m_world.PutInt(object, member::kType, party.type);
    m_world.PutInt(object, member::kStatus, party.status);
    m_world.PutInt(object, member::kDuration, call->record.duration);
    call->members.push_back(object.id);
  }
  return call->members;
}

bool PastCalls::SetUnseen(unsigned id, bool unseen) {
  Call* call = Of(id);
  if (call == nullptr) return false;
  if (call->record.unseen == unseen) return true;
  m_service.SetPastCallUnseen(call->record.number, unseen);
  call->record.unseen = unseen;
  const auto lived = m_lived.find(id);
  Object* object = m_world.Find(lived == m_lived.end() ? id : lived->second);
  if (object != nullptr) m_world.SetInt(*object, call::kUnseen, unseen);
  return true;
}

// The members go with their call.
bool PastCalls::Delete(unsigned id) {
  if (!IsReady()) return false;
  const auto found = m_calls.find(id);
  if (found == m_calls.end()) return false;
  m_service.DeletePastCall(found->second.record.number);
  for (const unsigned member : found->second.members) m_world.Delete(member);
  m_calls.erase(found);
  m_world.Delete(id);
  return true;
}

void PastCalls::Clear(int kind, const std::string& identity) {
  m_service.Together([&] {
    for (const unsigned id : All()) {
      const CallRecord& record = m_calls[id].record;
      const bool missed =
          record.incoming && !record.parties.empty() && record.parties.front().status == member::kMissed;
      const bool ofKind = kind == kAll || (kind == kMissed && missed) ||
                          (kind == kIncoming && record.incoming) || (kind == kOutgoing && !record.incoming);
      const bool wanted =
          identity.empty() || (!record.parties.empty() && record.parties.front().identity == identity);
      if (ofKind && wanted) Delete(id);
    }
  });
}

bool PastCalls::Invent(int count, std::int64_t now) {
  if (!IsReady() || !m_world.HasRoomFor(count)) return false;
  const std::vector<std::string> people = m_contacts.Acquaintances();
  m_service.Together([&] {
    for (int i = 0; i < count; ++i) {
      const std::string& who = people[static_cast<std::size_t>(i) % people.size()];
      CallRecord record;
      record.started = now - kSecondsPerHour * (i + 1);
      record.incoming = i % 2 == 0;
      const bool missed = record.incoming && i % 4 == 0;
      record.unseen = missed && i < 4 * kInventedMissed;
      record.duration = missed ? 0 : 10 + i % 600;
      record.parties = {{who, m_contacts.NameOf(who), static_cast<int>(TypeOfIdentity(who)),
                         missed ? int{member::kMissed} : int{member::kFinished}}};
      record.number = m_service.AddPastCall(m_account, record);
      Insert(std::move(record));
    }
  });
  return true;
}

}  // namespace simulator

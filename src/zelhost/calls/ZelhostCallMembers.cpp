// What the widget asks about the call and its members.
#include "Common/ContactManager.h"
#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/contacts/ZelhostContactManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;

namespace {

constexpr int kQuietest = 3;  // the voice level above which somebody speaks

// What the contact list is asked for.
constexpr int kContactOnlineState = 20;
constexpr int kContactPicture = 32;

constexpr int kEmergencyNumber = 4;  // type of an identity
constexpr int kNormalized = 1;

// Statuses of a member with whom the call is up, a voicemail's greeting and recording included.
constexpr int kUpStatuses[] = {8, 9, 10, 17, 18};

const char* Flag(bool set) { return set ? "1" : "0"; }

const char* Present(const char* text) { return text != nullptr ? text : ""; }

}  // namespace

const char* CZelhostCallManager::Result(std::string_view text) {
  m_ReturnStr = text;
  return m_ReturnStr.c_str();
}

CCall* CZelhostCallManager::CallInList() { return g_lpZelto != nullptr ? g_lpZelto->m_calls.At(0) : nullptr; }

void CZelhostCallManager::SetCallMembers(CCall* call) {
  ServiceHostLock lock("SetCallMembers");
  if (call != m_pCall) m_forwardAlarm.Stop();  // it would forward the next call
  m_pCall = call;
  if (call != nullptr) {
    m_members.Rebuild(*call);
  } else {
    m_members.Clear();
  }
}

void CZelhostCallManager::ForgetCallMember(const void* member) {
  ServiceHostLock lock("ForgetCallMember");
  if (CZelhostCallManager* manager = m_instance.Existing()) manager->m_members.Forget(member);
}

void CZelhostCallManager::UpdateCallMemberProperty(void* member, int property, const ZEString& value) {
  ServiceHostLock lock("UpdateCallMemberProperty");
  m_members.Update(member, property, value);
}

void CZelhostCallManager::UpdateSpeakingCallMember(void* member, int level) {
  ServiceHostLock lock("UpdateSpeakingCallMember");
  const int index = m_members.IndexOf(member);
  const bool speaking = level > kQuietest;
  if (index < 0 || (index == m_state.speakingMember && speaking == m_state.speaking)) return;
  m_state.speakingMember = index;
  m_state.speaking = speaking;
  CZeltoManager::SendEvent(CZeltoManager::CALLMEMBER_SPEAKING + index, speaking ? 1 : 0);
}

// --- The call.

bool CZelhostCallManager::IsInCall() {
  ServiceHostLock lock("IsInCall");
  if (CallInList() == nullptr) {
    ZELTO_DEBUG("no call");
    return false;
  }
  const int status = m_members.Value(0, CallMember::P_STATUS).toInt();
  for (const int up : kUpStatuses) {
    if (status != up) continue;
    ZELTO_DEBUG("current status = %d(is in progress)\n", status);
    return true;
  }
  ZELTO_DEBUG("current status = %d(is not in progress)\n", status);
  return false;
}

bool CZelhostCallManager::IsInCalling() {
  ServiceHostLock lock("IsInCalling");
  if (g_lpZelto == nullptr) return false;
  if (m_pCall != nullptr || CallInList() != nullptr) return true;
  ZELTO_DEBUG("no calling status");
  return false;
}

bool CZelhostCallManager::IsCallInProgress() {
  ServiceHostLock lock("IsCallInProgress");
  return m_state.inProgress;
}

int CZelhostCallManager::PendingAnswer() {
  ServiceHostLock lock("PendingAnswer");
  return m_state.pendingAnswer;
}

int CZelhostCallManager::GetCallType() {
  ServiceHostLock lock("GetCallType");
  return m_state.type;
}

bool CZelhostCallManager::IsInHold() {
  ServiceHostLock lock("IsInHold");
  return m_state.onHold;
}

bool CZelhostCallManager::IsSendingVideo() {
  ServiceHostLock lock("IsSendingVideo");
  return m_state.sendingVideo;
}

bool CZelhostCallManager::IsReceivingVideo() {
  ServiceHostLock lock("IsReceivingVideo");
  return m_state.receivingVideo;
}

bool CZelhostCallManager::IsCallMemberVideoAvailable() {
  ServiceHostLock lock("IsCallMemberVideoAvailable");
  return m_state.memberVideoAvailable;
}

bool CZelhostCallManager::IsMissed() {
  ServiceHostLock lock("IsMissed");
  return m_missed;
}

void CZelhostCallManager::SetMissed(bool missed) {
  ServiceHostLock lock("SetMissed");
  m_missed = missed;
}

void CZelhostCallManager::AddToMissedCallList() {
  ServiceHostLock lock("AddToMissedCallList");
  if (!HasCallToWorkWith()) return;
  m_missedCalls.push_back({std::string(m_pCall->GetProp(Call::P_START_TIME).view()),
                           std::string(m_pCall->GetProp(Call::P_PARTNER_IDENTITY).view())});
}

bool CZelhostCallManager::IsConference() {
  ServiceHostLock lock("IsConference");
  return HasCallToWorkWith() && m_pCall->GetProp(Call::P_CONFERENCE).toInt() != 0;
}

bool CZelhostCallManager::IsPSTNCall() {
  ServiceHostLock lock("IsPSTNCall");
  return zelto::DecimalValue(m_members.Value(0, CallMember::P_TYPE)) == CallMember::TYPE_PHONE_NUMBER;
}

bool CZelhostCallManager::IsEmergencyCall(const char* identity) {
  ServiceHostLock lock("IsEmergencyCall");
  return g_lpZelto != nullptr && g_lpZelto->GetTypeByIdentity(identity) == kEmergencyNumber;
}

const char* CZelhostCallManager::NormalizeIdentity(const char* identity) {
  ServiceHostLock lock("NormalizeIdentity");
  if (g_lpZelto == nullptr) return nullptr;
  ZEString normalized;
  const int code = g_lpZelto->NormalizeIdentity(identity, false, normalized);
  return Result(code == kNormalized ? normalized.view() : std::string_view());
}

const char* CZelhostCallManager::GetCallInfo() {
  ServiceHostLock lock("GetCallInfo");
  if (!HasCallToWorkWith()) return nullptr;
  const ZEString identity = m_members.Value(0, CallMember::P_IDENTITY);
  std::string record;
  zelto::RecordWriter(record)
      .Field(Flag(IsConference()))
      .Field(Flag(m_state.type == kVideoCall))
      .Field(m_members.Value(0, CallMember::P_TYPE).view())
      .Field(identity.view())
      .Field(m_members.Value(0, CallMember::P_DISPLAY_NAME).view())
      .Field(Present(CContactManager::GetInstance()->GetContactInfo(identity, kContactPicture)))
      .Field(Flag(m_state.sendingVideo))
      .Field(Flag(m_state.receivingVideo))
      .Field(Flag(MayShowVideoFrom(identity)));
  const char* result = Result(record);
  ZELTO_DEBUG("2)m_ReturnStr  >>> %s\n", result);
  return result;
}

bool CZelhostCallManager::MayShowVideoFrom(const ZEString& identity) {
  const ZEString policy = CZelhostLocalSetting::GetStrValue(kSettingVideoReceivePolicy);
  if (policy == "contacts") return CZelhostContactManager::GetInstance()->IsMyBuddy(identity);
  return policy != "noone";
}

// --- Its members.

int CZelhostCallManager::GetNumOfCallMembers() {
  ServiceHostLock lock("GetNumOfCallMembers");
  return m_members.Count();
}

const char* CZelhostCallManager::GetCallMemberInfo(int index, int property) {
  ServiceHostLock lock("GetCallMemberInfo");
  if (g_lpZelto == nullptr || !m_members.Has(index)) return nullptr;
  const char* text = Result(m_members.Value(index, property).view());
  ZELTO_DEBUG("CallMember[%d] : prop[%d] = %s\n", index, property, text);
  return text;
}
const char* CZelhostCallManager::GetCallMemberInfo(const char*, int) { return nullptr; }

const char* CZelhostCallManager::GetCallMemberIdentity(int index) {
  return GetCallMemberInfo(index, CallMember::P_IDENTITY);
}
const char* CZelhostCallManager::GetCallMemberDisplayName(int index) {
  return GetCallMemberInfo(index, CallMember::P_DISPLAY_NAME);
}
const char* CZelhostCallManager::GetCallMemberStatus(int index) {
  return GetCallMemberInfo(index, CallMember::P_STATUS);
}
const char* CZelhostCallManager::GetCallMemberAvatarPath(int index) {
  return MemberContactInfo(index, kContactPicture);
}
const char* CZelhostCallManager::GetCallMemberOnlineState(int index) {
  return MemberContactInfo(index, kContactOnlineState);
}

const char* CZelhostCallManager::MemberContactInfo(int index, int property) {
  ServiceHostLock lock("MemberContactInfo");
  if (g_lpZelto == nullptr || !m_members.Has(index)) return nullptr;
  const char* text = CContactManager::GetInstance()->GetContactInfo(
      m_members.Value(index, CallMember::P_IDENTITY), property);
  return text != nullptr ? Result(text) : nullptr;
}

const char* CZelhostCallManager::GetCallMemberName(int index) {
  ServiceHostLock lock("GetCallMemberName");
  if (g_lpZelto == nullptr) return nullptr;
  const char* name = IsPSTNCall() ? GetCallMemberIdentity(index) : GetCallMemberDisplayName(index);
  return name != nullptr ? name : Result("No call");
}

#include "zelhost/apiwrapper/client/CCall.h"

#include "Common/Assert.h"
#include "Common/ZeltoManager.h"
#include "zelhost/apiwrapper/client/CCallMember.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"

// What a changed property brings about.
struct CCall::Reaction {
  int property;
  void (CCall::*run)(const ZEString& value);
};

const CCall::Reaction* CCall::FindReaction(int property) {
  // clang-format off
  static constexpr Reaction kReactions[] = {
      {P_DURATION,       &CCall::OnDuration},
      {P_ACTIVE_MEMBERS, &CCall::OnActiveMembers},
      {P_ONGOING,        &CCall::OnOngoing},
      {P_CONFERENCE,     &CCall::OnConference},
  };
  // clang-format on
  for (const Reaction& reaction : kReactions) {
    if (reaction.property == property) return &reaction;
  }
  return nullptr;
}

CCall::~CCall() {
  if (CZelto* root = client::RootOf(*this)) root->m_calls.Forget(this);
  if (CZelhostCallManager::m_pCall == this) CZelhostCallManager::GetInstance()->SetCallMembers(nullptr);
  CZelhostHistoryManager::ForgetCall(this);
}

void CCall::OnDelete() {
  CZelhostCallManager::GetInstance()->NoteCallDropped(this);
  DescribedObject::OnDelete();
}

void CCall::OnChange(int property, const ZEString& value) {
  if (property == P_8) return;
  client::TraceChange(*this, kTraceCall, property, value);
  if (const Reaction* reaction = FindReaction(property)) (this->*reaction->run)(value);
}

void CCall::OnDuration(const ZEString& value) {
  CZeltoManager::SendEvent(CZeltoManager::CALL_DURATION, value.toInt());
}

void CCall::OnActiveMembers(const ZEString& value) {
  const int members = value.toInt();
  client::Trace(*this, kTraceCall, "numActiveMember = %d", members);
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || root->m_calls.Count() == 0) return;
  if (members > 1) CZeltoManager::SendEvent(CZeltoManager::CALL_ACTIVE_MEMBERS_CHANGED, members);
  CZeltoManager::SendEvent(CZeltoManager::CALL_ACTIVE_MEMBERS_ONE, 0);
}

void CCall::OnOngoing(const ZEString& value) {
  CZelto* root = client::RootOf(*this);
  if (root == nullptr || value.toInt() != 0) return;
  const int index = root->m_calls.IndexOf(this);
  if (index > 0 || !CZelhostCallManager::GetInstance()->NoteCallEnding(this)) {
    client::Trace(*this, kTraceCall, "\n** %d call is ended **\n", index);
    root->RemoveCall(this);
    return;
  }
  const bool conference = IsConference();
  client::Trace(*this, kTraceCall, conference ? "conf. call end..." : "call end...");
  CZeltoManager::SendEvent(conference ? CZeltoManager::CONFERENCE_CALL_ENDED : CZeltoManager::CALL_ENDED, 0);
}

void CCall::OnConference(const ZEString& value) {
  if (value.toInt() <= 0) return;
  CZeltoManager::SendEvent(CZeltoManager::CALL_ACTIVE_MEMBERS_CHANGED, GetProp(P_ACTIVE_MEMBERS).toInt());
}

bool CCall::IsConference() { return GetProp(P_CONFERENCE).toInt() != 0; }

void CCall::Answer() {
  const ZEString partner = GetProp(P_PARTNER_IDENTITY);
  const ZEPtrVector members = GetMembers();
  for (unsigned i = 0; i < members.size(); ++i) {
    auto* member = static_cast<CallMember*>(members[i]);
    if (member == nullptr) continue;
    if (members.size() == 1 || member->GetProp(CallMember::P_IDENTITY) == partner) return member->Answer();
  }
}

CCallMember* CCall::MemberAt(unsigned index) {
  const ZEPtrVector members = GetMembers();
  return index < members.size() ? dynamic_cast<CCallMember*>(static_cast<CallMember*>(members[index]))
                                : nullptr;
}

unsigned CCall::GetMembersNum() { return GetMembers().size(); }

void CCall::PrintMembers() {
  const unsigned count = GetMembersNum();
  zelto::Print("Number of members: %u\n", count);
  for (unsigned i = 0; i < count; ++i) {
    zelto::Print("Member number: %d\n", static_cast<int>(i));
    if (CCallMember* member = MemberAt(i)) member->PrintProperties();
  }
}

void CCall::AnswerToMember(unsigned index) {
  if (CCallMember* member = MemberAt(index)) member->Answer();
}
void CCall::HoldToMember(unsigned index) {
  if (CCallMember* member = MemberAt(index)) member->Hold(true);
}
void CCall::ResumeToMember(unsigned index) {
  if (CCallMember* member = MemberAt(index)) member->Hold(false);
}
void CCall::HangupToMember(unsigned index, CallMember::ENDACTION action) {
  if (CCallMember* member = MemberAt(index)) member->End(action);
}
void CCall::GrandMicToMember(unsigned index, bool grant) {
  if (CCallMember* member = MemberAt(index)) member->GrantMike(grant);
}
void CCall::SkipGreetingToMember(unsigned index) {
  if (CCallMember* member = MemberAt(index)) member->SkipVoicemailGreeting();
}
void CCall::SetOriginToMember(unsigned index, const ZEString& identity) {
  if (CCallMember* member = MemberAt(index)) member->SetVoicemailOrigin(identity);
}
void CCall::CaptureImage(unsigned index) {
  if (CCallMember* member = MemberAt(index)) member->CaptureImage();
}
void CCall::SendDtmfToMember(unsigned, CallMember::DTMF tone) { PlayAndSendDTMF(tone); }

Video* CCall::GetSendVideoObject(unsigned index) {
  CCallMember* member = MemberAt(index);
  return member != nullptr ? member->SendVideo() : nullptr;
}
void CCall::StartVideoSendToMember(unsigned index) {
  ZELTO_ASSERT(index == 0);
  if (CCallMember* member = MemberAt(index)) member->StartSendVideo();
}
void CCall::StopVideoSendToMember(unsigned index) {
  ZELTO_ASSERT(index == 0);
  if (CCallMember* member = MemberAt(index)) member->StopSendVideo();
}
void CCall::StartVideoRecvToMember(unsigned index) {
  ZELTO_ASSERT(index == 0);
  if (CCallMember* member = MemberAt(index)) member->StartRecvVideo();
}
void CCall::StopVideoRecvToMember(unsigned index) {
  ZELTO_ASSERT(index == 0);
  if (CCallMember* member = MemberAt(index)) member->StopRecvVideo();
}

#include "simulator/runtime/world/CallMember.h"

#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/service/AccountRules.h"

namespace simulator {

CallMember::CallMember(const CallContext& context, const std::string& identity, int status,
                       const std::function<void()>& videoChanged)
    : m_world(context.world),
      m_identity(identity),
      m_id(m_world.Create(CALLMEMBER_CLASS).id),
      m_status(status) {
  const IdentityType type = TypeOfIdentity(identity);
  const std::string name = context.contacts.NameOf(identity);
  Object& object = *m_world.Find(m_id);
  m_world.Put(object, member::kIdentity, identity);
  m_world.Put(object, member::kDisplayName, name);
  m_world.PutInt(object, member::kType, static_cast<int>(type));
  m_world.PutInt(object, member::kStatus, status);
  m_world.PutInt(object, member::kVoiceLevel, 0);
  m_world.PutInt(object, member::kVideoStatus, member::kNoVideo);
  m_world.PutInt(object, member::kMikeStatus, member::kMikeOpen);
  m_world.PutInt(object, member::kDuration, 0);
  if (type == IdentityType::Phone) return;
  m_sent = std::make_unique<CallVideo>(m_world, context.scheduler, CallVideo::Direction::Send, videoChanged);
  m_received =
      std::make_unique<CallVideo>(m_world, context.scheduler, CallVideo::Direction::Receive, videoChanged);
}

CallMember::~CallMember() {
  m_sent = nullptr;
  m_received = nullptr;
  m_world.Delete(m_id);
}

CallVideo* CallMember::Video(unsigned id) {
  for (CallVideo* video : {m_sent.get(), m_received.get()}) {
    if (video != nullptr && video->Id() == id) return video;
  }
  return nullptr;
}

bool CallMember::HasChangedSending() {
  if (m_sent == nullptr || m_sent->Status() == video::kStarting) return false;
  const bool sending = m_sent->IsRunning() || m_sent->Status() == video::kPaused;
  if (sending == m_sending) return false;
  m_sending = sending;
  return true;
}

bool CallMember::IsConnected() const {
  return m_status == member::kTalking || m_status == member::kHeldHere || m_status == member::kHeldThere;
}

bool CallMember::IsThere() const {
  return IsConnected() || m_status == member::kNew || m_status == member::kReaching ||
         m_status == member::kRinging ||
         (m_status >= member::kGreetingComes && m_status <= member::kDelivering);
}

void CallMember::SetStatus(int status) {
  m_status = status;
  SetNumber(member::kStatus, status);
}

void CallMember::SetNumber(int property, long long value) { SetText(property, std::to_string(value)); }

void CallMember::SetText(int property, const std::string& text) {
  if (Object* object = m_world.Find(m_id)) m_world.Set(*object, property, text);
}

void CallMember::OfferVideo() {
  if (m_sent == nullptr) return;
  SetNumber(member::kVideoStatus, member::kCanBoth);
  m_sent->Offer();
}

void CallMember::HoldVideo(bool held) {
  for (CallVideo* video : {m_sent.get(), m_received.get()}) {
    if (video == nullptr) continue;
    if (held) {
      video->Pause();
    } else {
      video->Resume();
    }
  }
}

void CallMember::EndVideo() {
  for (CallVideo* video : {m_sent.get(), m_received.get()}) {
    if (video != nullptr) video->End();
  }
}

}  // namespace simulator

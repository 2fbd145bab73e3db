// What happens while people talk: holding, sound and pictures, tones, and the seconds that pass.
#include <algorithm>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "apiwrapper/tables/Events.h"
#include "apiwrapper/tables/Keys.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/world/CallCourse.h"

namespace simulator {
namespace {

constexpr int kTickMilliseconds = 200;  // voice levels are told that often
constexpr int kTicksASecond = 1000 / kTickMilliseconds;
constexpr int kSecondsATurn = 2;  // of those who speak in turn
constexpr int kOfferMilliseconds = 50;

// From 0 to 10: of somebody who speaks.
constexpr int kSpeakingLevel = 6;

}  // namespace

// Holding.

bool CallCourse::Hold(bool hold) { return SetHeld(hold, member::kHeldHere); }
bool CallCourse::HoldThere(int hold) { return SetHeld(hold != 0, member::kHeldThere); }

bool CallCourse::HoldMember(CallMember& member, bool hold) {
  const bool changed = SetMemberHeld(member, hold, member::kHeldHere);
  UpdateMedia();
  return changed;
}

bool CallCourse::SetHeld(bool held, int status) {
  bool changed = false;
  for (const auto& member : m_members) changed = SetMemberHeld(*member, held, status) || changed;
  UpdateMedia();
  return changed;
}

bool CallCourse::SetMemberHeld(CallMember& member, bool held, int status) {
  if (m_phase != Phase::Talking || member.Status() != (held ? int{member::kTalking} : status)) return false;
  if (held) member.HoldVideo(true);
  member.SetStatus(held ? status : int{member::kTalking});
  if (!held) member.HoldVideo(false);
  return true;
}

// Pictures.

// Of a conference, those of its first member: there is one picture to be shown.
void CallCourse::OfferVideo() {
  m_offering = m_context.scheduler.After(kOfferMilliseconds, [this] {
    m_members.front()->OfferVideo();
    if (m_showsVideo) ShowVideo(1);
  });
}

bool CallCourse::ShowVideo(int show) {
  CallVideo* received = m_members.empty() ? nullptr : m_members.front()->Received();
  if (m_phase != Phase::Talking || received == nullptr) return false;
  if (show != 0) {
    received->Arrive();
  } else {
    received->Withdraw();
  }
  return true;
}

bool CallCourse::RefuseVideo(int refuse) {
  m_farEnd.refusesVideo = refuse != 0;
  for (const auto& member : m_members) {
    if (member->Sent() != nullptr) member->Sent()->Refuse(refuse != 0);
  }
  return true;
}

// A far end shows itself when it is shown somebody; one that only echoes stops with what it echoes.
void CallCourse::VideoChanged() {
  if (m_phase != Phase::Talking) return;
  for (const auto& member : m_members) {
    if (!member->HasChangedSending() || m_farEnd.picture == FarPicture::None) continue;
    if (member->IsSending()) {
      member->Received()->Arrive();
    } else if (m_farEnd.picture == FarPicture::Echo) {
      member->Received()->Withdraw();
    }
  }
  UpdateMedia();
}

// An echo waits for pictures from the beginning: a television sends them before it has asked for anything.
FarPicture CallCourse::PictureToShow() const {
  if (m_farEnd.picture == FarPicture::Echo) return FarPicture::Echo;
  const bool shown = std::any_of(m_members.begin(), m_members.end(), [](const auto& member) {
    return member->Received() != nullptr && member->Received()->IsRunning();
  });
  return shown ? m_farEnd.picture : FarPicture::None;
}

// Sound.

FarSound CallCourse::SoundToPlay() const {
  if (m_phase == Phase::Voicemail) return HasMember(member::kGreeting) ? FarSound::Tone : FarSound::None;
  return m_muted && m_farEnd.sound == FarSound::Echo ? FarSound::None : m_farEnd.sound;
}

void CallCourse::UpdateMedia() {
  if (m_context.media == nullptr) return;
  MediaPort& media = *m_context.media;
  const bool talks = m_phase == Phase::Talking && HasMember(member::kTalking);
  const bool records =
      m_phase == Phase::Voicemail && (HasMember(member::kGreeting) || HasMember(member::kRecording));
  const bool sounds = talks || records;
  const FarPicture picture = sounds ? PictureToShow() : FarPicture::None;
  if (picture != m_picture) {
    m_picture = picture;
    media.ShowPicture(picture);
  }
  const FarSound sound = SoundToPlay();
  if (sounds && (!m_sounds || sound != m_sound)) media.BeginSound(sound);
  if (!sounds && m_sounds) media.EndSound();
  m_sounds = sounds;
  m_sound = sound;
}

void CallCourse::Mute(bool mute) {
  m_muted = mute;
  UpdateMedia();
}

void CallCourse::PlayTone(int tone) {
  if (m_farEnd.sound == FarSound::Echo) SendTone(tone);
}

bool CallCourse::SendTone(int tone) {
  const char* token = ZEProtocol::TokenOf(CALLMEMBER_DTMF_MAP, tone);
  if (token == nullptr || !HasMember(member::kTalking)) return false;
  std::string pairs;
  PairWriter(pairs).Text(ZEKey::Dtmf, token);
  for (const auto& member : m_members) {
    const Object* object = m_context.world.Find(member->Id());
    if (object == nullptr || member->Status() != member::kTalking) continue;
    m_context.world.Event(*object, ZEEventNumber::IncomingDTMF, pairs);
  }
  return true;
}

// The seconds.

void CallCourse::StartTicking() {
  m_context.scheduler.Cancel(m_ticking);
  m_ticking = m_context.scheduler.After(kTickMilliseconds, [this] { Tick(); });
}

void CallCourse::Tick() {
  if (IsOver()) return;
  StartTicking();
  ++m_ticks;
  for (std::size_t i = 0; i < m_members.size(); ++i) {
    if (m_members[i]->IsThere()) m_members[i]->SetNumber(member::kVoiceLevel, LevelOf(i));
  }
  if (m_ticks % kTicksASecond == 0) SetCall(call::kDuration, m_ticks / kTicksASecond);
}

int CallCourse::LevelOf(std::size_t index) const {
  const CallMember& member = *m_members[index];
  if (member.Status() != member::kTalking) return 0;
  if (!m_speaker.empty()) return member.Identity() == m_speaker ? kSpeakingLevel : 0;
  const int turn = m_ticks / (kSecondsATurn * kTicksASecond);
  if (index != static_cast<std::size_t>(turn) % m_members.size()) return 0;
  switch (SoundToPlay()) {
    case FarSound::None:
      break;
    case FarSound::Echo:
      return m_context.media == nullptr ? 0 : m_context.media->VoiceLevel();
    case FarSound::Tone:
      return kSpeakingLevel;
  }
  return 0;
}

}  // namespace simulator

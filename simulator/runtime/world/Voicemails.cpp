#include "simulator/runtime/world/Voicemails.h"

#include <algorithm>
#include <ctime>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/VoicemailProperties.h"

namespace simulator {
namespace {

constexpr int kFetchMilliseconds = 50;
constexpr int kSecond = 1000;
constexpr std::int64_t kInventedEvery = 7200;  // seconds

}  // namespace

bool Voicemails::IsReady() {
  const std::string& account = m_context.signIn.Name();
  if (account.empty()) return false;
  if (account == m_account) return true;
  m_account.clear();
  for (const auto& [id, record] : m_voicemails) m_context.world.Remove(id);
  m_voicemails.clear();
  for (const VoicemailRecord& record : m_context.service.Voicemails(account)) Insert(record);
  m_account = account;
  return true;
}

unsigned Voicemails::Insert(const VoicemailRecord& record) {
  World& world = m_context.world;
  if (world.IsFull()) return 0;
  const std::string name = m_context.contacts.NameOf(record.partner);
  Object& object = world.Create(VOICEMAIL_CLASS);
  world.PutInt(object, voicemail::kType, voicemail::kIncoming);
  world.Put(object, voicemail::kPartner, record.partner);
  world.Put(object, voicemail::kPartnerName, name);
  world.PutInt(object, voicemail::kStatus, record.status);
  world.PutInt(object, voicemail::kAt, record.at);
  world.PutInt(object, voicemail::kDuration, record.duration);
  world.PutInt(object, voicemail::kPlayed, 0);
  m_voicemails[object.id] = record;
  return object.id;
}

VoicemailRecord* Voicemails::Of(unsigned id) {
  if (!IsReady()) return nullptr;
  const auto found = m_voicemails.find(id);
  return found == m_voicemails.end() ? nullptr : &found->second;
}

std::vector<unsigned> Voicemails::All() {
  std::vector<unsigned> ids;
  if (!IsReady()) return ids;
  for (const auto& [id, record] : m_voicemails) ids.push_back(id);
  std::sort(ids.begin(), ids.end());
  return ids;
}

Object* Voicemails::Come(std::string_view from, int seconds) {
  const NormalizedIdentity partner = NormalizeIdentity(from, false);
  if (partner.verdict != NameVerdict::Good || m_context.world.IsFull() || !IsReady()) return nullptr;
  VoicemailRecord record;
  record.partner = partner.identity;
  record.at = std::time(nullptr) + m_context.clockDifference;
  record.duration = std::clamp(seconds, 1, kLongestVoicemail);
  record.status = voicemail::kNew;
  record.number = m_context.service.AddVoicemail(m_account, record);
  Object* object = m_context.world.Find(Insert(record));
  if (object != nullptr) m_context.world.Event(*object, ZEEventNumber::IncomingVoicemail);
  return object;
}

bool Voicemails::Invent(int count) {
  if (!IsReady() || !m_context.world.HasRoomFor(count)) return false;
  const std::vector<std::string> people = m_context.contacts.Acquaintances();
  const std::int64_t now = std::time(nullptr) + m_context.clockDifference;
  m_context.service.Together([&] {
    for (int i = count; i > 0; --i) {
      VoicemailRecord record;
      record.partner = people[static_cast<std::size_t>(i) % people.size()];
      record.at = now - kInventedEvery * i;
      record.duration = 3 + i % 60;
      record.status = i == 1 ? voicemail::kNew : voicemail::kHeard;
      record.number = m_context.service.AddVoicemail(m_account, record);
      Insert(record);
    }
  });
  return true;
}

void Voicemails::SetStatus(unsigned id, int status) {
  if (Object* object = m_context.world.Find(id)) {
    m_context.world.SetInt(*object, voicemail::kStatus, status);
  }
}

bool Voicemails::Play(unsigned id) {
  if (Of(id) == nullptr || m_context.inUse()) return false;
  StopPlaying();
  m_playing = id;
  m_second = 0;
  SetStatus(id, voicemail::kFetching);
  m_next = m_context.scheduler.After(kFetchMilliseconds, [this] { Begin(); });
  return true;
}

void Voicemails::Begin() {
  VoicemailRecord* record = Of(m_playing);
  if (record == nullptr || m_context.inUse()) {
    StopPlaying();
    return;
  }
  record->status = voicemail::kHeard;
  m_context.service.ChangeVoicemailStatus(record->number, record->status);
  m_context.world.SetInt(*m_context.world.Find(m_playing), voicemail::kPlayed, 0);
  SetStatus(m_playing, voicemail::kPlaying);
  m_sounds = true;
  if (m_context.media != nullptr) m_context.media->PlayRecording(static_cast<unsigned>(record->number));
  m_next = m_context.scheduler.After(kSecond, [this] { Tick(); });
}

void Voicemails::Tick() {
  const VoicemailRecord* record = Of(m_playing);
  Object* object = m_context.world.Find(m_playing);
  if (record == nullptr || object == nullptr || m_context.inUse()) {
    StopPlaying();
    return;
  }
  m_context.world.SetInt(*object, voicemail::kPlayed, ++m_second);
  if (m_second >= record->duration) {
    StopPlaying();
    return;
  }
  m_next = m_context.scheduler.After(kSecond, [this] { Tick(); });
}

void Voicemails::Stop(unsigned id) {
  if (id != 0 && id == m_playing) StopPlaying();
}

void Voicemails::StopPlaying() {
  if (m_playing == 0) return;
  m_context.scheduler.Cancel(m_next);
  const auto record = m_voicemails.find(std::exchange(m_playing, 0));
  // A call that has begun meanwhile has the sound now.
  if (std::exchange(m_sounds, false) && m_context.media != nullptr && !m_context.inUse()) {
    m_context.media->EndSound();
  }
  if (record != m_voicemails.end()) SetStatus(record->first, record->second.status);
}

bool Voicemails::MarkSeen(unsigned id) {
  VoicemailRecord* record = Of(id);
  if (record == nullptr) return false;
  if (record->status != voicemail::kNew) return true;
  record->status = voicemail::kSeen;
  m_context.service.ChangeVoicemailStatus(record->number, record->status);
  if (id != m_playing) SetStatus(id, record->status);
  return true;
}

bool Voicemails::Delete(unsigned id) {
  const VoicemailRecord* record = Of(id);
  if (record == nullptr) return false;
  Stop(id);
  m_context.service.DeleteVoicemail(record->number);
  m_voicemails.erase(id);
  SetStatus(id, voicemail::kDeleting);
  m_context.world.Delete(id);
  return true;
}

}  // namespace simulator

#include "zelhost/apiwrapper/client/CVoicemail.h"

#include <iterator>

#include "Common/ZeltoManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"

using E = CZeltoManager;

namespace {

constexpr int kNoEvent = 0;

struct StatusEvents {
  int status;
  int first;
  int second;
  bool over;  // nothing is being played any more
};

// clang-format off
constexpr StatusEvents kStatusEvents[] = {
    { 3, E::VOICEMAIL_STATUS_3,  E::VOICEMAIL_STATUS_13, true},
    { 4, E::VOICEMAIL_STATUS_4,  kNoEvent,               false},
    { 5, E::VOICEMAIL_STATUS_5,  kNoEvent,               false},
    { 6, E::VOICEMAIL_STATUS_6,  kNoEvent,               true},
    { 7, E::VOICEMAIL_STATUS_7,  kNoEvent,               false},
    {11, kNoEvent,               kNoEvent,               true},
    {12, E::VOICEMAIL_STATUS_12, kNoEvent,               false},
    {13, E::VOICEMAIL_STATUS_13, kNoEvent,               true},
    {14, E::VOICEMAIL_STATUS_14, kNoEvent,               false},
};
// clang-format on
static_assert(std::size(kStatusEvents) == 9, "one for each status that means something");

}  // namespace

CVoicemail::~CVoicemail() {
  if (CZelto* root = client::RootOf(*this)) root->m_voicemails.Forget(this);
  CZelhostHistoryManager::ForgetVoicemail(this);
}

void CVoicemail::OnDelete() {
  client::Trace(*this, kTraceVoicemail, ":OnDelete");
  CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->m_voicemails.Remove(this)) delete this;
}

void CVoicemail::OnChange(int property, const ZEString& value) {
  const CZelto* root = client::RootOf(*this);
  if (root != nullptr && root->IsTraced(kTraceVoicemail)) {
    const ZEStringList words = getPropDebug(property, value);
    root->trace(kTraceVoicemail, ".%s:%s = %s", static_cast<const char*>(GetProp(P_PARTNER_IDENTITY)),
                static_cast<const char*>(words[1]), static_cast<const char*>(words[2]));
  }
  if (property == P_STATUS) {
    OnStatus(value.toInt());
  } else if (property == P_DURATION || property == P_10) {
    E::SendEvent(E::CALL_DURATION, value.toInt());
  }
}

void CVoicemail::OnStatus(int status) {
  for (const StatusEvents& row : kStatusEvents) {
    if (row.status != status) continue;
    for (const int event : {row.first, row.second}) {
      if (event != kNoEvent) E::SendEvent(event, 0);
    }
    if (row.over) CZelhostHistoryManager::GetInstance()->SetCurrentPlayingVoicemail(nullptr);
  }
}

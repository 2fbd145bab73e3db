#include "zelhost/apiwrapper/client/CCallMember.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/Video.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/apiwrapper/client/FileBinary.h"
#include "zelhost/calls/ZelhostCallManager.h"

using E = CZeltoManager;

// What a changed property brings about.
struct CCallMember::Reaction {
  int property;
  bool traced;
  void (CCallMember::*run)(const ZEString& value);
};

namespace {

// What the event says beside its type.
enum class Says { kNothing, kStatus, kFailureReason };

struct StatusEvent {
  int status;
  int event;
  Says says;
  bool isFinal;  // the member is gone with it
};

struct FailureEvent {
  int number;
  int event;
};

constexpr int kNoEvent = 0;

// clang-format off
constexpr StatusEvent kStatusEvents[] = {
    { 3, E::CALLMEMBER_CALL_FAILED, Says::kStatus,        true},
    { 4, E::CALLMEMBER_CALL_FAILED, Says::kFailureReason, true},
    { 6, E::CALLMEMBER_STATUS_6,    Says::kNothing,       false},
    { 8, E::CALLMEMBER_INPROGRESS,  Says::kNothing,       false},
    { 9, E::CALLMEMBER_STATUS_9,    Says::kNothing,       false},
    {10, E::CALLMEMBER_STATUS_10,   Says::kNothing,       false},
    {11, E::CALLMEMBER_FINISHED,    Says::kStatus,        true},
    {12, E::CALLMEMBER_STATUS_12,   Says::kStatus,        true},
    {13, E::CALLMEMBER_STATUS_13,   Says::kStatus,        true},
    {14, E::CALLMEMBER_CALL_FAILED, Says::kStatus,        true},
    {15, E::CALLMEMBER_STATUS_15,   Says::kStatus,        true},
    {16, E::CALLMEMBER_STATUS_16,   Says::kNothing,       false},
    {17, E::CALLMEMBER_STATUS_17,   Says::kNothing,       false},
    {18, E::CALLMEMBER_STATUS_18,   Says::kNothing,       false},
    {19, E::CALLMEMBER_STATUS_19,   Says::kNothing,       false},
    {20, E::CALLMEMBER_STATUS_20,   Says::kNothing,       false},
    {21, E::CALLMEMBER_STATUS_21,   Says::kNothing,       false},
    {22, E::CALLMEMBER_STATUS_22,   Says::kNothing,       false},
};
static_assert(std::size(kStatusEvents) == 18, "one for each status that the engine raises an event for");

// By the number at the beginning of a failure text.
constexpr FailureEvent kFailureEvents[] = {
    { 6102, kNoEvent},
    { 6423, E::CALL_FAILURE_6423},
    { 9401, E::CALL_FAILURE_9401},
    { 9402, E::CALL_FAILURE_9402},
    { 9403, E::CALL_FAILURE_9403},
    { 9407, E::CALL_FAILURE_9403},
    { 9408, E::CALL_FAILURE_9403},
    { 9409, E::CALL_FAILURE_9409},
    {10403, E::CALL_FAILURE_10403},
    {10404, E::CALL_FAILURE_10404},
    {10484, E::CALL_FAILURE_10484},
    {10604, E::CALL_FAILURE_10604},
    {13406, E::CALL_FAILURE_13406},
};
static_assert(std::size(kFailureEvents) == 13, "one for each failure that has a name");

constexpr int kReportedQualities[] = {1, 10, 12, 13, 14, 15};
// clang-format on

constexpr char kWholeCamera[] = "160 0 640 480";
constexpr int kWindow = 1;
constexpr char kCapturedImage[] = "image";

int FailureEventOf(int number) {
  for (const FailureEvent& row : kFailureEvents) {
    if (row.number == number) return row.event;
  }
  return E::CALL_FAILURE_OTHER;
}

void Start(Video* video, const char* without) {
  if (video == nullptr) {
    ZELTO_FATAL("%s", without);
    return;
  }
  video->SetScreen(kWindow, kWholeCamera);
  video->Start();
}

}  // namespace

const CCallMember::Reaction* CCallMember::FindReaction(int property) {
  // clang-format off
  static constexpr Reaction kReactions[] = {
      {P_STATUS,        true,  &CCallMember::OnStatus},
      {P_VOICE_LEVEL,   false, &CCallMember::OnVoiceLevel},
      {P_FAILURE_TEXT,  true,  &CCallMember::OnFailureText},
      {P_15,            true,  &CCallMember::OnProperty15},
      {P_VIDEOSTATUS,   true,  &CCallMember::OnVideoStatus},
      {P_QUALITYSTATUS, true,  &CCallMember::OnQuality},
      {P_CALL_DURATION, true,  &CCallMember::OnDuration},
      {P_37,            true,  &CCallMember::OnProperty37},
  };
  // clang-format on
  for (const Reaction& reaction : kReactions) {
    if (reaction.property == property) return &reaction;
  }
  return nullptr;
}

CCallMember::CCallMember(int oid, Zelto* root)
    : DescribedObject(oid, root), m_recvVideo(IdOf(GetRecvVideo())), m_sendVideo(IdOf(GetSendVideo())) {}

CCallMember::~CCallMember() { CZelhostCallManager::ForgetCallMember(static_cast<CallMember*>(this)); }

// A runtime that names the member itself as its video has made a video of the same id, in whose shadow the
// member would not be found.
unsigned CCallMember::IdOf(Video* video) {
  if (video == nullptr) return 0;
  const unsigned id = video->getOID();
  if (id != getOID()) return id;
  delete video;
  return 0;
}

Video* CCallMember::VideoOf(unsigned id) { return id != 0 ? getRoot()->findObject<Video>(id) : nullptr; }

void CCallMember::OnChange(int property, const ZEString& value) {
  if (property == P_4) return;
  const Reaction* reaction = FindReaction(property);
  if (reaction == nullptr || reaction->traced) client::TraceChange(*this, kTraceCallMember, property, value);
  if (reaction != nullptr) (this->*reaction->run)(value);
}

void CCallMember::OnStatus(const ZEString& value) {
  CZelhostCallManager::GetInstance()->UpdateCallMemberProperty(static_cast<CallMember*>(this), P_STATUS,
                                                               value);
  const int status = value.toInt();
  const auto row = std::find_if(std::begin(kStatusEvents), std::end(kStatusEvents),
                                [status](const StatusEvent& entry) { return entry.status == status; });
  if (row == std::end(kStatusEvents)) return;
  int parameter = row->says == Says::kStatus ? status : 0;
  if (row->says == Says::kFailureReason) {
    parameter = GetProp(P_FAILUREREASON).toInt();
    client::Trace(*this, kTraceCallMember, ".%s:P_FAILUREREASON = %s",
                  static_cast<const char*>(getNamespace()),
                  static_cast<const char*>(ZEPMap(CALLMEMBER_FAILUREREASON_MAP).map(parameter)));
  }
  if (status == STATUS_FINISHED) {
    client::Trace(*this, kTraceCallMember, "\n\nCCallMember::OnChange -FINISHED\n");
  }
  E::SendEvent(row->event, parameter);
  if (row->isFinal) delete this;
}

void CCallMember::OnVoiceLevel(const ZEString& value) {
  CZelhostCallManager::GetInstance()->UpdateSpeakingCallMember(static_cast<CallMember*>(this), value.toInt());
}

void CCallMember::OnFailureText(const ZEString& value) {
  const std::string number(value.view().substr(0, value.view().find(' ')));
  const int failure = zelto::DecimalValue(number.c_str());
  client::Trace(*this, kTraceCallMember, "*************** failNumber %d ************", failure);
  if (const int event = FailureEventOf(failure); event != kNoEvent) E::SendEvent(event, 0);
}

void CCallMember::OnProperty15(const ZEString&) { E::SendEvent(E::CALLMEMBER_PROPERTY15, 0); }

void CCallMember::OnVideoStatus(const ZEString& value) {
  constexpr const char* kNames[] = {"SEND_ENABLED", "RECV_ENABLED", "BOTH_ENABLED"};
  const int status = value.toInt();
  if (status < VIDEO_SEND_ENABLED || status > VIDEO_BOTH_ENABLED) return;
  client::Trace(*this, kTraceCallMember, "\n\nCALLMEMBER VIDEOSTATUS %s",
                kNames[status - VIDEO_SEND_ENABLED]);
  if (status != VIDEO_RECV_ENABLED) E::SendEvent(E::CALLMEMBER_VIDEO_PROPERTY, status);
}

void CCallMember::OnQuality(const ZEString& value) {
  const int quality = value.toInt();
  client::Trace(*this, kTraceCallMember, "\n\n*****P_QUALITY_STATUS %d**** \n\n", quality);
  const auto end = std::end(kReportedQualities);
  if (std::find(std::begin(kReportedQualities), end, quality) == end) return;
  E::SendEvent(E::CALLMEMBER_PROPERTY_VALUE, quality);
}

void CCallMember::OnDuration(const ZEString& value) { E::SendEvent(E::CALL_DURATION, value.toInt()); }
void CCallMember::OnProperty37(const ZEString&) { E::SendEvent(E::CALLMEMBER_PROPERTY37, P_37); }

void CCallMember::OnIncomingDTMF(CallMember::DTMF tone) {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceCallMember)) return;
  root->trace(kTraceCallMember, ".%s,%s:OnIncomingDTMF = %s", static_cast<const char*>(GetProp(P_IDENTITY)),
              static_cast<const char*>(GetProp(P_DISPLAY_NAME)),
              static_cast<const char*>(ZEPMap(CALLMEMBER_DTMF_MAP).map(tone)));
}

void CCallMember::StartSendVideo() {
  ZELTO_FATAL("###############################");
  ZELTO_FATAL("####### START SEND VIDEO ######");
  ZELTO_FATAL("###############################");
  Start(SendVideo(), "Send video not started");
}
void CCallMember::StartRecvVideo() { Start(RecvVideo(), "Recv video not started"); }
void CCallMember::StopSendVideo() {
  if (Video* video = SendVideo()) video->Stop();
}
void CCallMember::StopRecvVideo() {
  if (Video* video = RecvVideo()) video->Stop();
}

void CCallMember::CaptureImage() {
  Video* video = SendVideo();
  ZEString image;
  unsigned width = 0;
  unsigned height = 0;
  if (video == nullptr) {
    zelto::Print("Send video not started");
  } else if (!video->CaptureImage(image, width, height)) {
    zelto::Print("Capturing image failed :(");
  } else {
    zelto::Print("Captured image: %ux%u, %u Bytes\n", width, height, image.length());
    C_BinToFile(image, kCapturedImage, false);
  }
}

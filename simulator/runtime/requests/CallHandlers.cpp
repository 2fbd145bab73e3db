#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/common/TestPicture.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

constexpr int kPictureWidth = 320;
constexpr int kPictureHeight = 240;

// A call's object may be there when the call is not: whoever put it there by order made no call.
template <typename Act>
void InCall(Session& session, const Exchange& exchange, Act act) {
  if (CallCourse* course = session.calls.Find(exchange.Target().id)) act(*course);
}

template <typename Act>
void WithMember(Session& session, const Exchange& exchange, Act act) {
  const unsigned id = exchange.Target().id;
  CallCourse* course = session.calls.OfMember(id);
  if (course != nullptr) act(*course, *course->Member(id));
}

// Calls.

void CreateCall(Session& session, Exchange& exchange) {
  const CallCourse* course = session.calls.Create();
  exchange.Answer(ZEKey::Result, course == nullptr ? 0LL : course->Id());
}

template <bool (CallCourse::*kBegin)(const std::string&)>
void Begin(Session& session, Exchange& exchange) {
  bool begun = false;
  InCall(session, exchange, [&](CallCourse& course) {
    begun = session.calls.Place(course, exchange.Text(ZEKey::Identity), kBegin);
  });
  exchange.Answer(ZEKey::Result, begun);
}

void Assimilate(Session& session, Exchange& exchange) {
  bool done = false;
  CallCourse* other = session.calls.Find(exchange.Id(ZEKey::OtherCall));
  InCall(session, exchange,
         [&](CallCourse& course) { done = other != nullptr && course.Assimilate(*other); });
  exchange.Answer(ZEKey::Result, done);
}

void GetMembers(Session& session, Exchange& exchange) {
  // One that is over and gone has other objects.
  std::vector<unsigned> ids = session.calls.Find(exchange.Target().id) == nullptr
                                  ? session.pastCalls.Members(exchange.Target().id)
                                  : std::vector<unsigned>();
  InCall(session, exchange, [&](CallCourse& course) {
    for (const auto& member : course.Members()) ids.push_back(member->Id());
  });
  exchange.AnswerObjects(ZEKey::Result, ids);
}

void End(Session& session, Exchange& exchange) {
  InCall(session, exchange, [&](CallCourse& course) { course.End(exchange.Enumerator(ZEKey::EndAction)); });
}

void Hold(Session& session, Exchange& exchange) {
  InCall(session, exchange, [&](CallCourse& course) { course.Hold(exchange.Flag(ZEKey::Hold)); });
}

template <bool (CallCourse::*kTest)() const>
void Can(Session& session, Exchange& exchange) {
  bool can = false;
  InCall(session, exchange, [&](CallCourse& course) { can = (course.*kTest)(); });
  exchange.Answer(ZEKey::Result, can);
}

void Mute(Session& session, Exchange& exchange) {
  InCall(session, exchange, [&](CallCourse& course) { course.Mute(exchange.Flag(ZEKey::Mute)); });
}

void PlayAndSendDTMF(Session& session, Exchange& exchange) {
  InCall(session, exchange, [&](CallCourse& course) { course.PlayTone(exchange.Enumerator(ZEKey::Dtmf)); });
}

template <int kUnseen>
void Mark(Session& session, Exchange& exchange) {
  session.world.SetInt(exchange.Target(), call::kUnseen, kUnseen);
  session.pastCalls.SetUnseen(exchange.Target().id, kUnseen != 0);
}

void DeleteCall(Session& session, Exchange& exchange) {
  const unsigned id = exchange.Target().id;
  if (!session.pastCalls.Delete(id)) session.calls.Forget(id);
}

// Members.

void Answer(Session& session, Exchange& exchange) {
  WithMember(session, exchange, [](CallCourse& course, CallMember&) { course.Accept(); });
}

void HoldMember(Session& session, Exchange& exchange) {
  WithMember(session, exchange, [&](CallCourse& course, CallMember& member) {
    course.HoldMember(member, exchange.Flag(ZEKey::Hold));
  });
}

void EndMember(Session& session, Exchange& exchange) {
  WithMember(session, exchange, [&](CallCourse& course, CallMember& member) {
    course.EndMember(member, exchange.Enumerator(ZEKey::EndAction));
  });
}

void SkipVoicemailGreeting(Session& session, Exchange& exchange) {
  WithMember(session, exchange, [](CallCourse& course, CallMember&) { course.SkipGreeting(); });
}

void GrantMike(Session& session, Exchange& exchange) {
  const bool granted = exchange.Flag(ZEKey::MikeGranted);
  session.world.SetInt(exchange.Target(), member::kMikeStatus,
                       granted ? member::kMikeOpen : member::kMikeClosed);
}

template <CallVideo* (CallMember::*kVideo)()>
void GetVideo(Session& session, Exchange& exchange) {
  unsigned id = 0;
  WithMember(session, exchange, [&](CallCourse&, CallMember& member) {
    if (const CallVideo* video = (member.*kVideo)()) id = video->Id();
  });
  exchange.Answer(ZEKey::Result, static_cast<long long>(id));
}

// Pictures.

template <void (CallVideo::*kAct)()>
void ActOnVideo(Session& session, Exchange& exchange) {
  if (CallVideo* video = session.calls.Video(exchange.Target().id)) (video->*kAct)();
}

void CaptureImage(Session& session, Exchange& exchange) {
  const CallVideo* video = session.calls.Video(exchange.Target().id);
  const bool running = video != nullptr && video->IsRunning();
  exchange.Answer(ZEKey::Result, running);
  if (!running) return;
  TestPicture picture("captured", kPictureWidth, kPictureHeight);
  const std::vector<unsigned char>& frame = picture.Draw({});
  const std::string jpeg(frame.begin() + TestPicture::kTimeStampSize, frame.end());
  exchange.AnswerBinary(ZEKey::Image, EscapeBinary(jpeg));
  exchange.Answer(ZEKey::Width, kPictureWidth);
  exchange.Answer(ZEKey::Height, kPictureHeight);
}

// Topics, tokens, whom a voicemail is from, and where a picture is shown on a screen that the runtime has not
// make no difference to a simulated far end. Nobody is passed on to anybody, nor called again from the member
// of a call that is over.
// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::CreateCall,                   CreateCall},
    {&CallMethod::Ring,                         Begin<&CallCourse::Ring>},
    {&CallMethod::LeaveVoicemail,               Begin<&CallCourse::LeaveVoicemail>},
    {&CallMethod::Assimilate,                   Assimilate},
    {&CallMethod::GetMembers,                   GetMembers},
    {&CallMethod::End,                          End},
    {&CallMethod::Hold,                         Hold},
    {&CallMethod::CanHold,                      Can<&CallCourse::CanHold>},
    {&CallMethod::CanResume,                    Can<&CallCourse::CanResume>},
    {&CallMethod::Mute,                         Mute},
    {&CallMethod::PlayAndSendDTMF,              PlayAndSendDTMF},
    {&CallMethod::MarkSeen,                     Mark<0>},
    {&CallMethod::MarkUnseen,                   Mark<1>},
    {&CallMethod::Delete,                       DeleteCall},
    {&CallMethod::SetTopic,                     TakeNote},
    {&CallMethod::SetAccessToken,               TakeNote},
    {&CallMethod::RequestMike,                  TakeNote},
    {&CallMethod::GrantMike,                    TakeNote},
    {&CallMemberMethod::Answer,                 Answer},
    {&CallMemberMethod::Hold,                   HoldMember},
    {&CallMemberMethod::End,                    EndMember},
    {&CallMemberMethod::GrantMike,              GrantMike},
    {&CallMemberMethod::SkipVoicemailGreeting,  SkipVoicemailGreeting},
    {&CallMemberMethod::SetVoicemailOrigin,     TakeNote},
    {&CallMemberMethod::GetSendVideo,           GetVideo<&CallMember::Sent>},
    {&CallMemberMethod::GetRecvVideo,           GetVideo<&CallMember::Received>},
    {&CallMemberMethod::SetMissed,              TakeNote},
    {&CallMemberMethod::Transfer,               Decline},
    {&CallMemberMethod::CanTransfer,            Decline},
    {&CallMemberMethod::Redial,                 Decline},
    {&VideoMethod::SetScreen,                   TakeNote},
    {&VideoMethod::Start,                       ActOnVideo<&CallVideo::Start>},
    {&VideoMethod::Stop,                        ActOnVideo<&CallVideo::Stop>},
    {&VideoMethod::CaptureImage,                CaptureImage},
};
// clang-format on

}  // namespace

HandlerRows CallHandlers() { return RowsOf(kRows); }

}  // namespace simulator

#include <gtest/gtest.h>

#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingManagers.h"

namespace {

// Writes what the television is told into the managers' notes, so that both are seen in one order.
class TheWidget : public testing::Test {
 protected:
  TheWidget() {
    recording::TheNotes() = {};
    recording::TheNotes().noting = true;
    m_television.Engine()->RegisterCommonCtrlFunc(&TheWidget::OnControl, this);
    m_television.Engine()->RegisterEventCallback(&TheWidget::OnEvent, this);
  }

  // What entering the state brings about; where the picture goes is the call manager's matter.
  std::string Consequences(const char* state) {
    recording::TheNotes().calls.clear();
    const std::string answer = m_television.Execute("SetZeltoWidgetState", state);
    std::string noted;
    for (const std::string& call : recording::TheNotes().calls) {
      if (call.rfind("SetExtVideoSize", 0) != 0) noted += call + " ";
    }
    return noted + "-> " + answer;
  }

  bool m_yes = false;  // what the television answers every question
  test::RecordingHost m_television;

 private:
  static const char* OnControl(const char* cmd, const char* p1, const char*, const char*, const char*,
                               void* user) {
    recording::TheNotes().calls.push_back(std::string(cmd) + (p1 != nullptr ? std::string("=") + p1 : ""));
    return static_cast<TheWidget*>(user)->m_yes ? "1" : "0";
  }
  static bool OnEvent(const CEngineEvent* event, void*) {
    recording::TheNotes().calls.push_back("event " + std::to_string(event->type));
    return true;
  }
};

#define RESTORED                                                                                           \
  "SetMoIPVideoEnhancement=0 SetTVMode=0 SetWidgetState=0 MuteReceiverSound=0 UnblockIncomingCall(false) " \
  "event 22 SetSubMixAudioVolume=100 -> 1"

// What the other states bring about during a call is seen between real processes.
TEST_F(TheWidget, ArrangesTheTelevisionForItsMode) {
  CZeltoManager::SetWidgetStarted(true);
  EXPECT_EQ(Consequences("1"),
            "SetWidgetState=1 MuteReceiverSound=1 IsInCall() MuteSpeakerVolume=0 UnblockIncomingCall(false) "
            "SetMoIPVideoEnhancement=1 -> 1");
  EXPECT_FALSE(CZeltoManager::IsWidgetStarted());
  EXPECT_EQ(Consequences("0"), "IsInCall() IsZeltoSupportMultitasking " RESTORED);
  m_yes = true;
  EXPECT_EQ(Consequences("3"),
            "SupportDoubleTalk SetMainMixAudioVolume=100 SetWidgetState=1 UnblockIncomingCall(false) -> 1");
  EXPECT_EQ(Consequences("0"),
            "IsInCall() IsZeltoSupportMultitasking StopRecvVideo() CloseExtVideo StopSendVideo() "
            "ReleaseMixVideo " RESTORED);
  EXPECT_EQ(Consequences("0"), "-> 1");
  EXPECT_EQ(Consequences("4"), "-> 1");
  EXPECT_EQ(m_television.Execute("GetZeltoWidgetMode"), "4");
}

}  // namespace

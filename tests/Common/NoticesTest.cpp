// What the host gets to show, field by field.
#include "Common/Notices.h"

#include <gmock/gmock.h>

#include <thread>

#include "Common/CallManager.h"
#include "Common/ContactManager.h"
#include "Common/HistoryManager.h"
#include "Common/Log.h"
#include "tests/Common/EngineFixture.h"
#include "tests/support/NoticeText.h"

namespace {

using test::FakeService;
using test::Log;
using testing::HasSubstr;

constexpr char kEnglish[] = "12";
constexpr int kDuration = 6;

class ANotice : public test::EngineFixture {
 protected:
  ANotice() {
    host.answers = {{"GetCurrentLangID", kEnglish}};
    CCallManager::GetInstance();
    CContactManager::GetInstance();
    CHistoryManager::GetInstance();
    host.onEvent = [this](const CEngineEvent& event) {
      if (event.type == CZeltoManager::PUBLIC_SHOW_NOTICE) m_shown += test::WrittenNotice(event);
    };
  }

  // The notice as the host got it; empty when it got none.
  std::string Shown(int id, int param = 0) {
    m_shown.clear();
    CZeltoManager::ShowNotification(id, param);
    return m_shown;
  }
  // The title of a call's duration.
  std::string Title(const std::string& name) {
    FakeService::answers["member 0"] = name;
    const std::string shown = Shown(kDuration);
    const std::string before = "6|append|3000|2|0|";
    EXPECT_EQ(shown.substr(0, before.size()), before);
    CZeltoManager::HideNotification(kDuration);
    return shown.substr(before.size(), shown.find('|', before.size()) - before.size());
  }
  static std::string Times(int count, const std::string& text) {
    std::string all;
    while (count-- > 0) all += text;
    return all;
  }

  std::string m_shown;
};

#define ICON "Resource/icon_zelto.png"
#define NO_BUTTON "-|-|-|-|-|-|"
#define OK_BUTTON "OK|-|-|-|-|-|"
#define TO_CALLS "Go to Zelto|-|-|CheckMissedCall|-|-|"

struct Expectation {
  int id;
  int param;
  FakeService::Answers service;
  const char* camera;
  const char* shown;
};

// clang-format off
const Expectation kExpectations[] = {
    {0, 0, {{"member 0", "Anna"}}, "1",
     "0|append|0|3|0|Zelto|Anna calling…|" ICON "|Video call|Voice call|Decline|AnswerWithVideo|AnswerWithVoice|RejectCall|"},
    {0, 0, {{"member 0", "Anna"}}, "0",
     "0|append|0|2|0|Zelto|Anna calling…|" ICON "|Voice call|Decline|-|AnswerWithVoice|RejectCall|-|"},
    {0, 0, {}, "",
     "0|append|0|2|0|Zelto| calling…|" ICON "|Voice call|Decline|-|AnswerWithVoice|RejectCall|-|"},
    {1, 0, {{"member 0", "Zoë"}}, "1",
     "0|append|0|2|0|Zelto|Zoë invited you to join a conference call.|" ICON "|Answer|Decline|-|AnswerWithVoice|CallEnd|-|"},
    {2, 0, {}, "", "2|append|3000|0|0|Zelto|Signed in successfully.|" ICON "|" NO_BUTTON},
    {3, 7, {{"onlined", "Inês"}}, "", "3|append|10000|1|0|Zelto|Inês is online.|" ICON "|" OK_BUTTON},
    {3, 7, {}, "", ""},  // nobody to name
    {4, 0, {}, "", "4|append|10000|1|0|Zelto|You have a new voicemail.|" ICON "|" OK_BUTTON},
    {5, 0, {}, "", "5|append|10000|1|0|Zelto|You have a new contact request.|" ICON "|" OK_BUTTON},
    {6, 3725, {{"member 0", "Anna"}}, "",
     "6|append|3000|2|0|Anna|          01:02:05|" ICON "|End call|Go to Zelto|-|CallEnd|StartWidget|-|"},
    {7, 0, {{"missed by", "Anna"}, {"missed at", "10:15"}}, "",
     "7|append|3600000|1|0|Zelto|You missed a call from Anna at 10:15.|" ICON "|" TO_CALLS},
    {7, 0, {{"missed", "3"}}, "", "7|append|3600000|1|0|Zelto|You have 3 missed calls.|" ICON "|" TO_CALLS},
    {8, 0, {}, "", "8|append|10000|1|0|Zelto|Call Ended|" ICON "|" OK_BUTTON},
    {9, 0, {}, "", ""},
    {-1, 0, {}, "", ""},
};
// clang-format on

TEST_F(ANotice, SaysAndOffersWhatIsExpected) {
  for (const Expectation& expected : kExpectations) {
    FakeService::answers = expected.service;
    host.answers["IsCameraReady"] = expected.camera;
    EXPECT_EQ(Shown(expected.id, expected.param), expected.shown) << expected.id;
  }
}

TEST_F(ANotice, SpeaksTheLanguageThatTheTelevisionHasNow) {
  const auto description = [this](const char* language) {
    host.answers["GetCurrentLangID"] = language;
    const std::string shown = Shown(8);
    const std::size_t at = shown.find("Zelto|") + 6;
    return shown.substr(at, shown.find('|', at) - at);
  };
  EXPECT_EQ(description("9"), "Anruf beendet");
  EXPECT_EQ(description("27"), "通話が終了しました");
  EXPECT_EQ(description("71"), "通話が終了しました");  // unknown: as before
  EXPECT_EQ(description("39"), "Вызов завершен");
  EXPECT_EQ(description("12"), "Call Ended");
}

TEST_F(ANotice, OfACallsDurationTakesThePlaceOfTheLastUntilThatIsHidden) {
  for (int id : {8, 6}) {
    EXPECT_THAT(Shown(kDuration, 1), HasSubstr("6|append|"));
    EXPECT_THAT(Shown(kDuration, 2), HasSubstr("6|replace|"));
    CZeltoManager::HideNotification(0);
    EXPECT_THAT(Shown(8), HasSubstr("8|append|"));
    EXPECT_THAT(Shown(kDuration, 3), HasSubstr("6|replace|"));
    id == kDuration ? CZeltoManager::HideNotification(id) : CZeltoManager::HideAllNotification();
  }
  EXPECT_THAT(Shown(kDuration, 360'000), HasSubstr("|          100:00:00|"));
}

TEST_F(ANotice, ShortensANameOfMoreThanThirtyBytes) {
  EXPECT_EQ(Title(Times(30, "n")), Times(30, "n"));
  EXPECT_EQ(Title(Times(31, "n")), Times(28, "n") + "…");
  EXPECT_EQ(Title(Times(15, "λ")), Times(15, "λ"));
  EXPECT_EQ(Title(Times(15, "λ") + "n"), Times(15, "λ") + "n…");
  EXPECT_EQ(Title(Times(40, "λ")), Times(28, "λ") + "…");
  // The television's fonts end at U+FFFF, and so does a name.
  EXPECT_EQ(Title("Mia" + Times(6, "😀") + "nnn"), "Mia");
  EXPECT_EQ(Title("Mia" + Times(7, "😀")), "Mia…");
  EXPECT_EQ(Title("Mia\xF0\x9F"), "Mia");
  // A description has room for everything but what no text has room for.
  FakeService::answers["member 0"] = std::string(480, 'n');
  EXPECT_THAT(Shown(0), HasSubstr(std::string(480, 'n') + " calling…|"));
  FakeService::answers["member 0"] = std::string(100'000, 'n');
  EXPECT_THAT(Shown(0), HasSubstr("|Zelto||"));
}

TEST_F(ANotice, IsWrittenToTheLogAndFreed) {
  FakeService::answers = {{"onlined", "Zoë %s"}};
  zelto::g_debugLevel = 4;
  testing::internal::CaptureStdout();
  Shown(3);
  CZeltoManager::HideNotification(3);
  const std::string log = testing::internal::GetCapturedStdout();
  zelto::g_debugLevel = 1;
  for (const char* line :
       {"Global Function Notification\n", "]id: 3\n", "]append: 1\n", "]duration: 10000\n",
        "]num. of buttons: 1\n", "]default focus: 0\n", "]title: Zelto\n",
        "]description: Zoë %s is online.\n", "]icon path: " ICON "\n", "]first button text: OK\n",
        "]second button text: \n", "]third button text: \n", "]first button callback: \n",
        "]second button callback: \n", "]third button callback: \n",
        "]delete global notification info done\n", "]delete noticeID done\n"}) {
    EXPECT_THAT(log, HasSubstr(line));
  }
}

// The address sanitizer sees a notice that is freed twice or never.
TEST_F(ANotice, IsWholeForWhoeverIsRegisteredAtTheMomentOrForNobody) {
  struct Receiver {
    std::atomic<int> whole{0}, broken{0};
    static bool OnEvent(const CEngineEvent* event, void* user) {
      if (event->type != CZeltoManager::PUBLIC_SHOW_NOTICE) return true;
      auto* self = static_cast<Receiver*>(user);
      const bool isWhole =
          test::WrittenNotice(*event) == "8|append|10000|1|0|Zelto|Call Ended|" ICON "|" OK_BUTTON;
      ++(isWhole ? self->whole : self->broken);
      return true;
    }
  } receivers[2];
  engine->RegisterEventCallback(nullptr, nullptr);
  EXPECT_EQ(Shown(8), "");
  std::atomic<bool> stop{false};
  std::thread registering([&] {
    for (int turn = 0; !stop; ++turn) {
      if (turn % 3 == 2) {
        engine->RegisterEventCallback(nullptr, nullptr);
      } else {
        engine->RegisterEventCallback(&Receiver::OnEvent, &receivers[turn % 3]);
      }
      std::this_thread::yield();
    }
  });
  int shown = 0;
  while ((receivers[0].whole < 20 || receivers[1].whole < 20) && ++shown < 200'000) {
    CZeltoManager::ShowNotification(8, 0);
  }
  stop = true;
  registering.join();
  EXPECT_GE(receivers[0].whole, 20);
  EXPECT_GE(receivers[1].whole, 20);
  EXPECT_LE(receivers[0].whole + receivers[1].whole, shown);
  EXPECT_EQ(receivers[0].broken + receivers[1].broken, 0);
}

}  // namespace

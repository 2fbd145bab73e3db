#include "simulator/television/NoticeBoard.h"

#include <gtest/gtest.h>

#include "simulator/television/Languages.h"
#include "simulator/television/Utf16.h"

using namespace television;
using std::chrono::milliseconds;

namespace {

constexpr int kCall = 0;
constexpr int kDuration = 6;

class ANoticeBoard : public ::testing::Test {
 protected:
  void Show(int id, const std::string& description, bool append = true, milliseconds duration = {}) {
    Notice notice{id, append, duration, "Zelto", description, "", {{"Ναι", "Answer"}, {"Nein", ""}}, 1};
    board.Take({Report::Kind::Event, 17, "", {}, "", std::make_shared<const Notice>(std::move(notice))});
  }
  void Hide(const std::string& id) { board.Take({Report::Kind::Event, 18, "", {id}, ""}); }
  std::string OnTop() {
    const auto notice = board.Newest();
    return notice == nullptr ? "none" : notice->description;
  }
  std::string Pressed(const std::string& button) {
    const auto pressed = board.Press(button);
    return pressed ? pressed->label : "none";
  }
  bool Printed(const std::string& text) {
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_for(lock, std::chrono::seconds(5),
                            [&] { return lines.find(text) != std::string::npos; });
  }

  std::mutex mutex;
  std::condition_variable changed;
  std::string lines;
  NoticeBoard board{[this](const std::string& text) {
    const std::lock_guard<std::mutex> lock(mutex);
    lines += text + '\n';
    changed.notify_all();
  }};
};

}  // namespace

TEST_F(ANoticeBoard, StacksReplacesHidesAndForgetsNotices) {
  Show(kCall, "Maria");
  Show(kDuration, "1 s", false);
  Show(kDuration, "2 s", false);
  Show(kCall, "Igor");
  Hide("0");
  EXPECT_EQ(OnTop(), "2 s");
  EXPECT_TRUE(Printed("\"Maria\" is hidden by the engine"));
  Hide("6");  // one only: the second took the place of the first
  EXPECT_EQ(OnTop(), "none");
  Show(kCall, "Maria");
  board.Clear();
  EXPECT_EQ(OnTop(), "none");
}

TEST_F(ANoticeBoard, ClosesWhatHasBeenShownLongEnoughAndNothingElse) {
  Show(kCall, "Maria");
  Show(3, "long", true, std::chrono::hours(1));
  Show(3, "short", true, milliseconds(20));
  EXPECT_TRUE(Printed("\"short\" closes, its time is over"));
  EXPECT_EQ(OnTop(), "long");
  Hide("3");
  EXPECT_EQ(OnTop(), "Maria");
}

TEST_F(ANoticeBoard, ClosesTheNoticeOnTopWhenAButtonOfItIsPressed) {
  for (const char* description : {"a", "b", "c", "d"}) Show(kCall, description);
  EXPECT_TRUE(Printed("[Ναι]  >Nein<"));
  EXPECT_EQ(Pressed("3"), "none");
  EXPECT_EQ(OnTop(), "d");
  EXPECT_EQ(Pressed(""), "Nein");
  EXPECT_EQ(Pressed("1"), "Ναι");
  EXPECT_EQ(Pressed("Ναι"), "Ναι");
  EXPECT_EQ(OnTop(), "a");
  EXPECT_EQ(Pressed("Answer"), "Ναι");
  EXPECT_EQ(Pressed("1"), "none");
}

TEST(NoticeTexts, BecomeUtf8WithHalvesOfPairsReplaced) {
  const unsigned short text[] = {'a', 0x3b1, 0xd55c, 0xd83d, 0xde00, 0xde00, 'b', 0xd83d, 0};
  EXPECT_EQ(ToUtf8(text), "aα한😀\uFFFDb\uFFFD");
  EXPECT_EQ(ToUtf8(nullptr), "");
}

TEST(TheTelevisionsLanguages, AreFoundByNameCodeAndNumber) {
  for (const char* text : {"Korean", "KOR", "29"}) {
    const Language* language = FindLanguage(text);
    ASSERT_NE(language, nullptr) << text;
    EXPECT_STREQ(language->tag, "ko");
  }
  EXPECT_STREQ(FindLanguage("chinese (simplified)")->number, "5");
  EXPECT_EQ(FindLanguage("71"), nullptr);
  EXPECT_EQ(FindLanguage(""), nullptr);
}

#include "simulator/television/Lines.h"

#include <gmock/gmock.h>

#include <initializer_list>

using namespace television;
using ::testing::MatchesRegex;
using ::testing::SizeIs;

namespace {

std::string Fields(std::initializer_list<const char*> fields) {
  std::string text;
  for (const char* field : fields) text += std::string(field) + "\x03\x02";
  return text;
}

}  // namespace

TEST(RecordsOfTheEngine, AreReadWholeAndAnIncompleteOneNot) {
  using Records = std::vector<Record>;
  EXPECT_EQ(ReadRecords(Fields({"a", "", "c", "d"}) + "rest", 2), (Records{{"a", ""}, {"c", "d"}}));
  EXPECT_EQ(ReadRecords(Fields({"a", "b\x03", "c"}), 2), (Records{{"a", "b\x03"}}));
  EXPECT_THAT(ReadRecords("", 2), SizeIs(0));
}

TEST(LinesForAViewer, TellWhoDidWhatAndWhatIsNew) {
  const auto history = [](std::initializer_list<const char*> fields, bool missed) {
    return HistoryLine(ReadRecords(Fields(fields), kHistoryFields).at(0), missed);
  };
  EXPECT_THAT(history({"0", "anna", "Anna", "today", "1", "0", "1", "0", "0", "9"}, true),
              MatchesRegex("missed call from +Anna +today +new"));
  EXPECT_THAT(history({"0", "+1555", "", "today", "0", "1", "0", "1", "0", "9"}, false),
              MatchesRegex("call to +\\+1555 and others +today"));
  EXPECT_THAT(history({"1", "anna", "Anna", "today", "0", "0", "1", "0", "605", "9"}, false),
              MatchesRegex("voicemail from +Anna +today +10:05"));
  EXPECT_THAT(ChatLine({"chat.1", "3", "Anna, Hugo", "Dinner", "today", "2"}),
              MatchesRegex("Dinner +2 unread +today +chat.1 +with Anna, Hugo"));
  EXPECT_THAT(ChatLine({"chat.2", "2", "Anna", "Anna", "", "0"}), MatchesRegex("Anna +chat.2"));
  EXPECT_THAT(MessageLine({"anna", "", "today", "one\ntwo", "3"}),
              MatchesRegex("today +anna: one\\\\ntwo  \\(new\\)"));
  EXPECT_THAT(FoundContactLine({"slow.going", "", "Portugal", "Porto"}),
              MatchesRegex("slow.going +slow.going +Porto, Portugal"));
  EXPECT_THAT(CountryLine({"Sweden", "46", "se"}), MatchesRegex("Sweden +\\+46 +se"));
}

#include "simulator/television/Words.h"

#include <gmock/gmock.h>

using television::Readable;
using television::SplitWords;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ConsoleWords, KeepBlanksInQuotesAndTakeEscapedCharactersAsTheyAre) {
  EXPECT_THAT(SplitWords("Login demo \"my word\" 1"), ElementsAre("Login", "demo", "my word", "1"));
  EXPECT_THAT(SplitWords("a \"\" b"), ElementsAre("a", "", "b"));
  EXPECT_THAT(SplitWords("a\\ b \\\"c\\\" x\\|y \\n"), ElementsAre("a b", "\"c\"", "x\x03\x02y", "\n"));
  EXPECT_THAT(SplitWords("open \"to the end"), ElementsAre("open", "to the end"));
  EXPECT_THAT(SplitWords(" \t "), IsEmpty());
  EXPECT_THAT(SplitWords("ends with\\"), ElementsAre("ends", "with\\"));
}

TEST(ReadableText, ShowsFieldSeparatorsAndControlCharacters) {
  EXPECT_EQ(Readable("a\x03\x02"
                     "b\x03\x02"),
            "a | b | ");
  EXPECT_EQ(Readable("one\ntwo\x03\x1f\xc3\xa9"), "one\\ntwo\\x03\\x1f\xc3\xa9");
}

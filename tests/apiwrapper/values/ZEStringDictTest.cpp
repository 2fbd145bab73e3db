#include "apiwrapper/ZEStringDict.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <string>
#include <vector>

#include "tests/apiwrapper/values/PlainRules.h"

namespace {

ZEString Parsed(const char* token) { return ZEStringDict::parse(token)[0]; }

TEST(AStringDict, KeepsSeveralValuesPerKey) {
  ZEStringDict dict;
  dict.insert(ZEString(), "x");
  EXPECT_EQ(dict.size(), 0U);
  EXPECT_TRUE(dict.format(true).isNull());
  dict.insert("k", "first");
  const ZEStringDict before = dict;
  dict.insert("k", "second");
  dict.insert("null", ZEString());
  EXPECT_STREQ(dict.find("k"), "first");
  EXPECT_STREQ(dict.find(ZEString("k"), 1), "second");
  EXPECT_TRUE(dict.find("k", 2).isNull());
  EXPECT_TRUE(dict.find("null").isNull());
  EXPECT_TRUE(dict.find(ZEString()).isNull());
  EXPECT_EQ(dict.size(), 3U);
  EXPECT_TRUE(dict[3].isNull());
  EXPECT_TRUE(dict.keyAt(3).isNull());
  EXPECT_EQ(before.size(), 1U);
}

TEST(AStringDict, IsOrderedByBuckets) {
  ZEStringDict dict;
  dict.insert("1338", "1");  // bucket 7
  dict.insert("1137", "5");  // bucket 4
  EXPECT_STREQ(dict.format(true), "1137=\"5\" 1338=\"1\"");
  EXPECT_STREQ(dict.keyAt(0), "1137");
  EXPECT_STREQ(dict[1], "1");
  dict.insert("1137", "6");
  EXPECT_STREQ(dict[1], "6");
  EXPECT_STREQ(dict.format(true), "1137=\"5\" 1137=\"6\" 1338=\"1\"");
}

TEST(AStringDict, EscapesAllButBinaryValues) {
  ZEStringDict dict;
  dict.insert("k", "a,b\\\"");
  EXPECT_STREQ(dict.format(true), "k=\"a\\,b\\\\\\\"\"");
  EXPECT_STREQ(dict.format(false), "k=\"a,b\\\"\"");
  ZEStringDict binary;
  binary.insert("k", ZEString::from(",\0", 2));
  EXPECT_STREQ(binary.format(true), "k=\"\\,\\0\"");
}

TEST(AParsedToken, IsCutBehindItsOpeningQuote) {
  EXPECT_STREQ(Parsed("1137=\"12\""), "12");
  EXPECT_STREQ(Parsed("k=\"a\\,b\""), "a,b");
  EXPECT_STREQ(Parsed("k=\"a b\""), "a b");
  EXPECT_TRUE(Parsed("1137=\"\"").isNull());
  EXPECT_EQ(ZEStringDict::parse("1137=\"\"").size(), 1U);
  EXPECT_STREQ(ZEStringDict::parse("=\"v\"").find(""), "v");
  EXPECT_EQ(ZEStringDict::parse("none \"a b\" c").size(), 0U);
}

TEST(AParsedToken, IsBinaryBehindAnR) {
  const ZEString value = Parsed("k=r\"A\\0\"");
  EXPECT_TRUE(value.isBinary());
  EXPECT_STREQ(value, "A\\0");
  char bytes[3];
  EXPECT_EQ(value.toBinary(bytes), 2U);
  EXPECT_EQ(std::string(bytes, 2), std::string("A\0", 2));
  EXPECT_TRUE(Parsed("k=r\"\"").isNull());
  EXPECT_FALSE(Parsed("k=rx\"").isBinary());
}

// Too short for its quotes: the swapped bounds of substr take in what stands before them.
TEST(AParsedToken, StaysInsideItselfWhenCutShort) {
  EXPECT_STREQ(Parsed("k="), "k=");
  EXPECT_STREQ(Parsed("="), "=");
  EXPECT_STREQ(Parsed("k=\""), "=\"");
  EXPECT_STREQ(Parsed("k=r\""), "r\"");
  EXPECT_STREQ(Parsed("k=1"), "=1");
  const ZEStringDict escaped = ZEStringDict::parse("k\\=");
  EXPECT_STREQ(escaped.keyAt(0), "k\\");
  EXPECT_STREQ(escaped[0], "=");
}

TEST(AParsedDict, ComesFromATokenListThatStaysAsItIs) {
  ZEStringList tokens;
  tokens.append("a=\"1 2\\\\\"");
  tokens.append("skipped");
  tokens.append("b=\"\"");
  const ZEStringDict dict = ZEStringDict::parse(tokens);
  EXPECT_EQ(dict.size(), 2U);
  EXPECT_STREQ(dict.find("a"), "1 2\\");
  EXPECT_EQ(tokens.size(), 3U);
  EXPECT_EQ(ZEStringDict::parse(ZEStringList()).size(), 0U);
}

TEST(AParsedDict, OutlivesItsTextAndGivesValuesThatOutliveIt) {
  ZEString value;
  ZEString key;
  {
    ZEStringDict dict = ZEStringDict::parse(std::string("k=\"value\" q=\"a\\\"b\""));
    ZEStringDict copy = dict;
    copy.insert("n", "new");
    EXPECT_EQ(dict.size(), 2U);
    dict = ZEStringDict();
    EXPECT_STREQ(copy.find("n"), "new");
    EXPECT_STREQ(copy.find("q"), "a\"b");
    value = copy.find("k");
    key = copy.keyAt(0);
  }
  EXPECT_STREQ(value, "value");
  EXPECT_EQ(key.length(), 1U);
}

TEST(AParsedDict, FollowsThePlainRulesForAnyText) {
  std::mt19937 random(3);
  const std::string letters = "\"\"\\ =a1r,";
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (auto length = random() % 150; text.size() < length;) {
      text += random() % 4 == 0 ? "k=\"" : std::string(1, letters[random() % letters.size()]);
    }
    std::vector<plain::Pair> expected = plain::Parse(plain::Split(text, ' ', '\\'));
    std::stable_sort(expected.begin(), expected.end(), [](const plain::Pair& a, const plain::Pair& b) {
      return ZEString(a.key).hash(17) < ZEString(b.key).hash(17);
    });
    const ZEStringDict direct = ZEStringDict::parse(text);
    const ZEStringDict byList = ZEStringDict::parse(ZEStringList::split(ZEString(text), ' ', '\\'));
    ASSERT_EQ(direct.size(), expected.size()) << text;
    for (unsigned int i = 0; i < direct.size(); ++i) {
      ASSERT_EQ(direct.keyAt(i).view(), expected[i].key) << text;
      ASSERT_EQ(direct[i].isNull(), !expected[i].value.has_value()) << text;
      ASSERT_EQ(direct[i].view(), expected[i].value.value_or("")) << text;
      ASSERT_EQ(direct[i].isBinary(), expected[i].binary && expected[i].value.has_value()) << text;
      ASSERT_TRUE(byList.keyAt(i) == direct.keyAt(i) && byList[i] == direct[i]) << text;
    }
  }
}

TEST(AFormattedDict, IsParsedBackToTheSameText) {
  std::mt19937 random(4);
  for (int round = 0; round < 2000; ++round) {
    ZEStringDict dict;
    for (auto i = random() % 30; i != 0; --i) {
      std::string value = "v";
      for (auto length = random() % 60; length != 0; --length) value += "ab ,\"\\=\n"[random() % 8];
      dict.insert(ZEString(std::to_string(random() % 2000)), ZEString(value));
    }
    const ZEString text = dict.format(true);
    const ZEStringDict parsed = ZEStringDict::parse(text);
    ASSERT_EQ(parsed.size(), dict.size());
    ASSERT_TRUE(parsed.format(true) == text) << text;
    for (unsigned int i = 0; i < dict.size(); ++i) ASSERT_TRUE(parsed[i] == dict[i]) << text;
  }
}

// The largest message of each kind that invites a second look at the same bytes. Each takes some tens of
// milliseconds; a quadratic walk would take hours.
TEST(AHostileMessage, CostsLinearTime) {
  constexpr std::size_t kSize = 16'000'000;
  const auto start = std::chrono::steady_clock::now();
  for (const char* unit : {"\\", "\"", "=", " ", "a", "=\" ", "\\\\\"", "k=\"\" ", "=r\"", "\\ "}) {
    std::string text = "k=\"";
    while (text.size() < kSize) text += unit;
    const ZEStringDict dict = ZEStringDict::parse(text);
    EXPECT_LE(dict.size(), kSize);
    EXPECT_LE(dict.format(true).length(), 4 * kSize);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::minutes(2));
}

}  // namespace

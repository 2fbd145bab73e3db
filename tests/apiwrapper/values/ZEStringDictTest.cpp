#include "apiwrapper/ZEStringDict.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <string>
#include <vector>

#include "tests/apiwrapper/values/PlainRules.h"

namespace {

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

TEST(AStringDict, IsFormattedInTheOrderOfItsBucketsWithItsValuesEscaped) {
  ZEStringDict dict;
  dict.insert("1338", "1");  // bucket 7
  dict.insert("1137", "5");  // bucket 4
  EXPECT_STREQ(dict.keyAt(0), "1137");
  EXPECT_STREQ(dict[1], "1");
  dict.insert("1137", "a,b\\\"");
  EXPECT_STREQ(dict.format(true), R"(1137="5" 1137="a\,b\\\"" 1338="1")");
  EXPECT_STREQ(dict.format(false), R"(1137="5" 1137="a,b\"" 1338="1")");
  ZEStringDict binary;
  binary.insert("k", ZEString::from(",\0", 2));
  EXPECT_STREQ(binary.format(true), R"(k="\,\0")") << "binary values are escaped already";
}

TEST(AParsedToken, IsCutBehindItsOpeningQuoteAndStaysInsideItself) {
  const struct {
    const char* token;
    const char* key;
    const char* value;
    bool binary;
  } kTokens[] = {
      {R"(1137="12")", "1137", "12", false},
      {R"(k="a\,b")", "k", "a,b", false},
      {R"(k="a b")", "k", "a b", false},
      {R"(="v")", "", "v", false},
      {R"(k=r"A\0")", "k", R"(A\0)", true},
      {R"(k=rx")", "k", "x", false},
      // Too short for its quotes: the swapped bounds of substr take in what stands before them.
      {"k=", "k", "k=", false},
      {"=", "", "=", false},
      {R"(k=")", "k", R"(=")", false},
      {R"(k=r")", "k", R"(r")", true},
      {"k=1", "k", "=1", false},
      {R"(k\=)", R"(k\)", "=", false},
  };
  for (const auto& [token, key, value, binary] : kTokens) {
    const ZEStringDict dict = ZEStringDict::parse(token);
    EXPECT_STREQ(dict.keyAt(0), key) << token;
    EXPECT_STREQ(dict[0], value) << token;
    EXPECT_EQ(dict[0].isBinary(), binary) << token;
  }
  EXPECT_EQ(ZEStringDict::parse(R"(k="" b=r"")").size(), 2U);
  EXPECT_TRUE(ZEStringDict::parse(R"(k="" b=r"")").find("b").isNull());
  EXPECT_EQ(ZEStringDict::parse(R"(none "a b" c)").size(), 0U);
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

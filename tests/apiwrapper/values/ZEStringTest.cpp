#include "apiwrapper/ZEString.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

ZEString Escaped(const std::string& bytes) {
  return ZEString::from(bytes.data(), static_cast<unsigned int>(bytes.size()));
}

std::string Decoded(const ZEString& text) {
  std::string bytes(text.length(), '\xEE');
  bytes.resize(text.toBinary(bytes.data()));
  return bytes;
}

TEST(ANullString, DiffersFromTheEmptyOneAndIsAcceptedEverywhere) {
  const ZEString null;
  const ZEString empty("");
  EXPECT_TRUE(null.isNull());
  EXPECT_TRUE(null.equals(nullptr));
  EXPECT_TRUE(null.equals(ZEString(static_cast<const char*>(nullptr))));
  EXPECT_FALSE(empty.isNull());
  EXPECT_FALSE(empty.equals(null));
  EXPECT_FALSE(empty.equals(nullptr));
  EXPECT_FALSE(null.equals(""));
  EXPECT_STREQ(null, "");
  EXPECT_EQ(null.length() + empty.length() + null.hash(17), 0U);
  EXPECT_FALSE(null.startWith(""));
  EXPECT_TRUE(empty.startWith(null));
  EXPECT_EQ(null.find('a'), 0xFFFFFFFFU);
  EXPECT_EQ(null.toInt(), 0);
  EXPECT_EQ(Decoded(null), "");
  for (const ZEString& derived : {null.right(3), null.trim("a"), null.substr(0, 5), null.escape(),
                                  null.unescape(), null.deepCopy(), null.getHexRepresentation()}) {
    EXPECT_TRUE(derived.isNull());
  }
  for (const ZEString& derived : {empty.right(3), empty.trim("a"), empty.substr(-2, -5), empty.escape()}) {
    EXPECT_TRUE(derived == "");
  }
}

TEST(AString, EndsAtItsFirstNul) {
  EXPECT_STREQ(ZEString("ab\0cd", 5), "ab");
  EXPECT_EQ(ZEString("abcd", 2).view(), "ab");
  EXPECT_EQ(ZEString(std::string_view("ab\0cd", 5)).length(), 2U);
  const ZEString filled = ZEString::filled(4, [](char* bytes) { std::memcpy(bytes, "xy\0z", 4); });
  EXPECT_EQ(filled.view(), "xy");
}

TEST(AString, SharesItsTextUntilOneCopyChanges) {
  ZEString a("abc");
  ZEString b = a;
  EXPECT_EQ(static_cast<const char*>(a), static_cast<const char*>(b));
  EXPECT_NE(static_cast<const char*>(a), static_cast<const char*>(a.deepCopy()));
  b += "d";
  EXPECT_STREQ(a, "abc");
  EXPECT_STREQ(b, "abcd");
  ZEString c = a;
  c.markAsBinary();
  EXPECT_TRUE(c.deepCopy().isBinary());
  EXPECT_FALSE(a.isBinary());
  c = "plain";
  EXPECT_FALSE(c.isBinary());
  const ZEString& self = a;
  a = self;
  EXPECT_STREQ(a, "abc");
}

TEST(AString, GrowsByAppendingOthersAndItself) {
  ZEString text;
  text += static_cast<const char*>(nullptr);
  EXPECT_TRUE(text.isNull());
  std::string expected;
  for (int i = 0; i < 20000; ++i) {
    text += std::to_string(i).c_str();
    text += ZEString();
    expected += std::to_string(i);
  }
  EXPECT_EQ(text.view(), expected);
  ZEString twice("0123456789");
  twice += twice;
  twice += static_cast<const char*>(twice) + 15;
  EXPECT_STREQ(twice, "0123456789012345678956789");
  ZEString room(100U);
  room += "abc";
  room += static_cast<const char*>(room);
  EXPECT_STREQ(room, "abcabc");
}

TEST(AString, IsMadeFromNumbersAndReadAsOne) {
  EXPECT_STREQ(ZEString::from(INT_MIN), "-2147483648");
  EXPECT_STREQ(ZEString::from(255U, 16), "FF");
  EXPECT_STREQ(ZEString::from(4294967295U, 8), "4294967295");
  EXPECT_STREQ(ZEString::from(true), "1");
  EXPECT_EQ(ZEString(" -12x").toInt(), -12);
  EXPECT_EQ(ZEString("x12").toInt(), 0);
  EXPECT_EQ(ZEString("4294967295").toUInt(), 4294967295U);
  EXPECT_TRUE(ZEString("-1").toBool());
  EXPECT_FALSE(ZEString("0").toBool());
  // As strtol answers it, cut down to the type.
  EXPECT_EQ(ZEString("99999999999999999999999").toInt(), static_cast<int>(LONG_MAX));
}

TEST(AString, FindsAndComparesBytes) {
  const ZEString text("a=b=c");
  EXPECT_EQ(text.find('='), 1U);
  EXPECT_EQ(text.find(2, '='), 3U);
  EXPECT_EQ(text.find(600, 'c'), 0xFFFFFFFFU);
  EXPECT_EQ(text.find(-3, 'a'), 0U);
  EXPECT_EQ(text.find('\0'), 0xFFFFFFFFU);
  EXPECT_TRUE(text.startWith("a="));
  EXPECT_FALSE(text.startWith("a=b=c="));
  EXPECT_FALSE(text == "a=b");
}

TEST(AString, HashesSignedBytes) {
  EXPECT_EQ(ZEString("1137").hash(17), 4U);
  EXPECT_EQ(ZEString("1338").hash(17), 7U);
  // 0xFF is -1: h = 0xFFFFFFFF, its top four bits come back as 0xFFFFFFF0.
  EXPECT_EQ(ZEString("\xFF").hash(0xFFFFFFFFU), 0x0FFFFFFFU ^ 0xFFFFFFF0U);
  // Seven letters make 0x67777771, whose top four bits come back at bit 4, without a sign.
  EXPECT_EQ(ZEString("aaaaaaa").hash(0xFFFFFFFFU), (0x67777771U & 0x0FFFFFFFU) ^ 0x60U);
}

TEST(ABinaryString, EscapesAnyBytesAndGivesThemBack) {
  const std::string bytes("A\0,\"\\", 5);
  EXPECT_STREQ(Escaped(bytes), "A\\0\\,\\\"\\\\");
  EXPECT_TRUE(Escaped("").isBinary());
  EXPECT_STREQ(Escaped(bytes).getHexRepresentation(), "41002c225c");
  std::string all;
  for (int i = 0; i < 3 * 256; ++i) all += static_cast<char>(i * 7);
  for (std::size_t length = 0; length < 70; ++length) {
    EXPECT_EQ(Decoded(Escaped(all.substr(length * 9, length))), all.substr(length * 9, length));
  }
}

TEST(ABinaryString, IsDecodedOnlyWhenMarked) {
  ZEString text("a\\0b\\x\\");
  EXPECT_EQ(Decoded(text), "");
  EXPECT_TRUE(text.getHexRepresentation().isNull());
  text.markAsBinary();
  EXPECT_EQ(Decoded(text), std::string("a\0bx\\", 5));  // nothing follows the last backslash
}

TEST(ADerivedString, IsCutByInclusiveBounds) {
  const struct {
    int from, to;
    const char* expected;
  } kCuts[] = {{0, -1, "ab"},  {1, 100, "bc"}, {2, 1, "bc"}, {-5, 0, "a"},
               {2, -2, "abc"}, {7, 9, "c"},    {0, -9, "a"}, {INT_MAX, INT_MIN, "abc"}};
  for (const auto& cut : kCuts) EXPECT_STREQ(ZEString("abc").substr(cut.from, cut.to), cut.expected);
  EXPECT_STREQ(ZEString("abc").right(2), "bc");
  EXPECT_STREQ(ZEString("abc").right(9), "abc");
  EXPECT_STREQ(ZEString("abc").right(0), "");
}

TEST(ADerivedString, LosesOnePrefixAtMost) {
  EXPECT_STREQ(ZEString("ababc").trim("ab"), "abc");
  EXPECT_STREQ(ZEString("abc").trim("x"), "abc");
  EXPECT_STREQ(ZEString("ab").trim("ab"), "");
  EXPECT_STREQ(ZEString("a").trim("ab"), "a");
  EXPECT_STREQ(ZEString("ab").trim(ZEString()), "ab");
}

TEST(ADerivedString, EscapesAndUnescapes) {
  EXPECT_STREQ(ZEString("a,b\"c\\d").escape(), "a\\,b\\\"c\\\\d");
  EXPECT_STREQ(ZEString("\\a\\\\b\\").unescape(), "a\\b");
  EXPECT_STREQ(ZEString::keyValue("k", "a\"b"), "k=\"a\"b\" ");
  EXPECT_STREQ(ZEString::keyValue("k", ZEString()), "k=\"\" ");
  EXPECT_TRUE(ZEString::keyValue(ZEString(), "v").isNull());
}

}  // namespace

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
  EXPECT_FALSE(empty.isNull());
  EXPECT_TRUE(null.equals(nullptr));
  EXPECT_TRUE(null.equals(ZEString(static_cast<const char*>(nullptr))));
  EXPECT_FALSE(null.equals(empty));
  EXPECT_FALSE(empty.equals(null));
  EXPECT_FALSE(null.equals(""));
  EXPECT_FALSE(empty.equals(nullptr));
  EXPECT_STREQ(null, "");
  EXPECT_EQ(null.view(), "");
  EXPECT_EQ(null.length() + empty.length(), 0U);
  EXPECT_FALSE(null.startWith(""));
  EXPECT_TRUE(empty.startWith(null));
  EXPECT_EQ(null.find('a'), 0xFFFFFFFFU);
  EXPECT_EQ(null.hash(17) + empty.hash(17), 0U);
  EXPECT_EQ(null.toInt(), 0);
  EXPECT_FALSE(null.toBool());
  char out = 'x';
  EXPECT_EQ(null.toBinary(&out), 0U);
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
  b += "d";
  EXPECT_STREQ(a, "abc");
  EXPECT_STREQ(b, "abcd");
  ZEString c = a;
  c.markAsBinary();
  EXPECT_TRUE(c.isBinary());
  EXPECT_FALSE(a.isBinary());
  EXPECT_NE(static_cast<const char*>(a), static_cast<const char*>(a.deepCopy()));
  EXPECT_TRUE(c.deepCopy().isBinary());
  c = "plain";
  EXPECT_FALSE(c.isBinary());
  const ZEString& self = a;
  a = self;
  EXPECT_STREQ(a, "abc");
}

TEST(AString, GrowsByAppending) {
  ZEString text;
  text += static_cast<const char*>(nullptr);
  EXPECT_TRUE(text.isNull());
  text += ZEString("");
  EXPECT_TRUE(text == "");
  std::string expected;
  for (int i = 0; i < 20000; ++i) {
    const std::string piece = std::to_string(i);
    text += piece.c_str();
    text += ZEString();
    expected += piece;
  }
  EXPECT_EQ(text.view(), expected);
}

TEST(AString, MayBeAppendedToItself) {
  ZEString text("0123456789");
  text += text;
  text += static_cast<const char*>(text) + 15;
  EXPECT_STREQ(text, "0123456789012345678956789");
  ZEString room(100U);
  room += "abc";
  room += static_cast<const char*>(room);
  EXPECT_STREQ(room, "abcabc");
}

TEST(AString, IsMadeFromNumbers) {
  EXPECT_STREQ(ZEString::from(INT_MIN), "-2147483648");
  EXPECT_STREQ(ZEString::from(255U, 16), "FF");
  EXPECT_STREQ(ZEString::from(255U, 10), "255");
  EXPECT_STREQ(ZEString::from(4294967295U, 8), "4294967295");
  EXPECT_STREQ(ZEString::from(true), "1");
  EXPECT_STREQ(ZEString::from(false), "0");
}

TEST(AString, IsReadAsANumber) {
  EXPECT_EQ(ZEString(" -12x").toInt(), -12);
  EXPECT_EQ(ZEString("x12").toInt(), 0);
  EXPECT_EQ(ZEString("4294967295").toUInt(), 4294967295U);
  EXPECT_TRUE(ZEString("-1").toBool());
  EXPECT_FALSE(ZEString("0").toBool());
  // As strtol answers it, cut down to the type.
  const char* huge = "99999999999999999999999";
  EXPECT_EQ(ZEString(huge).toInt(), static_cast<int>(LONG_MAX));
  EXPECT_EQ(ZEString(huge).toUInt(), static_cast<unsigned int>(ULONG_MAX));
}

TEST(AString, FindsAndComparesBytes) {
  const ZEString text("a=b=c");
  EXPECT_EQ(text.find('='), 1U);
  EXPECT_EQ(text.find(2, '='), 3U);
  EXPECT_EQ(text.find(5, 'c'), 0xFFFFFFFFU);
  EXPECT_EQ(text.find(600, 'c'), 0xFFFFFFFFU);
  EXPECT_EQ(text.find(-3, 'a'), 0U);
  EXPECT_EQ(text.find('\0'), 0xFFFFFFFFU);
  EXPECT_TRUE(text.startWith("a="));
  EXPECT_FALSE(text.startWith("a=b=c="));
  EXPECT_FALSE(text == "a=b");
}

TEST(AString, HashesSignedBytes) {
  EXPECT_EQ(ZEString("ab").hash(17), ((97U << 4) + 98U) % 17U);
  EXPECT_EQ(ZEString("1137").hash(17), 4U);
  EXPECT_EQ(ZEString("1338").hash(17), 7U);
  // 0xFF is -1: h = 0xFFFFFFFF, its top four bits come back as 0xFFFFFFF0.
  EXPECT_EQ(ZEString("\xFF").hash(0xFFFFFFFFU), 0x0FFFFFFFU ^ 0xFFFFFFF0U);
  // Seven letters make 0x67777771, whose top four bits come back at bit 4, without a sign.
  EXPECT_EQ(ZEString("aaaaaaa").hash(0xFFFFFFFFU), (0x67777771U & 0x0FFFFFFFU) ^ 0x60U);
}

TEST(ABinaryString, EscapesAnyBytesAndGivesThemBack) {
  const std::string bytes("A\0,\"\\", 5);
  const ZEString text = Escaped(bytes);
  EXPECT_STREQ(text, "A\\0\\,\\\"\\\\");
  EXPECT_TRUE(text.isBinary());
  EXPECT_EQ(Decoded(text), bytes);
  EXPECT_STREQ(text.getHexRepresentation(), "41002c225c");
  EXPECT_TRUE(Escaped("") == "");
  EXPECT_TRUE(Escaped("").isBinary());

  std::string all;
  for (int i = 0; i < 3 * 256; ++i) all += static_cast<char>(i * 7);
  for (std::size_t length = 0; length < 70; ++length) {
    EXPECT_EQ(Decoded(Escaped(all.substr(length * 9, length))), all.substr(length * 9, length));
  }
  EXPECT_EQ(Decoded(Escaped(all)), all);
}

TEST(ABinaryString, IsDecodedOnlyWhenMarked) {
  ZEString text("a\\0b\\x\\");
  char out[8];
  EXPECT_EQ(text.toBinary(out), 0U);
  EXPECT_TRUE(text.getHexRepresentation().isNull());
  text.markAsBinary();
  EXPECT_EQ(Decoded(text), std::string("a\0bx\\", 5));  // nothing follows the last backslash
}

TEST(ADerivedString, IsCutByInclusiveBounds) {
  const ZEString abc("abc");
  EXPECT_STREQ(abc.substr(0, -1), "ab");
  EXPECT_STREQ(abc.substr(1, 100), "bc");
  EXPECT_STREQ(abc.substr(2, 1), "bc");
  EXPECT_STREQ(abc.substr(-5, 0), "a");
  EXPECT_STREQ(abc.substr(2, -2), "abc");
  // Swapped bounds outside of the text keep to it.
  EXPECT_STREQ(abc.substr(7, 9), "c");
  EXPECT_STREQ(abc.substr(0, -9), "a");
  EXPECT_STREQ(abc.substr(INT_MAX, INT_MIN), "abc");
  EXPECT_STREQ(abc.right(2), "bc");
  EXPECT_STREQ(abc.right(9), "abc");
  EXPECT_STREQ(abc.right(0), "");
}

TEST(ADerivedString, LosesOnePrefixAtMost) {
  EXPECT_STREQ(ZEString("abc").trim("ab"), "c");
  EXPECT_STREQ(ZEString("abc").trim("x"), "abc");
  EXPECT_STREQ(ZEString("ababc").trim("ab"), "abc");
  EXPECT_STREQ(ZEString("ab").trim("ab"), "");
  EXPECT_STREQ(ZEString("ab").trim(ZEString()), "ab");
  EXPECT_STREQ(ZEString("a").trim("ab"), "a");
}

TEST(ADerivedString, EscapesAndUnescapes) {
  EXPECT_STREQ(ZEString("a,b\"c\\d").escape(), "a\\,b\\\"c\\\\d");
  EXPECT_STREQ(ZEString("\\a\\\\b\\").unescape(), "a\\b");
  std::string text;
  for (int i = 0; i < 200; ++i) {
    text += std::string(static_cast<std::size_t>(i % 37), 'x') + ",\"\\,"[i % 4];
    EXPECT_EQ(ZEString(text).escape().unescape().view(), text);
  }
}

TEST(AKeyValue, IsQuotedAndEndsWithABlank) {
  EXPECT_STREQ(ZEString::keyValue("1137", "42"), "1137=\"42\" ");
  EXPECT_STREQ(ZEString::keyValue("k", ZEString()), "k=\"\" ");
  EXPECT_STREQ(ZEString::keyValue("k", "a\"b"), "k=\"a\"b\" ");
  EXPECT_TRUE(ZEString::keyValue(ZEString(), "v").isNull());
}

}  // namespace

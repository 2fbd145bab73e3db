#include "apiwrapper/ZEStringList.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> Texts(const ZEStringList& list) {
  std::vector<std::string> texts;
  for (unsigned int i = 0; i < list.size(); ++i) texts.emplace_back(list[i].view());
  return texts;
}

std::vector<std::string> Split(const std::string& text, char separator = ' ', char escape = '\\') {
  return Texts(ZEStringList::split(text.c_str(), separator, escape));
}

using Tokens = std::vector<std::string>;

TEST(AStringList, IsConsumedFromTheFront) {
  ZEStringList list;
  list.append(ZEString());
  EXPECT_EQ(list.size(), 0U);
  list.append("a");
  list.append("");
  ZEStringList copy = list;
  EXPECT_STREQ(list.peek(), "a");
  EXPECT_TRUE(list.peek() == "");
  EXPECT_TRUE(list.peek().isNull());
  EXPECT_TRUE(list[0].isNull());
  list.append("b");
  EXPECT_EQ(Texts(list), Tokens{"b"});
  EXPECT_EQ(Texts(copy), (Tokens{"a", ""}));
}

TEST(AStringList, StaysInOrderAsAQueueThatNeverEmpties) {
  ZEStringList queue;
  int in = 0;
  int out = 0;
  for (int i = 0; i < 5000; ++i) {
    queue.append(ZEString::from(in++));
    if (i % 3 != 0) queue.append(ZEString::from(in++));
    const int taken = i <= 10 ? 0 : i % 3 == 0 ? 1 : 2;
    for (int k = 0; k < taken; ++k) ASSERT_EQ(queue.peek().toInt(), out++);
  }
  EXPECT_EQ(queue.size(), static_cast<unsigned int>(in - out));
  EXPECT_EQ(queue[queue.size() - 1].toInt(), in - 1);
}

TEST(AStringList, JoinsItsElements) {
  ZEStringList list;
  EXPECT_TRUE(list.join(",", true).isNull());
  list.append("a,b");
  list.append("");
  list.append("c\\");
  EXPECT_STREQ(list.join(",", false), "a,b,,c\\");
  EXPECT_STREQ(list.join(", ", true), "a\\,b, , c\\\\");
  EXPECT_STREQ(list.join(ZEString(), false), "a,bc\\");
}

TEST(ASplitText, KeepsQuotedAndEscapedSeparators) {
  EXPECT_EQ(Split("  a \"b c\"   d "), (Tokens{"a", "\"b c\"", "d"}));
  EXPECT_EQ(Split("a\\\\ b"), Tokens{"a\\\\ b"});  // the character before decides alone
  EXPECT_EQ(Split("   "), Tokens{});
  EXPECT_EQ(Split("\"\" a"), Tokens{});
  EXPECT_EQ(Split("\"\" \"b c\" d\\ e", ' ', 0), (Tokens{"\"\"", "\"b", "c\"", "d\\", "e"}));
  EXPECT_EQ(Split("k=\"a\\\" b\" c"), (Tokens{"k=\"a\\\" b\"", "c"}));
  EXPECT_EQ(Split("k=\"a\\\\\" b"), (Tokens{"k=\"a\\\\\"", "b"}));
  EXPECT_EQ(Split("a \"open b c"), (Tokens{"a", "\"open b c"}));
  EXPECT_EQ(Split("1,2\\,3,,4", ','), (Tokens{"1", "2\\,3", "4"}));
  EXPECT_TRUE(ZEStringList::split(ZEString(), ' ', '\\').size() == 0);
}

}  // namespace

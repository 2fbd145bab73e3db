#include "simulator/runtime/protocol/Frames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "simulator/runtime/protocol/Message.h"

namespace simulator {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Drain(FrameReader& reader) {
  std::vector<std::string> texts;
  std::string_view text;
  while (reader.Next(text)) texts.emplace_back(text);
  return texts;
}

TEST(AStreamOfFrames, IsCutTheSameHoweverItArrives) {
  std::string stream;
  AppendFrame(stream, "ab");
  AppendFrame(stream, "");
  AppendFrame(stream, std::string(300, 'x'));
  EXPECT_EQ(std::string("\0\0\0\2ab", 6), stream.substr(0, 6));
  for (std::size_t at = 0; at <= stream.size(); ++at) {
    FrameReader reader;
    reader.Append(stream.substr(0, at));
    std::vector<std::string> texts = Drain(reader);
    reader.Append(stream.substr(at));
    for (std::string& text : Drain(reader)) texts.push_back(std::move(text));
    ASSERT_THAT(texts, ElementsAre("ab", "", std::string(300, 'x'))) << at;
    EXPECT_EQ(0u, reader.Pending());
  }
}

TEST(AStreamOfFrames, EndsAtALengthThatNoFrameHas) {
  FrameReader reader;
  reader.Append(std::string_view("\x00\xff\xff\xff", 4));
  EXPECT_TRUE(Drain(reader).empty());
  EXPECT_FALSE(reader.Broken());

  FrameReader broken;
  broken.Append(std::string_view("\x01\0\0\0", 4));
  EXPECT_TRUE(Drain(broken).empty());
  EXPECT_TRUE(broken.Broken());
}

TEST(ARequest, IsCutIntoItsParts) {
  Request request;
  ASSERT_TRUE(request.Parse("#1F  a 2046 1805 1137=\"5\" 2006=\"a\\\" b=\\\\\" 1046=\"\""));
  EXPECT_EQ("#1F ", request.Id());
  EXPECT_EQ("2046", request.ClassToken());
  EXPECT_EQ("1805", request.MethodToken());
  ASSERT_EQ(3u, request.Pairs().size());
  EXPECT_EQ("a\" b=\\", Unescape(request.Find("2006")->raw));
  EXPECT_EQ("", request.Find("1046")->raw);
  EXPECT_EQ(nullptr, request.Find("9"));

  ASSERT_TRUE(request.Parse("a 2046 1522"));
  EXPECT_FALSE(request.NeedsReply());
}

TEST(ARequest, KeepsItsIdWhenTheRestIsNone) {
  Request request;
  for (const char* text :
       {"#1  a 2046 1805 1137", "#1  a 2046 1805 1137=5", "#1  a 2046 1805 1137=\"5",
        "#1  a 2046 1805 1137=\"5\"6", "#1  a 2046", "#1  b 2046 1805", "#1  a", "#1 =\"\""}) {
    EXPECT_FALSE(request.Parse(text)) << text;
    EXPECT_EQ("#1 ", request.Id()) << text;
  }
  for (const char* text : {"", " ", "#", "#1", "#xyz a 1 2", "a", "\"", "#123456789ABC  a 2046 1252"}) {
    EXPECT_FALSE(request.Parse(text)) << text;
    EXPECT_FALSE(request.NeedsReply()) << text;
  }
}

TEST(BinaryData, SurviveTheWay) {
  std::string bytes;
  for (int i = 0; i < 512; ++i) bytes += static_cast<char>(i);
  EXPECT_EQ(bytes, UnescapeBinary(EscapeBinary(bytes)));
  EXPECT_EQ("A\\0\\,\\\"\\\\", EscapeBinary(std::string_view("A\0,\"\\", 5)));
}

TEST(Numbers, AreBoundedNotWrapped) {
  EXPECT_EQ(-12, ToInt("-12x"));
  EXPECT_EQ(0, ToInt("x"));
  EXPECT_EQ(2147483647, ToInt("99999999999"));
  EXPECT_EQ(4294967295u, ToUnsigned("99999999999"));
  EXPECT_THAT(SplitList("a,b\\,c,,d"), ElementsAre("a", "b\\,c", "", "d"));
}

}  // namespace
}  // namespace simulator

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "simulator/common/Frames.h"
#include "simulator/runtime/protocol/Decoder.h"

namespace simulator {
namespace {

using ::testing::ElementsAre;

// Hands over a piece, and appends the texts that are whole now.
void Feed(FrameReader& reader, std::string_view piece, std::vector<std::string>& texts) {
  reader.Append(piece);
  for (std::string_view text; reader.Next(text);) texts.emplace_back(text);
}

TEST(AStreamOfFrames, IsCutTheSameHoweverItArrives) {
  std::string stream;
  for (const std::string& text : {std::string("ab"), std::string(), std::string(300, 'x')}) {
    AppendFrame(stream, text);
  }
  EXPECT_EQ(std::string("\0\0\0\2ab", 6), stream.substr(0, 6));
  for (std::size_t at = 0; at <= stream.size(); ++at) {
    FrameReader reader;
    std::vector<std::string> texts;
    Feed(reader, stream.substr(0, at), texts);
    Feed(reader, stream.substr(at), texts);
    ASSERT_THAT(texts, ElementsAre("ab", "", std::string(300, 'x'))) << at;
    EXPECT_EQ(0u, reader.Pending());
  }
}

TEST(AStreamOfFrames, EndsAtALengthThatNoFrameHas) {
  for (const bool breaks : {false, true}) {
    FrameReader reader;
    std::vector<std::string> texts;
    Feed(reader, std::string_view(breaks ? "\x01\0\0\0" : "\x00\xff\xff\xff", 4), texts);
    EXPECT_TRUE(texts.empty());
    EXPECT_EQ(breaks, reader.Broken());
  }
}

TEST(TheDecoder, NamesRequestsAndEventsWithTheirArguments) {
  const struct {
    const char* words;
    const char* text;
  } cases[] = {
      {"Account.Logout object=5 flag=1", "a 2046 1911 1137=\"5\" 1338=\"1\""},
      {"#0 Zelto.Start wait=1 wrapperVersion=1.10 uiVersion=10070/1.0.0.0/",
       "#0  a 1465 1986 1482=\"1\" 1830=\"1.10\" 1553=\"10070/1.0.0.0/\""},
      {"Account.SetAvailability object=5 availability=3", "a 2046 1109 1137=\"5\" 1581=\"1242\""},
      {"Setup.SetStr settingKey=*UI/Pan value=\"two words\"",
       "a 1165 1953 1887=\"*UI/Pan\" 1667=\"two words\""},
      {"Account.FilterOutProps properties=16,21", "a 2046 1522 1857=\"1423,1532\""},
      {"event Account.PropertyChange object=5 property=21 value=7",
       "e 2046 2073 1137=\"5\" 1551=\"1532\" 1667=\"1719\""},
      {"event Zelto.ConnStatusChange connStatus=4", "e 1465 1554 1652=\"1242\""},
      // What nobody understands is shown as it is.
      {"Account.9999 object=5", "a 2046 9999 1137=\"5\""},
      {"9999.1 8=9", "a 9999 1 8=\"9\""},
      {"(malformed) \"\"", ""},
      {"(malformed) junk", "junk"},
      {"event Account.PropertyChange (malformed)", "e 2046 2073 1137=\"5"},
  };
  Decoder decoder;
  for (const auto& [words, text] : cases) EXPECT_EQ(words, decoder.Words(text));
}

TEST(TheDecoder, KnowsWhatAReplyIsAbout) {
  Decoder decoder;
  decoder.Words("#1  a 2046 1879 1137=\"5\" 1857=\"1532,1946\"");
  EXPECT_EQ("#1 reply 21=7 15=<2 bytes>", decoder.Words("#1 b 1532=\"1719\" 1946=r\"\\0\n\""));
  EXPECT_EQ("#1 reply 1532=1719", decoder.Words("#1 b 1532=\"1719\""));  // nobody asked any more
  decoder.Words("#2  a 1465 1986");
  EXPECT_EQ("#2 reply result=1", decoder.Words("#2 b 0=\"1211\""));
  EXPECT_EQ("#3 error no such object", decoder.Words("#3 d no such object"));
  decoder.Words("#4  a 1799 1283");
  EXPECT_EQ("#4 reply 1=a | 1=\"\"", decoder.Words("#4 b 1704=\"a\"\nb 1704=\"\""));
}

}  // namespace
}  // namespace simulator

#include "simulator/runtime/protocol/Decoder.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

class TheDecoder : public ::testing::Test {
 protected:
  Decoder decoder;
};

TEST_F(TheDecoder, NamesRequestsWithTheirArguments) {
  EXPECT_EQ("Account.Logout object=5 flag=1", decoder.Words("a 2046 1911 1137=\"5\" 1338=\"1\""));
  EXPECT_EQ("#0 Zelto.Start wait=1 wrapperVersion=1.10 uiVersion=10070/1.0.0.0/",
            decoder.Words("#0  a 1465 1986 1482=\"1\" 1830=\"1.10\" 1553=\"10070/1.0.0.0/\""));
  EXPECT_EQ("Account.SetAvailability object=5 availability=3",
            decoder.Words("a 2046 1109 1137=\"5\" 1581=\"1242\""));
  EXPECT_EQ("Setup.SetStr settingKey=*UI/Pan value=\"two words\"",
            decoder.Words("a 1165 1953 1887=\"*UI/Pan\" 1667=\"two words\""));
  EXPECT_EQ("Account.FilterOutProps properties=16,21", decoder.Words("a 2046 1522 1857=\"1423,1532\""));
}

TEST_F(TheDecoder, KnowsWhatAReplyIsAbout) {
  decoder.Words("#1  a 2046 1879 1137=\"5\" 1857=\"1532,1946\"");
  EXPECT_EQ("#1 reply 21=7 15=<2 bytes>", decoder.Words("#1 b 1532=\"1719\" 1946=r\"\\0\n\""));
  EXPECT_EQ("#1 reply 1532=1719", decoder.Words("#1 b 1532=\"1719\""));  // nobody asked any more
  decoder.Words("#2  a 1465 1986");
  EXPECT_EQ("#2 reply result=1", decoder.Words("#2 b 0=\"1211\""));
  EXPECT_EQ("#3 error no such object", decoder.Words("#3 d no such object"));
  decoder.Words("#4  a 1799 1283");
  EXPECT_EQ("#4 reply 1=a | 1=\"\"", decoder.Words("#4 b 1704=\"a\"\nb 1704=\"\""));
}

TEST_F(TheDecoder, NamesEvents) {
  EXPECT_EQ("event Account.PropertyChange object=5 property=21 value=7",
            decoder.Words("e 2046 2073 1137=\"5\" 1551=\"1532\" 1667=\"1719\""));
  EXPECT_EQ("event Zelto.ConnStatusChange connStatus=4", decoder.Words("e 1465 1554 1652=\"1242\""));
}

TEST_F(TheDecoder, SaysWhatItDoesNotUnderstand) {
  EXPECT_EQ("Account.9999 object=5", decoder.Words("a 2046 9999 1137=\"5\""));
  EXPECT_EQ("9999.1 8=9", decoder.Words("a 9999 1 8=\"9\""));
  EXPECT_EQ("(malformed) \"\"", decoder.Words(""));
  EXPECT_EQ("(malformed) junk", decoder.Words("junk"));
  EXPECT_EQ("event Account.PropertyChange (malformed)", decoder.Words("e 2046 2073 1137=\"5"));
}

}  // namespace
}  // namespace simulator

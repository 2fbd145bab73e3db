#include "Common/RecordWriter.h"

#include <gtest/gtest.h>

TEST(RecordWriter, EndsEachFieldWithTheSeparatorAndKeepsForeignSeparatorsOut) {
  std::string text;
  zelto::RecordWriter(text).Field("a").Field(-7).Field("x\x03\x02y\x03").Field("");
  EXPECT_EQ(text, "a\x03\x02-7\x03\x02x  y\x03\x03\x02\x03\x02");
  EXPECT_EQ(zelto::FieldText("\x03\x02\x03\x02"), "    ");
}

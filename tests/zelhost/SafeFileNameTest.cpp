#include "zelhost/SafeFileName.h"

#include <gtest/gtest.h>

using zelhost::SafeFileName;

TEST(ASafeFileName, IsTheNameItselfForOrdinaryIdentities) {
  for (const char* name :
       {"ann", "ann.smith@example.com", "+491234567", "live:x_y-z", "", "J\xC3\xBCrgen Gro\xC3\x9F"}) {
    EXPECT_EQ(SafeFileName(name), name);
  }
}

TEST(ASafeFileName, LeadsOutOfNoFolderAndHidesNothing) {
  EXPECT_EQ(SafeFileName("../../etc/passwd"), "%2E.%2F..%2Fetc%2Fpasswd");
  EXPECT_EQ(SafeFileName(".."), "%2E.");
  EXPECT_EQ(SafeFileName(".hidden"), "%2Ehidden");
  EXPECT_EQ(SafeFileName(std::string("a\0b\n\x7F", 5)), "a%00b%0A%7F");
  EXPECT_NE(SafeFileName("a%2Fb"), SafeFileName("a/b"));
  EXPECT_EQ(zelhost::AvatarPath("a/b"), "/mtd_rwcommon/moip/engines/Zelto/avatar/a%2Fb.jpg");
}

TEST(ASafeFileName, StaysShortAndDistinctForLongNames) {
  const std::string longest(200, 'a');
  EXPECT_EQ(SafeFileName(longest), longest);
  const std::string one = SafeFileName(longest + "b");
  const std::string other = SafeFileName(longest + "c");
  EXPECT_EQ(one.size(), 200u);
  EXPECT_NE(one, other);
  EXPECT_EQ(one, SafeFileName(longest + "b"));
  EXPECT_LE(SafeFileName(std::string(1'000'000, '/')).size(), 200u);
}

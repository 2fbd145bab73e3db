#include <gmock/gmock.h>

#include <fstream>

#include "tests/system/SwitchedOnTelevision.h"

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace test {

namespace {

// Reasons for a sign-out that the runtime gives.
constexpr char kWrongPassword[] = "3";
constexpr char kUnknownAccount[] = "2";
constexpr char kNameTaken[] = "11";
constexpr char kSignedInElsewhere[] = "4";

class AViewer : public ATelevision {
 protected:
  void SetUp() override { SwitchOnAndWait(); }
};

}  // namespace

TEST_F(AViewer, SignsInWithAPasswordAndOut) {
  EXPECT_EQ(Execute("GetZeltoState"), kLoaded);
  EXPECT_EQ(Execute("GetLoginState"), "0");
  SignIn();
  EXPECT_EQ(Execute("GetAccountInfo", "1"), kDemoName);
  EXPECT_EQ(Execute("GetLastLoginID", "0"), kDemoName);
  EXPECT_EQ(Execute("Login", kDemoName, kDemoPassword, "1"), "0");  // already signed in
  EXPECT_EQ(Execute("Logout", "0"), "1");
  EXPECT_TRUE(Arrives(kLoggedOut));
  EXPECT_EQ(Execute("GetLoginState"), "0");
  EXPECT_EQ(Execute("GetAccountInfo", "1"), "");
}

TEST_F(AViewer, IsSignedInByTheTelevisionTheNextTime) {
  SignIn();
  ASSERT_EQ(Execute("SetProp", "16", "at home"), "1");
  SwitchOff();
  m_host.WithState([](television::TelevisionState& state) { state.Set("autoStart", "1"); });
  SwitchOnAndWait();
  ASSERT_TRUE(Arrives(kLoggedIn));
  ASSERT_TRUE(Arrives(kContactListInSync));
  EXPECT_EQ(Execute("GetAccountInfo", "1"), kDemoName);
  EXPECT_EQ(Execute("GetAccountInfo", "16"), "at home");
  EXPECT_EQ(Execute("IsAutoSignInSet"), "1");
  EXPECT_EQ(Execute("IsDefaultAccountZeltoName", kDemoName), "1");
}

TEST_F(AViewer, WithAWrongPasswordIsToldSo) {
  ASSERT_EQ(Execute("Login", kDemoName, "no such word", "0"), "1");
  EXPECT_TRUE(Arrives(kLoggedOut, kWrongPassword));
  EXPECT_EQ(Execute("GetLogoutReason"), kWrongPassword);
  EXPECT_EQ(Execute("GetLoginState"), "0");
  SignIn();  // and may try again
}

TEST_F(AViewer, WithAnUnknownNameIsToldSo) {
  ASSERT_EQ(Execute("Login", "nobody.at.all", "some word 1", "0"), "1");
  EXPECT_TRUE(Arrives(kLoggedOut, kUnknownAccount));
}

TEST_F(AViewer, RegistersANewAccountAndFindsItsContactForTests) {
  ASSERT_EQ(Execute("Register", "new.viewer", "walrus77", "viewer@example.org", "10"), "1");
  ASSERT_TRUE(Arrives(kLoggedIn));
  ASSERT_TRUE(Arrives(kContactListInSync));
  EXPECT_EQ(Execute("GetAccountInfo", "1"), "new.viewer");
  EXPECT_EQ(Execute("Logout", "0"), "1");
  EXPECT_TRUE(Arrives(kLoggedOut));
  SignIn("new.viewer", "walrus77");
}

TEST_F(AViewer, WhoWantsATakenNameIsOfferedOthers) {
  ASSERT_EQ(Execute("Register", kDemoName, "walrus77", "viewer@example.org", "00"), "1");
  ASSERT_TRUE(Arrives(kLoggedOut, kNameTaken));
  const std::string names = Execute("GetSuggestedZeltoNameList");
  EXPECT_THAT(names, StartsWith(kDemoName));
  EXPECT_THAT(names, HasSubstr("\x03\x02"));
}

TEST_F(AViewer, IsSignedOutWhenSigningInElsewhere) {
  SignIn();
  EXPECT_THAT(Door(R"({"order":"sign-out","reason":"elsewhere"})"), HasSubstr("ok"));
  EXPECT_TRUE(Arrives(kLoggedOut, kSignedInElsewhere));
  EXPECT_EQ(Execute("GetLoginState"), "0");
}

TEST_F(AViewer, SeesOwnPictureAsAFile) {
  SignIn();
  const std::string picture = Execute("GetAccountInfo", "15");
  ASSERT_THAT(picture, StartsWith("file:///mtd_rwcommon/moip/engines/Zelto/avatar/"));
  std::ifstream file(Path(picture.substr(7)), std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(file)), {});
  EXPECT_THAT(bytes, StartsWith("\xff\xd8\xff"));
}

TEST_F(AViewer, ChangesWhatTheServiceKeepsOnlyWhenItIsCommitted) {
  SignIn();
  ASSERT_EQ(Execute("GetAccountInfo", "36"), "1");
  ASSERT_EQ(Execute("SetCallAllowPolicy", "0"), "1");
  EXPECT_TRUE(Arrives(kCommitting));
  EXPECT_TRUE(Arrives(kCommitted));
  EXPECT_EQ(Execute("GetAccountInfo", "36"), "2");

  EXPECT_THAT(Door(R"({"order":"fail-commit"})"), HasSubstr("ok"));
  ASSERT_EQ(Execute("SetCallAllowPolicy", "1"), "1");
  EXPECT_TRUE(Arrives(kCommitFailed));
  EXPECT_EQ(Execute("GetAccountInfo", "36"), "2");
}

TEST_F(AViewer, FindsSettingsAgainAfterARestart) {
  SignIn();
  EXPECT_EQ(Execute("GetCallForwardTimer"), "120");  // the account's default
  EXPECT_EQ(Execute("SetCallForwardTimer", "45"), "1");
  EXPECT_EQ(Execute("SetMicVolume", "77"), "1");
  EXPECT_EQ(Execute("SaveDBPan", "-3.5"), "1");
  EXPECT_EQ(Execute("SetAutoVideoReceive", "1", "1"), "1");
  SwitchOff();
  SwitchOnAndWait();
  EXPECT_EQ(Execute("GetMicVolume"), "77");
  EXPECT_EQ(Execute("GetDBPan"), "-3.5");
  SignIn();
  EXPECT_EQ(Execute("GetCallForwardTimer"), "45");
  EXPECT_EQ(Execute("GetAutoVideoReceive"), "2");
}

TEST_F(AViewer, LearnsWhatThePasswordLacks) {
  EXPECT_EQ(Execute("ValidatePasswd", kDemoName, "walrus77"), "1");
  EXPECT_EQ(Execute("ValidatePasswd", kDemoName, "ab1"), "2");
  EXPECT_EQ(Execute("ValidatePasswd", kDemoName, "walrus 77"), "5");
  EXPECT_EQ(Execute("ValidatePasswd", "walrus77", "walrus77"), "6");
  EXPECT_EQ(Execute("IsValidEmail", "viewer@example.org"), "1");
  EXPECT_EQ(Execute("IsValidEmail", "viewer"), "0");
}

}  // namespace test

#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using test::RuntimeFixture;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

LogoutReason Reason(const Object& account) {
  return static_cast<LogoutReason>(account.GetInt(account::kLogoutReason));
}
int Status(const Object& account) { return account.GetInt(account::kStatus); }

class ASignIn : public RuntimeFixture {
 protected:
  void SignInAgain(const Object& account) {
    Tell(AccountMethod::Login, On(account));
    Pass();
  }
  void SignOut(const Object& account, const char* forgets) {
    Tell(AccountMethod::Logout, On(account) + Pair(ZEKey::Flag, forgets));
    Pass();
  }
};

TEST_F(ASignIn, GoesThroughItsStatusesAndEndsTheOneBeforeUnlessItIsTheSame) {
  Object& demo = SignIn("demo", "demo1234");
  EXPECT_EQ("Demo Person", demo.GetText(account::kFullName));
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ(5, demo.GetInt(account::kListSync));
    EXPECT_THAT(ValuesOf(demo, account::kStatus), ElementsAre("3", "4", "5", "6", "7"));
    SignIn("demo", "demo1234");
  }
  Object& maria = SignIn("maria", "maria1234");
  EXPECT_EQ(1, Status(demo));
  EXPECT_EQ(7, Status(maria));
  EXPECT_EQ("maria", session.signIn.Name());
}

TEST_F(ASignIn, FailsWithItsReasonAndLeavesNobodySignedIn) {
  const struct {
    const char* name;
    const char* password;
    LogoutReason reason;
  } cases[] = {{"demo", "wrong123", LogoutReason::WrongPassword},
               {"nobody", "demo1234", LogoutReason::UnknownAccount},
               {"unreachable", "demo1234", LogoutReason::ServiceUnreachable},
               {"damaged", "demo1234", LogoutReason::DatabaseDamaged},
               {"toomany", "demo1234", LogoutReason::TooManyAttempts}};
  for (const auto& [name, password, reason] : cases) {
    const Object& account = SignIn(name, password, true);
    EXPECT_EQ(reason, Reason(account)) << name;
    EXPECT_THAT(ValuesOf(account, account::kStatus), ElementsAre("3", "4", "5", "1")) << name;
    EXPECT_EQ(nullptr, session.signIn.Current());
  }
  EXPECT_THAT(device.Accounts(), IsEmpty());
}

TEST_F(ASignIn, NeedsNoPasswordWhileTheRightOneIsStored) {
  Object& demo = SignIn("demo", "demo1234", true);
  EXPECT_EQ(std::to_string(demo.id), Result(RootMethod::GetDefaultAccount));
  SignOut(demo, "0");
  EXPECT_EQ(2, Status(demo));
  SignInAgain(demo);
  EXPECT_EQ(7, Status(demo));
  SignOut(demo, "1");
  EXPECT_EQ(1, Status(demo));
  SignInAgain(demo);
  EXPECT_EQ(LogoutReason::NoStoredPassword, Reason(demo));

  SignIn("demo", "demo1234", true);
  ASSERT_TRUE(service.ChangePassword("demo", "demo1234", "other4you"));
  SignOut(demo, "0");
  SignInAgain(demo);
  EXPECT_EQ(LogoutReason::PasswordChanged, Reason(demo));
  EXPECT_EQ(1, Status(demo));

  SignIn("demo", "other4you", true);
  SignIn("demo", "other4you", false);
  EXPECT_EQ(std::nullopt, device.StoredPassword("demo"));
}

TEST_F(ASignIn, CanBeCalledOffAtEveryStep) {
  for (int step = 0; step < 20; ++step) {
    Object& demo = Account("demo");
    Tell(AccountMethod::LoginWithPassword, On(demo) + Pair(ZEKey::Password, "demo1234"));
    Pass(10 * step);
    SignOut(demo, "0");
    ASSERT_EQ(1, Status(demo)) << step;
    ASSERT_EQ(LogoutReason::Requested, Reason(demo)) << step;
    ASSERT_EQ("", session.signIn.Name());
  }
}

class ASignedInAccount : public RuntimeFixture {
 protected:
  ASignedInAccount() : demo(SignIn("demo", "demo1234")) { outbox.texts.clear(); }
  std::vector<std::string> ChangePassword(const std::string& before, const std::string& now) {
    Tell(AccountMethod::ChangePassword, On(demo) + Pair(ZEKey::OldPassword, before) +
                                            Pair(ZEKey::NewPassword, now) + Pair(ZEKey::SavePassword, "1"));
    Pass();
    return ValuesOf(demo, account::kPasswordStatus);
  }
  static std::string Property(int property, const char* value) {
    return Pair(ACCOUNT_CLASS.properties[property - 1].name, value);
  }
  Object& demo;
};

TEST_F(ASignedInAccount, ChangesItsPasswordOrSaysWhyNot) {
  EXPECT_THAT(ChangePassword("wrong123", "other4you"), ElementsAre("2", "3"));
  EXPECT_THAT(ChangePassword("demo1234", "bad"), ElementsAre("2", "6"));
  EXPECT_THAT(ChangePassword("demo1234", "demo1234"), ElementsAre("2", "5"));
  EXPECT_THAT(ChangePassword("demo1234", "other4you"), ElementsAre("2", "1"));
  EXPECT_EQ("other4you", device.StoredPassword("demo"));
  session.signIn.Drop(LogoutReason::Requested);
  EXPECT_THAT(ChangePassword("other4you", "third4you"), ElementsAre("2", "7"));
}

TEST_F(ASignedInAccount, KeepsProfileValuesButNotThoseOfTheRuntime) {
  EXPECT_EQ("1", Result(AccountMethod::SetProps, On(demo) + Property(account::kMood, "fine, \"really\"")));
  EXPECT_THAT(ValuesOf(demo, account::kMood), ElementsAre("\"fine, \"really\"\""));
  EXPECT_EQ("0", Result(AccountMethod::SetProps, On(demo) + Property(account::kStatus, "1113")));
  EXPECT_EQ(7, Status(demo));
  const std::string picture = "\xff\xd8\\0\\,\\\"\\\\\n\xff\xd9";
  Tell(AccountMethod::SetProps, On(demo) + "1946=\"" + picture + "\"");
  EXPECT_EQ(std::string("\xff\xd8\0,\"\\\n\xff\xd9", 9),
            UnescapeBinary(service.Profile("demo")[account::kPicture].text));
  EXPECT_EQ("b 1946=r\"" + picture + "\"", Ask("2046 1879 " + On(demo) + "1857=\"1946\""));
}

TEST_F(ASignedInAccount, HasServerSideValuesOnceTheyAreCommitted) {
  const std::string policy = On(demo) + Property(account::kChatPolicy, "1392");
  session.commit.FailNext(1);
  Tell(AccountMethod::SetServersideProps, policy);
  Pass();
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "3"));
  Tell(AccountMethod::SetServersideProps, policy);
  Tell(AccountMethod::CancelServerCommit, On(demo));
  Pass();
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "3"));
  EXPECT_EQ(1, demo.GetInt(account::kChatPolicy));
  Tell(AccountMethod::SetServersideProps, policy);
  EXPECT_EQ(1, demo.GetInt(account::kChatPolicy));
  Pass();
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "1"));
  EXPECT_EQ(2, demo.GetInt(account::kChatPolicy));
  EXPECT_EQ("2", service.Profile("demo")[account::kChatPolicy].text);
}

TEST_F(ASignedInAccount, TellsItsCapabilitiesAndAvailability) {
  const auto capability = [&](const char* token, const char* key) {
    return Result(AccountMethod::GetCapabilityStatus, On(demo) + Pair(ZEKey::Capability, token), key);
  };
  EXPECT_EQ("1498", capability("1119", ZEKey::Result));
  EXPECT_EQ("1775", capability("1215", ZEKey::Result));
  EXPECT_GT(std::stoll(capability("1215", ZEKey::Expiry)), 1700000000);
  EXPECT_EQ("1949", capability("1502", ZEKey::Result));
  Tell(AccountMethod::SetAvailability, On(demo) + Pair(ZEKey::Availability, "1242"));
  EXPECT_THAT(ValuesOf(demo, account::kAvailability), ElementsAre("3"));
}

}  // namespace
}  // namespace simulator

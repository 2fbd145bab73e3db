#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using test::RuntimeFixture;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

int Reason(const Object& account) { return account.GetInt(account::kLogoutReason); }
int Status(const Object& account) { return account.GetInt(account::kStatus); }

class ASignIn : public RuntimeFixture {};

TEST_F(ASignIn, GoesThroughItsStatusesToTheListInSync) {
  Object& demo = SignIn("demo", "demo1234");
  EXPECT_EQ(7, Status(demo));
  EXPECT_EQ(5, demo.GetInt(account::kListSync));
  EXPECT_EQ("Demo Person", demo.GetText(account::kFullName));
  const std::string picture = UnescapeBinary(demo.GetText(account::kPicture));
  EXPECT_EQ("\xff\xd8", picture.substr(0, 2));
  EXPECT_EQ("\xff\xd9", picture.substr(picture.size() - 2));
  EXPECT_THAT(ValuesOf(demo, account::kStatus), ElementsAre("3", "4", "5", "6", "7"));
}

TEST_F(ASignIn, FailsWithItsReasonAndLeavesNobodySignedIn) {
  struct Case {
    const char* name;
    const char* password;
    LogoutReason reason;
  };
  for (const Case& each : {Case{"demo", "wrong123", LogoutReason::WrongPassword},
                           Case{"nobody", "demo1234", LogoutReason::UnknownAccount},
                           Case{"toomany", "demo1234", LogoutReason::TooManyAttempts}}) {
    const Object& account = SignIn(each.name, each.password, true);
    EXPECT_EQ(static_cast<int>(each.reason), Reason(account)) << each.name;
    EXPECT_THAT(ValuesOf(account, account::kStatus), ElementsAre("3", "4", "5", "1")) << each.name;
    EXPECT_EQ(nullptr, session.signIn.Current());
  }
  EXPECT_THAT(device.Accounts(), IsEmpty());
}

TEST_F(ASignIn, TellsItsReasonBeforeTheStatusThatMakesTheEngineAsk) {
  SignIn("demo", "wrong123");
  std::string reasonFirst;
  for (const std::string& words : Words()) {
    if (words.find("property=23") != std::string::npos) reasonFirst += "reason ";
    if (words.find("property=21 value=1") != std::string::npos) reasonFirst += "status";
  }
  EXPECT_EQ("reason status", reasonFirst);
}

TEST_F(ASignIn, NeedsNoPasswordOnceItIsStored) {
  Object& demo = SignIn("demo", "demo1234", true);
  EXPECT_EQ(std::to_string(demo.id), Result(RootMethod::GetDefaultAccount));
  Tell(AccountMethod::Logout, On(demo) + Pair(ZEKey::Flag, "0"));
  Pass();
  EXPECT_EQ(2, Status(demo));
  Tell(AccountMethod::Login, On(demo));
  Pass();
  EXPECT_EQ(7, Status(demo));

  Tell(AccountMethod::Logout, On(demo) + Pair(ZEKey::Flag, "1"));
  Pass();
  EXPECT_EQ(1, Status(demo));
  Tell(AccountMethod::Login, On(demo));
  Pass();
  EXPECT_EQ(static_cast<int>(LogoutReason::NoStoredPassword), Reason(demo));
}

TEST_F(ASignIn, WithAStoredPasswordThatWasChangedForgetsIt) {
  Object& demo = SignIn("demo", "demo1234", true);
  session.signIn.Drop(LogoutReason::Requested);
  ASSERT_TRUE(service.ChangePassword("demo", "demo1234", "other4you"));
  Tell(AccountMethod::Login, On(demo));
  Pass();
  EXPECT_EQ(static_cast<int>(LogoutReason::PasswordChanged), Reason(demo));
  EXPECT_EQ(1, Status(demo));
}

TEST_F(ASignIn, WithoutSavingForgetsAnOlderStoredPassword) {
  SignIn("demo", "demo1234", true);
  SignIn("demo", "demo1234", false);
  EXPECT_EQ(std::nullopt, device.StoredPassword("demo"));
}

TEST_F(ASignIn, EndsTheOneBefore) {
  Object& demo = SignIn("demo", "demo1234");
  Object& maria = SignIn("maria", "maria1234");
  EXPECT_EQ(1, Status(demo));
  EXPECT_EQ(7, Status(maria));
  EXPECT_EQ("maria", session.signIn.Name());
}

TEST_F(ASignIn, OfTheSameAccountAgainDoesNotReportItSignedOut) {
  Object& demo = SignIn("demo", "demo1234");
  Words();
  SignIn("demo", "demo1234");
  EXPECT_THAT(ValuesOf(demo, account::kStatus), ElementsAre("3", "4", "5", "6", "7"));
}

TEST_F(ASignIn, CanBeCalledOffAtEveryStep) {
  for (int step = 0; step < 20; ++step) {
    Object& demo = Account("demo");
    Tell(AccountMethod::LoginWithPassword, On(demo) + Pair(ZEKey::Password, "demo1234"));
    Pass(10 * step);
    Tell(AccountMethod::Logout, On(demo));
    Pass();
    ASSERT_EQ(1, Status(demo)) << step;
    ASSERT_EQ(static_cast<int>(LogoutReason::Requested), Reason(demo)) << step;
    ASSERT_EQ("", session.signIn.Name());
  }
}

TEST_F(ASignIn, EndsWhenTheAccountIsTakenElsewhere) {
  Object& account = SignIn("elsewhere", "demo1234");
  EXPECT_EQ(7, Status(account));
  Pass(2500);
  EXPECT_EQ(1, Status(account));
  EXPECT_EQ(static_cast<int>(LogoutReason::SignedInElsewhere), Reason(account));
}

TEST_F(ASignIn, WhoseListDoesNotSynchroniseIsASignInAllTheSame) {
  const Object& account = SignIn("nosync", "demo1234");
  EXPECT_EQ(7, Status(account));
  EXPECT_EQ(6, account.GetInt(account::kListSync));
}

TEST_F(ASignIn, SigningOutOfNothingIsConfirmed) {
  Object& demo = Account("demo");
  Tell(AccountMethod::Logout, On(demo));
  EXPECT_THAT(ValuesOf(demo, account::kStatus), ElementsAre("1"));
}

class ARegistration : public RuntimeFixture {
 protected:
  Object& Register(const std::string& name, const std::string& password, const std::string& email = {}) {
    Object& account = Account(name);
    Tell(AccountMethod::Register, On(account) + Pair(ZEKey::Password, password) +
                                      Pair(ZEKey::SavePassword, "1") + Pair(ZEKey::Email, email));
    Pass();
    return account;
  }
};

TEST_F(ARegistration, SignsTheNewAccountIn) {
  Object& account = Register("newcomer", "good4you", "new@example.org");
  EXPECT_EQ(7, Status(account));
  EXPECT_EQ("newcomer", Result(RootMethod::GetExistingAccounts));
  EXPECT_EQ("good4you", device.StoredPassword("newcomer"));
}

TEST_F(ARegistration, OfATakenNameComesBackWithSuggestions) {
  Object& demo = Register("demo", "");
  EXPECT_EQ(static_cast<int>(LogoutReason::NameTaken), Reason(demo));
  EXPECT_EQ("demo.tv;demo.home;demo.2", demo.GetText(account::kSuggestedNames));
  EXPECT_EQ(1, Status(demo));
}

TEST_F(ARegistration, WithABadPasswordOrAddressMakesNoAccount) {
  EXPECT_EQ(static_cast<int>(LogoutReason::BadPassword), Reason(Register("newcomer", "")));
  EXPECT_EQ(static_cast<int>(LogoutReason::BadEmail), Reason(Register("newcomer", "good4you", "nowhere")));
  EXPECT_FALSE(service.Exists("newcomer"));
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
  const std::string mood = Pair(ACCOUNT_CLASS.properties[account::kMood - 1].name, "fine, \"really\"");
  EXPECT_EQ("1", Result(AccountMethod::SetProps, On(demo) + mood));
  EXPECT_EQ("fine, \"really\"", service.Profile("demo")[account::kMood].text);
  EXPECT_THAT(ValuesOf(demo, account::kMood), ElementsAre("\"fine, \"really\"\""));
  const std::string status = Pair(ACCOUNT_CLASS.properties[account::kStatus - 1].name, "1113");
  EXPECT_EQ("0", Result(AccountMethod::SetProps, On(demo) + status));
  EXPECT_EQ(7, Status(demo));
}

TEST_F(ASignedInAccount, KeepsAPictureByteForByte) {
  const std::string bytes("\xff\xd8\0,\"\\\n\xff\xd9", 9);
  Tell(AccountMethod::SetProps, On(demo) + "1946=\"" + EscapeBinary(bytes) + "\"");
  EXPECT_EQ(bytes, UnescapeBinary(service.Profile("demo")[account::kPicture].text));
  EXPECT_EQ("b 1946=r\"" + EscapeBinary(bytes) + "\"", Ask("2046 1879 " + On(demo) + "1857=\"1946\""));
}

TEST_F(ASignedInAccount, CommitsServerSideValues) {
  const std::string policy = Pair(ACCOUNT_CLASS.properties[account::kChatPolicy - 1].name, "1392");
  Tell(AccountMethod::SetServersideProps, On(demo) + policy);
  EXPECT_EQ(1, demo.GetInt(account::kChatPolicy));
  Pass();
  EXPECT_EQ(2, demo.GetInt(account::kChatPolicy));
  EXPECT_EQ("2", service.Profile("demo")[account::kChatPolicy].text);
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "1"));
}

TEST_F(ASignedInAccount, KeepsTheOldValuesWhenACommitFails) {
  const std::string policy = Pair(ACCOUNT_CLASS.properties[account::kChatPolicy - 1].name, "1392");
  session.commit.FailNext(1);
  Tell(AccountMethod::SetServersideProps, On(demo) + policy);
  Pass();
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "3"));
  Tell(AccountMethod::SetServersideProps, On(demo) + policy);
  Tell(AccountMethod::CancelServerCommit, On(demo));
  Pass();
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "3"));
  EXPECT_EQ(1, demo.GetInt(account::kChatPolicy));
}

TEST_F(ASignedInAccount, TellsItsCapabilitiesAndAvailability) {
  const auto capability = [&](const char* token, const char* key) {
    return Result(AccountMethod::GetCapabilityStatus, On(demo) + Pair(ZEKey::Capability, token), key);
  };
  EXPECT_EQ("1498", capability("1119", ZEKey::Result));
  EXPECT_EQ("0", capability("1119", ZEKey::Expiry));
  EXPECT_EQ("1775", capability("1215", ZEKey::Result));
  EXPECT_GT(std::stoll(capability("1215", ZEKey::Expiry)), 1700000000);
  EXPECT_EQ("1949", capability("1502", ZEKey::Result));
  Tell(AccountMethod::SetAvailability, On(demo) + Pair(ZEKey::Availability, "1242"));
  EXPECT_THAT(ValuesOf(demo, account::kAvailability), ElementsAre("3"));
}

}  // namespace
}  // namespace simulator

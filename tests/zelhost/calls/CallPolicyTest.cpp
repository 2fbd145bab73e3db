// What becomes of an incoming call, with a whole service around it.
#include <gtest/gtest.h>

#include "Common/Shell.h"
#include "apiwrapper/Account.h"
#include "tests/zelhost/Service.h"
#include "tests/zelhost/calls/CallScript.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/calls/ZelhostCallManager.h"

using namespace test::call;

namespace {

constexpr unsigned kAccount = 5;

struct Policy {
  const char* name;
  int callPolicy;
  int availability;
  const char* widget;
  const char* forward;
  const char* voicemail;
  const char* timeout;
  bool rings;
  const char* ending;  // the end action that it comes to without anybody's doing; null for none
};

class ACallToTheSignedIn : public test::Service {
 protected:
  ACallToTheSignedIn() {
    m_memory.Serve(*m_runtime);
    test::call::Serve(*m_runtime, m_memory);
    m_memory.Set("*UI/IsInitialized", "1");
    m_memory.SetProperty(kAccount, Token(ACCOUNT_PROPERTY_MAP, Account::P_NAME), "ann");
    m_runtime->reply("1825", ScriptedRuntime::pair("0", std::to_string(kAccount)));
  }
  void SetUp() override {
    ASSERT_TRUE(IsLoaded());
    ASSERT_TRUE(CZelhostAccountManager::GetInstance()->Login("ann", "secret", true));
    m_runtime->sendEvent("2046", kChanged, Changed(kAccount, "1532", "1719"));
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_IN));
    m_host.CountUntilNow();
  }
  void SetAccount(int property, const PMAP* values, int value) {
    m_runtime->sendEvent("2046", kChanged,
                         Changed(kAccount, Token(ACCOUNT_PROPERTY_MAP, property), Token(values, value)));
  }
  void Ring() { m_runtime->sendEvent(kCallClass, kNewCall, Id(kCall)); }
  std::vector<std::string> Endings() {
    std::vector<std::string> endings;
    for (const ScriptedRequest& request : m_runtime->requests(kEnd)) {
      endings.push_back(request.arguments.at("1391"));
    }
    return endings;
  }
};

class AnIncomingCall : public ACallToTheSignedIn, public testing::WithParamInterface<Policy> {};

TEST_P(AnIncomingCall, RingsOrEndsAsThePolicySays) {
  const Policy& policy = GetParam();
  m_memory.Set("Lib/Call/ApplyCF", policy.forward);
  m_memory.Set("Lib/Call/SendToVM", policy.voicemail);
  m_memory.Set("Lib/Call/NoAnswerTimeout", policy.timeout);
  m_host.Execute("SetZeltoWidgetState", policy.widget);
  SetAccount(Account::P_ZELTO_CALL_POLICY, ACCOUNT_ZELTOCALLPOLICY_MAP, policy.callPolicy);
  SetAccount(Account::P_AVAILABILITY, ACCOUNT_AVAILABILITY_MAP, policy.availability);
  const std::int64_t before = m_platform.Now();
  Ring();
  EXPECT_TRUE(!policy.rings || m_host.WaitFor(CZeltoManager::INCOMING_CALL));
  if (policy.ending == nullptr) {
    EXPECT_TRUE(Endings().empty());
    return;
  }
  ASSERT_TRUE(m_runtime->waitForRequests(kEnd));
  EXPECT_EQ(Endings(), std::vector<std::string>{policy.ending});
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CALL), policy.rings ? 1 : 0);
  if (policy.rings) {
    EXPECT_GE(m_platform.Now() - before, (std::stoll(policy.timeout) + 5) * 1'000'000'000);
  }
}

// clang-format off
constexpr Policy kPolicies[] = {
    // name                     calls from  availability  widget forward voicemail timeout rings  ending
    {"RingsByDefault",          1,          3,            "0",   "0",    "0",      "0",    true,  nullptr},
    {"StrangerRefused",         2,          3,            "1",   "1",    "0",      "0",    false, kHangUp},
    {"DoNotDisturb",            1,          6,            "0",   "1",    "0",      "0",    false, kHangUp},
    {"DisturbedAtTheWidget",    1,          6,            "2",   "0",    "0",      "0",    true,  nullptr},
    {"ForwardedAtOnce",         1,          3,            "0",   "1",    "1",      "0",    false, kForward},
    {"ToVoicemailAtOnce",       1,          3,            "0",   "0",    "1",      "0",    false, kToVoicemail},
    {"ForwardedAfterAWhile",    1,          3,            "1",   "1",    "1",      "1",    true,  kForward},
    {"ToVoicemailAfterAWhile",  1,          3,            "0",   "0",    "1",      "2",    true,  kToVoicemail},
    {"NeverForwarded",          1,          3,            "0",   "1",    "1",      "-1",   true,  nullptr},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Policies, AnIncomingCall, testing::ValuesIn(kPolicies),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ACallToTheSignedIn, IsNotForwardedByAnAlarmThatComesTooLate) {
  m_memory.Set("Lib/Call/ApplyCF", "1");
  m_memory.Set("Lib/Call/NoAnswerTimeout", "1");
  m_host.Execute("SetZeltoWidgetState", "1");
  Ring();
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL));
  {
    // The alarm expires while this thread holds the mutex that its callback needs, and loses.
    zelhost::ServiceHostLock lock("the test");
    zelto::SleepMilliseconds(12'000);
    EXPECT_TRUE(CZelhostCallManager::GetInstance()->AnswerWithVoice());
  }
  zelto::SleepMilliseconds(2'000);
  m_host.Execute("GetCallInfo");
  EXPECT_TRUE(m_runtime->waitForRequests(kAnswer));
  EXPECT_TRUE(Endings().empty());
}

TEST_F(ACallToTheSignedIn, IsRefusedForFourSecondsAfterTheOneBefore) {
  Ring();
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL));
  m_runtime->sendEvent(kCallClass, kChanged, Ongoing(kCall, "0"));
  m_runtime->sendEvent(kCallClass, kNewCall, Id(kOtherCall));  // before the engine has cleared away the first
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CALL_MEMBERS_CLEARED));
  ASSERT_TRUE(m_runtime->waitForRequests(kEnd));
  Ring();
  ASSERT_TRUE(m_runtime->waitForRequests(kEnd, 2));
  zelto::SleepMilliseconds(6'000);
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CALL), 1);
  Ring();
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL, 2));
}

TEST_F(ACallToTheSignedIn, MayBePlacedByThemselvesAndHangsUpWhatDoesNotRing) {
  m_runtime->reply("1941", ScriptedRuntime::pair("0", std::to_string(kCall)));
  m_memory.SetProperty(kCall, Token(CALL_PROPERTY_MAP, Call::P_INCOMING), "0");
  EXPECT_EQ(m_host.Execute("CreateCall", "bob", "1"), "0");
  ASSERT_TRUE(m_runtime->waitForRequests(kEnd));
  EXPECT_EQ(m_host.Execute("GetCallType"), "-1");

  m_runtime->reply(kRing, ScriptedRuntime::pair("0", "1"));
  m_host.Execute("WidgetHandleIncomingCall", "1");
  m_host.Execute("SetZeltoWidgetState", "2");
  m_host.TakeControls();
  EXPECT_EQ(m_host.Execute("CreateCall", "bob", "1"), "1");
  EXPECT_EQ(m_host.TakeControls(),
            (std::vector<std::string>{"SetPIPSourceMedia()", "StartPreview(0, 0, 1920, 1080)"}));
  EXPECT_EQ(m_host.Execute("CreateCall", "eve", "0"), "0");
  EXPECT_EQ(m_host.Execute("LeaveVoicemail", "eve"), "0");
  EXPECT_EQ(m_host.Execute("GetCallType"), "1");
  Ring();  // the runtime announces the outgoing call
  m_runtime->sendEvent(kMemberClass, kChanged, MemberStatus(6));
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALLMEMBER_STATUS_6));
  EXPECT_EQ(m_runtime->requests(kEnd).size(), 1u);
}

}  // namespace

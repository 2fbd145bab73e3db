#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

#include "simulator/runtime/door/Scenario.h"
#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::RuntimeFixture;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class TheDoor : public RuntimeFixture {
 protected:
  TheDoor() { controls.session = &session; }
  json Order(const std::string& words) { return orders.Execute(Orders::FromWords(words)); }

  Wire wire{false};
  Controls controls{wire, faults};
  Orders orders{controls};
};

TEST_F(TheDoor, AnswersEveryLineWithALine) {
  EXPECT_EQ("{\"error\":\"not an object of JSON\",\"ok\":false}", orders.ExecuteLine("junk"));
  EXPECT_EQ("{\"error\":\"not an object of JSON\",\"ok\":false}", orders.ExecuteLine("[1]"));
  for (const char* line :
       {"", "{}", "{\"order\":7}", "{\"order\":\"jump\"}", "{\"order\":\"set\"}", "{\"order\":\"split\"}",
        "{\"order\":\"reply\",\"fault\":\"burn\"}", "{\"order\":\"object\",\"object\":99}",
        "{\"order\":\"raw\",\"hex\":\"0g\"}", "{\"order\":\"event\",\"event\":\"Nothing\"}",
        "{\"order\":\"wait\",\"milliseconds\":1}", "{\"order\":\"\xff\"}"}) {
    const json answer = json::parse(orders.ExecuteLine(line));
    EXPECT_FALSE(answer["ok"].get<bool>()) << line;
    EXPECT_FALSE(answer["error"].get<std::string>().empty()) << line;
  }
}

TEST_F(TheDoor, TakesOrdersWhileNobodyIsConnected) {
  controls.session = nullptr;
  EXPECT_FALSE(Order("status")["connected"].get<bool>());
  EXPECT_TRUE(Order("reply drop")["ok"].get<bool>());
  EXPECT_EQ("no engine is connected", Order("sign-out")["error"]);
}

TEST_F(TheDoor, DropsTheSignIn) {
  EXPECT_EQ("nobody is signed in", Order("sign-out wrong-password")["error"]);
  Object& demo = SignIn("demo", "demo1234");
  EXPECT_EQ("demo", Order("status")["account"]);
  EXPECT_TRUE(Order("sign-out database-damaged")["ok"].get<bool>());
  EXPECT_EQ(20, demo.GetInt(account::kLogoutReason));
  SignIn("demo", "demo1234");
  EXPECT_TRUE(Order("sign-out reason=18")["ok"].get<bool>());
  EXPECT_EQ(18, demo.GetInt(account::kLogoutReason));
}

TEST_F(TheDoor, ChangesPropertiesAndFailsCommits) {
  Object& demo = SignIn("demo", "demo1234");
  EXPECT_TRUE(Order("set object=account property=16 value=\"new mood\"")["ok"].get<bool>());
  EXPECT_EQ("new mood", Order("object account")["properties"]["16"]);
  EXPECT_EQ("no such property", Order("set object=account property=99 value=1")["error"]);
  EXPECT_TRUE(Order("fail-commit")["ok"].get<bool>());
  Tell(AccountMethod::SetServersideProps, On(demo));
  Pass();
  EXPECT_THAT(ValuesOf(demo, account::kCommitStatus), ElementsAre("2", "3"));
}

TEST_F(TheDoor, EmitsEvents) {
  Order("event ConnStatusChange ConnStatus=1");
  const Object& demo = Account("demo");
  Order("event ObjectDelete object=" + std::to_string(demo.id));
  EXPECT_THAT(Words(),
              ::testing::AllOf(Contains("event Zelto.ConnStatusChange connStatus=1"),
                               Contains("event Account.ObjectDelete object=" + std::to_string(demo.id))));
}

struct SpoiltReply {
  const char* words;
  std::vector<std::string> replies;  // to "#1 " Ping
};

TEST_F(TheDoor, SpoilsTheNextReplyOnly) {
  const std::vector<SpoiltReply> cases = {
      {"reply drop", {}},
      {"reply repeat", {"#1 b 0=\"1\"", "#1 b 0=\"1\""}},
      {"reply error", {"#1 d refused by order"}},
      {"reply empty", {"#1 b "}},
      {"reply other-id", {"#FFFFFF b 0=\"1\""}},
  };
  for (const SpoiltReply& each : cases) {
    ASSERT_TRUE(Order(each.words)["ok"].get<bool>()) << each.words;
    outbox.texts.clear();
    dispatcher.Serve("#1  a 1465 1594 ");
    EXPECT_EQ(each.replies, outbox.texts) << each.words;
    outbox.texts.clear();
    dispatcher.Serve("#1  a 1465 1594 ");
    EXPECT_THAT(outbox.texts, ElementsAre("#1 b 0=\"1\"")) << each.words;
  }
}

TEST_F(TheDoor, SpoilsOnlyTheRepliesThatAnOrderNames) {
  Order("reply drop method=Zelto.GetVersion count=2");
  EXPECT_EQ("1", Result(RootMethod::Ping));
  EXPECT_EQ("", Ask(RootMethod::GetVersion));
  EXPECT_EQ("", Ask(RootMethod::GetVersion));
  EXPECT_NE("", Ask(RootMethod::GetVersion));
  Order("reply empty count=every");
  for (int i = 0; i < 5; ++i) EXPECT_EQ("b ", Ask(RootMethod::Ping));
  Order("clear");
  EXPECT_EQ("1", Result(RootMethod::Ping));
}

TEST_F(TheDoor, LeavesAsManyRepliesWholeFirstAsOrdered) {
  Order("reply drop method=Zelto.GetVersion after=2");
  EXPECT_NE("", Ask(RootMethod::GetVersion));
  EXPECT_EQ("1", Result(RootMethod::Ping));
  EXPECT_NE("", Ask(RootMethod::GetVersion));
  EXPECT_EQ(1, Order("status")["faults"]);
  EXPECT_EQ("", Ask(RootMethod::GetVersion));
  EXPECT_EQ(0, Order("status")["faults"]);
  EXPECT_NE("", Ask(RootMethod::GetVersion));
}

TEST_F(TheDoor, DelaysAReplyAndGarblesItTheSameForTheSameSeed) {
  Order("reply delay milliseconds=500");
  outbox.texts.clear();
  EXPECT_EQ("", Ask(RootMethod::Ping));
  Pass(490);
  EXPECT_THAT(outbox.texts, IsEmpty());
  Pass(20);
  EXPECT_EQ(1u, outbox.texts.size());

  Order("reply garble");
  const std::string garbled = Ask("1465 1282");
  EXPECT_NE("", garbled);
  EXPECT_NE("b 0=\"" + device.Folder() + "\"", garbled);
  faults = Faults(1);
  Order("reply garble");
  EXPECT_EQ(garbled, Ask("1465 1282"));
}

TEST(AnOrderInWords, IsReadLikeItsJson) {
  EXPECT_EQ(R"({"order":"set","object":5,"property":16,"value":"a \"b\" = c"})"_json,
            Orders::FromWords(R"(  set object=5	property=16 value="a \"b\" = c")"));
  EXPECT_EQ(R"({"order":"raw","hex":"00000002"})"_json, Orders::FromWords("raw 00000002"));
  EXPECT_EQ(R"({"order":"silent","on":false})"_json, Orders::FromWords("silent on=false"));
  EXPECT_EQ(R"({"order":"event","event":"FileError","FileError":"-1"})"_json,
            Orders::FromWords("event FileError FileError=\"-1\""));
  for (const char* bad : {"", "jump", "order=set", "set \"open", "clear now", "wait 5 6"}) {
    EXPECT_THROW(Orders::FromWords(bad), std::invalid_argument) << bad;
  }
}

class AScenario : public TheDoor {
 protected:
  Scheduler clock;
  Scenario scenario{orders, clock};
};

TEST_F(AScenario, RunsItsStepsInTheirTime) {
  scenario.Read(
      "# comment\n\nconnected\nframe one\nwait 100\r\nframe two\nexpect Account.Login\nframe three\n");
  const auto steps = [&] { return wire.Frames(); };
  auto pair = std::array<int, 2>{};
  ASSERT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()));
  wire.Connect(std::make_unique<Connection>(pair[0]));
  scenario.Start();
  EXPECT_EQ(0u, steps());
  scenario.EngineConnected();
  EXPECT_EQ(1u, steps());
  scenario.RequestArrived("Account.Login");  // too early: nobody waits for it yet
  clock.RunUntil(99);
  EXPECT_EQ(1u, steps());
  clock.RunUntil(100);
  EXPECT_EQ(2u, steps());
  scenario.RequestArrived("Account.Logout");
  EXPECT_EQ(2u, steps());
  EXPECT_FALSE(scenario.IsOver());
  scenario.RequestArrived("Account.Login");
  EXPECT_EQ(3u, steps());
  EXPECT_TRUE(scenario.IsOver());
  close(pair[1]);
}

TEST_F(AScenario, GoesOnAfterAStepThatFails) {
  scenario.Read("sign-out\nreply drop");
  scenario.Start();
  EXPECT_TRUE(scenario.IsOver());
  EXPECT_TRUE(faults.Any());
}

TEST_F(AScenario, IsRefusedWithTheLineThatIsNoStep) {
  const auto refusal = [&](const char* text) {
    try {
      scenario.Read(text);
    } catch (const std::invalid_argument& failure) {
      return std::string(failure.what());
    }
    return std::string();
  };
  EXPECT_EQ("line 2: unknown order jump", refusal("clear\njump"));
  EXPECT_EQ("line 1: wait takes milliseconds", refusal("wait long"));
  EXPECT_EQ("line 1: expect takes CLASS.METHOD", refusal("expect"));
  EXPECT_THROW(scenario.ReadFile(home / "missing"), std::invalid_argument);
}

}  // namespace
}  // namespace simulator

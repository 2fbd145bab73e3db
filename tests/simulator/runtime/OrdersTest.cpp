#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>

#include "simulator/runtime/door/Scenario.h"
#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::RuntimeFixture;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kPing[] = "#1  a 1465 1594 ";

class TheDoor : public RuntimeFixture {
 protected:
  TheDoor() { controls.session = &session; }
  json Order(const std::string& words) { return orders.Execute(Orders::FromWords(words)); }
  std::vector<std::string> Served(const char* request) {
    outbox.texts.clear();
    dispatcher.Serve(request);
    return outbox.texts;
  }

  Wire wire{false};
  Controls controls{wire, faults};
  Orders orders{controls};
};

TEST_F(TheDoor, AnswersEveryLineWithALine) {
  EXPECT_EQ("{\"error\":\"not an object of JSON\",\"ok\":false}", orders.ExecuteLine("junk"));
  for (const char* line :
       {"", "[1]", R"({"order":7})", R"({"order":"jump"})", R"({"order":"set"})",
        R"({"order":"reply","fault":"burn"})", R"({"order":"raw","hex":"0g"})", "{\"order\":\"\xff\"}"}) {
    const json answer = json::parse(orders.ExecuteLine(line));
    EXPECT_FALSE(answer["ok"].get<bool>()) << line;
    EXPECT_FALSE(answer["error"].get<std::string>().empty()) << line;
  }
  controls.session = nullptr;
  EXPECT_TRUE(Order("reply drop")["ok"].get<bool>());
  EXPECT_EQ("no engine is connected", Order("sign-out")["error"]);
}

TEST_F(TheDoor, ChangesWhatTheEngineSees) {
  Object& demo = SignIn("demo", "demo1234");
  EXPECT_TRUE(Order("set object=account property=16 value=\"new mood\"")["ok"].get<bool>());
  EXPECT_EQ("new mood", Order("object account")["properties"]["16"]);
  EXPECT_EQ("no such property", Order("set object=account property=99 value=1")["error"]);
  EXPECT_TRUE(Order("sign-out reason=18")["ok"].get<bool>());
  EXPECT_EQ(18, demo.GetInt(account::kLogoutReason));
  Order("event ConnStatusChange ConnStatus=1");
  EXPECT_THAT(Words(), Contains("event Zelto.ConnStatusChange connStatus=1"));
}

TEST_F(TheDoor, SpoilsTheNextReplyOnly) {
  const struct {
    const char* words;
    std::vector<std::string> replies;
  } cases[] = {
      {"reply drop", {}},
      {"reply repeat", {"#1 b 0=\"1\"", "#1 b 0=\"1\""}},
      {"reply error", {"#1 d refused by order"}},
      {"reply empty", {"#1 b "}},
      {"reply other-id", {"#FFFFFF b 0=\"1\""}},
  };
  for (const auto& [words, replies] : cases) {
    ASSERT_TRUE(Order(words)["ok"].get<bool>()) << words;
    EXPECT_EQ(replies, Served(kPing)) << words;
    EXPECT_THAT(Served(kPing), ElementsAre("#1 b 0=\"1\"")) << words;
  }
  Order("reply delay milliseconds=500");
  EXPECT_THAT(Served(kPing), IsEmpty());
  Pass(490);
  EXPECT_THAT(outbox.texts, IsEmpty());
  Pass(20);
  EXPECT_EQ(1u, outbox.texts.size());
}

TEST_F(TheDoor, SpoilsTheRepliesThatAnOrderNamesOnly) {
  Order("reply drop method=Zelto.GetVersion count=2 after=1");
  EXPECT_NE("", Ask(RootMethod::GetVersion));
  EXPECT_EQ("1", Result(RootMethod::Ping));
  EXPECT_EQ("", Ask(RootMethod::GetVersion));
  EXPECT_EQ(1, Order("status")["faults"]);
  EXPECT_EQ("", Ask(RootMethod::GetVersion));
  EXPECT_EQ(0, Order("status")["faults"]);
  EXPECT_NE("", Ask(RootMethod::GetVersion));
  Order("reply empty count=every");
  EXPECT_EQ("b ", Ask(RootMethod::Ping));
  EXPECT_EQ("b ", Ask(RootMethod::Ping));
  Order("clear");
  EXPECT_EQ("1", Result(RootMethod::Ping));
}

TEST_F(TheDoor, GarblesAReplyTheSameForTheSameSeed) {
  const std::string whole = Ask("1465 1282");
  std::string garbled[2];
  for (std::string& reply : garbled) {
    faults = Faults(1);
    Order("reply garble");
    reply = Ask("1465 1282");
  }
  EXPECT_NE("", garbled[0]);
  EXPECT_NE(whole, garbled[0]);
  EXPECT_EQ(garbled[0], garbled[1]);
}

class AScenario : public TheDoor {
 protected:
  AScenario() {
    // Every write comes out as it went in.
    EXPECT_EQ(0, socketpair(AF_UNIX, SOCK_SEQPACKET, 0, m_pair));
    wire.Connect(std::make_unique<Connection>(m_pair[0]));
  }
  ~AScenario() override { close(m_pair[1]); }
  std::string Written() const {
    char bytes[100];
    const ssize_t size = recv(m_pair[1], bytes, sizeof bytes, MSG_DONTWAIT);
    return std::string(bytes, size > 0 ? static_cast<std::size_t>(size) : 0);
  }
  int m_pair[2] = {-1, -1};
  Scheduler clock;
  Scenario scenario{orders, clock};
};

TEST_F(AScenario, RunsItsStepsInTheirTimeAlsoAfterOneThatFails) {
  scenario.Read(
      "# comment\n\nsign-out\nconnected\nframe one\nwait 100\r\nframe two\nexpect Account.Login\nframe "
      "three\n");
  scenario.Start();
  EXPECT_EQ(0u, wire.Frames());
  scenario.EngineConnected();
  EXPECT_EQ(1u, wire.Frames());
  scenario.RequestArrived("Account.Login");  // too early: nobody waits for it yet
  clock.RunUntil(99);
  EXPECT_EQ(1u, wire.Frames());
  clock.RunUntil(100);
  EXPECT_EQ(2u, wire.Frames());
  scenario.RequestArrived("Account.Logout");
  EXPECT_EQ(2u, wire.Frames());
  EXPECT_FALSE(scenario.IsOver());
  scenario.RequestArrived("Account.Login");
  EXPECT_EQ(3u, wire.Frames());
  EXPECT_TRUE(scenario.IsOver());
}

TEST_F(AScenario, SplitsFramesWhereItSays) {
  scenario.Read("split byte=2 every=3\nframe abcde");
  scenario.Start();
  EXPECT_TRUE(wire.Flush());
  for (const auto& piece :
       {std::string(2, '\0'), std::string("\0\5a", 3), std::string("bcd"), std::string("e")}) {
    EXPECT_EQ(piece, Written());
  }
  EXPECT_EQ("", Written());
}

TEST_F(AScenario, SendsBytesAsTheyAreAndNothingWhileSilent) {
  scenario.Read("raw 000000\nsilent on=true\nframe unheard\nsilent on=false\nraw 61");
  scenario.Start();
  EXPECT_TRUE(wire.Flush());
  EXPECT_EQ(std::string("\0\0\0a", 4), Written());
}

TEST_F(AScenario, CarriesOrdersOutAtTheirFrames) {
  scenario.Read("at 2 when=before do=\"frame early\"\nat 3 do=\"frame late\"\nframe one\nframe two");
  scenario.Start();
  EXPECT_TRUE(wire.Flush());
  const std::string written = Written();
  std::size_t at = 0;
  for (const char* text : {"one", "early", "two", "late"}) {
    at = written.find(text, at);
    EXPECT_NE(std::string::npos, at) << text;
  }
  EXPECT_EQ(4u, wire.Frames());
}

TEST_F(AScenario, IsRefusedWithTheLineThatIsNoStep) {
  for (const char* bad : {"clear\njump", "wait long", "expect"}) {
    EXPECT_THROW(scenario.Read(bad), std::invalid_argument) << bad;
  }
  EXPECT_THROW(scenario.ReadFile(home / "/missing"), std::invalid_argument);
}

}  // namespace
}  // namespace simulator

// The conversation: start and stop, numbered requests, the queue, and what a runtime may do wrong in it.
#include "apiwrapper/Zelto.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "apiwrapper/Account.h"
#include "tests/apiwrapper/MemoryTransport.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

// Counts what reaches it.
class CountingRoot : public Zelto {
 public:
  using Zelto::Zelto;
  void onEventReady(unsigned int count) override { ready.push_back(count); }
  void OnLibStatusChange(LIBSTATUS status) override { statuses.push_back(status); }

  std::vector<unsigned int> ready;
  std::vector<int> statuses;
};

// What the protocol logged while it did something.
template <class Action>
std::string logged(Action action) {
  testing::internal::CaptureStderr();
  action();
  return testing::internal::GetCapturedStderr();
}

constexpr char kRunning[] = "e 1465 1519 1156=\"1132\"";  // an event: the service runs

class ARoot : public testing::Test {
 protected:
  void start() {
    transport.incoming = {"#0 b 0=\"1211\""};
    ASSERT_EQ(root.Start(true, "10070/1.0.0.0/"), Zelto::START_SUCCESS);
    transport.written.clear();
  }

  MemoryTransport transport;
  CountingRoot root{&transport};
};

TEST_F(ARoot, ConnectsItsTransport) {
  EXPECT_EQ(transport.logFunction, &Zelto::log);
  EXPECT_TRUE(root.init());
  root.cleanup();
  EXPECT_FALSE(transport.connected);
  transport.connects = false;
  EXPECT_EQ(logged([&] { EXPECT_FALSE(root.init()); }), "ZELTO ERROR - Have you properly started ZelHost?\n");
}

TEST_F(ARoot, StartsWithItsVersionsAndReadsTheResult) {
  transport.incoming = {"#0 b 0=\"1211\"", "#1 b 0=\"2001\"", "#2 b 0=\"1650\"", "#3 b 0=\"1154\"",
                        "#4 b 0=\"?\""};
  EXPECT_EQ(root.Start(true, "10071/1.0.0.0/"), 1);
  EXPECT_THAT(transport.written,
              ElementsAre("#0  a 1465 1986 1553=\"10071/1.0.0.0/\" 1830=\"1.10\" 1482=\"1\""));
  for (const int result : {2, 3, 4, -1, -1}) EXPECT_EQ(root.Start(false, "x"), result);
  EXPECT_EQ(transport.written.back(), "#5  a 1465 1986 1553=\"x\" 1830=\"1.10\" 1482=\"0\"");
}

TEST_F(ARoot, NumbersItsRequestsInHexadecimal) {
  for (const char digit : std::string("0123456789ABCDEF"))
    transport.incoming.push_back(std::string("#") + digit + " b ");
  transport.incoming.emplace_back("#10 b ");
  for (int i = 0; i < 17; ++i) EXPECT_EQ(root.sendAndBlock("a 1465 1594"), "b ");
  EXPECT_EQ(transport.written[10], "#A  a 1465 1594");
  EXPECT_EQ(transport.written[16], "#10  a 1465 1594");
}

TEST_F(ARoot, QueuesWhatArrivesWhileItWaits) {
  start();
  transport.incoming = {kRunning, "", "#7 b 0=\"other\"", "#1 b 0=\"mine\"", "#1 b 0=\"twice\""};
  EXPECT_EQ(root.sendBlockParse("1465 1594").find("0"), "mine");
  EXPECT_THAT(root.ready, ElementsAre(1, 2)) << "an empty message is no event";
  EXPECT_THAT(root.statuses, IsEmpty()) << "nothing is dispatched while waiting";
  EXPECT_EQ(transport.incoming.size(), 1U);

  // A reply of another id and a second reply are dispatched as events that name no class and no object.
  EXPECT_EQ(logged([&] { EXPECT_TRUE(root.pollEvents(0)); }),
            "ZELTO ERROR - Error parsing event: #7 b 0=\"other\"\n"
            "ZELTO ERROR - Error parsing event: #1 b 0=\"twice\"\n");
  EXPECT_THAT(root.statuses, ElementsAre(Zelto::RUNNING));
  EXPECT_EQ(root.eventsWaitingCount(), 0U);
}

TEST_F(ARoot, ReadsAnErrorAsAnEmptyResult) {
  start();
  transport.incoming = {"#1 d 7 refused", "#2 b d=\"no error\""};
  EXPECT_EQ(logged([&] { EXPECT_EQ(root.sendAndBlock("a 1465 1594"), "b "); }),
            "ZELTO ERROR - From ZelHost: #1 d 7 refused\n");
  EXPECT_EQ(root.sendAndBlock("a 1465 1594"), "b d=\"no error\"");
  const std::string tooLong(0x01000000, 'x');
  EXPECT_EQ(root.sendAndBlock(tooLong.c_str()), "b ") << "no reply comes to what the transport refuses";
  EXPECT_TRUE(root.sendAndBlock("a 1465 1594").isNull()) << "the stream has ended";
  EXPECT_FALSE(root.pollEvents(0));
}

TEST_F(ARoot, DispatchesTenEventsAPass) {
  start();
  for (int i = 0; i < 11; ++i) transport.incoming.push_back(kRunning);
  transport.incoming.push_front("b late");
  transport.incoming.push_front("d 3 broken");
  root.pollEvents(0);
  EXPECT_THAT(root.statuses, SizeIs(10)) << "late replies and errors don't count";
  EXPECT_EQ(root.eventsWaitingCount(), 1U);
  root.runQueue();
  EXPECT_THAT(root.statuses, SizeIs(11));
  EXPECT_THAT(root.statuses, Each(static_cast<int>(Zelto::RUNNING)));
}

TEST_F(ARoot, CountsUnknownEventsButNotMalformedOnes) {
  start();
  for (int i = 0; i < 10; ++i) {
    transport.incoming.push_back("e 1465 777");
    transport.incoming.push_back("e 1133 1122");  // no object id
    transport.incoming.push_back("e 2097 2073");  // no name
    transport.incoming.push_back("e");
  }
  transport.incoming.push_back(kRunning);
  EXPECT_THAT(logged([&] { root.pollEvents(0); }),
              StartsWith("ZELTO ERROR - Unknown event: 777\n"
                         "ZELTO ERROR - Error parsing event: e 1133 1122\n"
                         "ZELTO ERROR - Error parsing event: e 2097 2073\n"
                         "ZELTO ERROR - Error parsing event: e\n"
                         "ZELTO ERROR - Unknown event: 777\n"));
  EXPECT_THAT(root.statuses, IsEmpty());
  EXPECT_EQ(root.eventsWaitingCount(), 4U) << "the tenth unknown event ended the pass";
}

TEST_F(ARoot, EndsThePassAtAnObjectIdOfZero) {
  start();
  transport.incoming = {"e 1133 1122 1137=\"0\"", kRunning, "e 1133 1122 1137=\"call\"", kRunning};
  root.pollEvents(0);
  for (const unsigned int heard : {0U, 1U, 2U}) {
    EXPECT_THAT(root.statuses, SizeIs(heard));
    root.runQueue();
  }
}

TEST_F(ARoot, HearsOnlyOfItselfBeforeItsStart) {
  transport.incoming = {"e 1133 1122 1137=\"8\"", "e 2097 2073", kRunning};
  EXPECT_EQ(logged([&] { root.pollEvents(0); }), "");
  EXPECT_EQ(root.getObject(8), nullptr);
  EXPECT_THAT(root.statuses, SizeIs(1));
}

TEST_F(ARoot, ForgetsTheEarlierConversationAtItsStart) {
  transport.incoming = {kRunning, "#0 b "};
  root.sendAndBlock("a 1465 1594");
  root.getAccount(5);
  transport.incoming = {"#1 b 0=\"1211\""};
  root.Start(true, "x");
  EXPECT_EQ(root.eventsWaitingCount(), 0U);
  EXPECT_EQ(root.getObject(5), nullptr);
}

TEST_F(ARoot, StopsWithOrWithoutWaiting) {
  start();
  transport.incoming = {kRunning, "#1 b "};
  root.Stop(true);
  EXPECT_THAT(transport.written, ElementsAre("#1  a 1465 1386 1482=\"1\""));
  EXPECT_THAT(root.statuses, SizeIs(1)) << "what was queued is still dispatched";
  root.Stop(false);
  EXPECT_EQ(transport.written.back(), "a 1465 1386 1482=\"0\"");
}

TEST_F(ARoot, NamesTheProxiesThatAreLeftAtItsStop) {
  start();
  for (const unsigned int oid : {770U, 1U, 5U}) root.getAccount(oid);  // 770 shares a bucket with 1
  const std::string lines = "2046 object, OID: 770\n2046 object, OID: 1\n2046 object, OID: 5\n";
  EXPECT_EQ(logged([&] { root.dumpObjectList(); }),
            "ZELTO - Objects currently created in wrapper:\n" + lines);
  EXPECT_EQ(logged([&] { root.Stop(false); }),
            "ZELTO - Exiting, following objects haven't been deleted, check if you have no memory leaks:\n" +
                lines);
  EXPECT_EQ(root.getObject(5), nullptr);
}

TEST_F(ARoot, ReadsOneMessageOrMoreWhenToldToWait) {
  start();
  transport.incoming = {kRunning, kRunning};
  EXPECT_TRUE(root.pollEvents(-1));
  EXPECT_THAT(root.statuses, SizeIs(2));
  EXPECT_TRUE(root.pollEvents(-1)) << "the end of the stream shows at the next poll";
  EXPECT_FALSE(root.pollEvents(-1));
}

TEST_F(ARoot, SurvivesEveryReplyThatIsNoReply) {
  start();
  for (const char* message :
       {"", " ", "\\", "\"", "#", "# b", "b", "d", "#1 d", "#01 b ", "a b c d e f", "1137=\"5\"",
        "e 1133 1122 1137=\"99999999999999999999\"", "\xFF\xFE", "e\n\"\\ \""}) {
    transport.onPush = [&](const std::string& request) {
      transport.incoming = {message, request.substr(0, request.find(' ') + 1) + "b 0=\"1\""};
    };
    logged([&] {
      EXPECT_TRUE(root.Ping()) << message;
      root.pollEvents(0);
    });
  }
  transport.onPush = nullptr;
  EXPECT_FALSE(root.Ping()) << "the stream has ended";
}

#ifdef ZELTO_DEBUG_LOCKS
TEST(ARootDeathTest, DiesWhenTheServiceHostMutexIsNotHeld) {
  EXPECT_DEATH(
      {
        MemoryTransport transport;
        Zelto root(&transport);
        Zelto::s_lockIsHeld = [] { return false; };
        root.pollEvents(0);
      },
      "Zelto::pollEvents called without the service-host mutex");
}
#endif

}  // namespace

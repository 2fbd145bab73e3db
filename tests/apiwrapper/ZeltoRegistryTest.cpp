// Proxies by id: made on first sight, checked by class, gone when somebody deletes them.
#include <gmock/gmock.h>

#include <functional>

#include "apiwrapper/Account.h"
#include "apiwrapper/App2App.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/Zelto.h"
#include "tests/apiwrapper/MemoryTransport.h"

namespace {

// A contact that does as it is told when it hears of something, and says so when it goes.
class WilfulContact : public Contact {
 public:
  using Contact::Contact;
  ~WilfulContact() override {
    ++s_deleted;
    if (onDestruction) onDestruction();
  }
  void OnChange(int, const ZEString&) override { act(); }
  void OnDelete() override { act(); }
  void OnContactGoneOffline() override { act(); }

  static inline int s_deleted = 0;
  std::function<void(WilfulContact*)> action = [](WilfulContact*) {};
  std::function<void()> onDestruction;

 private:
  void act() {
    const auto running = action;  // which may replace itself or delete this
    running(this);
  }
};

class WilfulRoot : public Zelto {
 public:
  using Zelto::Zelto;
  Contact* newContact(int oid) override { return new WilfulContact(oid, this); }
  WilfulContact* contact(unsigned int oid) { return static_cast<WilfulContact*>(getContact(oid)); }
};

class ARegistry : public testing::Test {
 protected:
  ARegistry() {
    transport.incoming = {"#0 b 0=\"1211\""};
    root.Start(true, "");
    root.m_reportLeaks = false;
    WilfulContact::s_deleted = 0;
  }
  void dispatch(std::initializer_list<const char*> events) {
    for (const char* event : events) transport.incoming.emplace_back(event);
    root.pollEvents(0);
  }

  MemoryTransport transport;
  WilfulRoot root{&transport};
};

TEST_F(ARegistry, MakesAProxyOnFirstSightAndFindsItAgain) {
  Account* account = root.getAccount(5);
  Account* neighbour = root.getAccount(5 + 769);
  EXPECT_EQ(account->getOID(), 5U);
  EXPECT_EQ(root.getAccount(5), account);
  EXPECT_EQ(root.getObject(5), account);
  EXPECT_EQ(root.getAccount(0xFFFFFFFF)->getOID(), 0xFFFFFFFFU);
  delete account;
  EXPECT_EQ(root.getObject(5), nullptr);
  EXPECT_EQ(root.getAccount(5 + 769), neighbour);
}

TEST_F(ARegistry, HasNothingUnderIdZeroAndTheFirstOfTwoUnderAnother) {
  EXPECT_EQ(root.getAccount(0), nullptr);
  Account zero(0, &root);
  root.insertObject(&zero);
  root.insertObject(nullptr);
  EXPECT_EQ(root.getObject(0), nullptr);
  Account* first = root.getAccount(5);
  {
    Account second(5, &root);
    root.insertObject(first);
    root.insertObject(&second);
    EXPECT_EQ(root.getObject(5), first);
  }
  EXPECT_EQ(root.getObject(5), first) << "the second one's end leaves the first one where it is";
  root.removeObject(5);
  EXPECT_EQ(root.getObject(5), nullptr);
  root.removeObject(5);
  root.insertObject(first);
}

TEST_F(ARegistry, AnswersNoObjectForAnotherClass) {
  Account* account = root.getAccount(5);
  testing::internal::CaptureStderr();
  EXPECT_EQ(root.getCall(5), nullptr);
  EXPECT_EQ(root.findObject<Call>(5), nullptr);
  EXPECT_EQ(root.findObject<Call>(6), nullptr) << "an unknown id is no error";
  const std::string line = "ZELTO ERROR - Object of another class expected: 2046 object, OID: 5\n";
  EXPECT_EQ(testing::internal::GetCapturedStderr(), line + line);
  EXPECT_EQ(root.findObject<Account>(5), account);
}

TEST_F(ARegistry, NeverCallsAProxyOfAnotherClass) {
  // Every event that names an object, all of them naming an account.
  root.getAccount(5);
  testing::internal::CaptureStderr();
  for (const char* event : {"1762", "1998", "1954", "1389", "1122", "1025", "1557", "1397", "1080", "1699",
                            "1400", "1669", "1890"}) {
    dispatch({(std::string("e 1131 ") + event + R"( 1137="5" 1396="5" 1431="5" 1293="1")").c_str()});
  }
  EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::HasSubstr("Object of another class expected"));
  EXPECT_NE(root.findObject<Account>(5), nullptr);
}

TEST_F(ARegistry, LetsAnObjectDeleteItselfInEveryHandler) {
  for (const char* event : {R"(e 1799 2073 1137="5" 1551="1704" 1667="x")", R"(e 1799 2048 1137="5")",
                            R"(e 1799 1389 1137="5")"}) {
    root.contact(5)->action = [](WilfulContact* self) { delete self; };
    dispatch({event, event});
    EXPECT_EQ(root.getObject(5), nullptr) << event;
  }
  EXPECT_EQ(WilfulContact::s_deleted, 3) << "the second event found nobody";
}

TEST_F(ARegistry, LetsAHandlerDeleteOthersAndAsk) {
  root.contact(5)->action = [this](WilfulContact* self) {
    self->action = [](WilfulContact*) {};
    delete root.getObject(6);
    transport.incoming = {R"(e 1799 2048 1137="5")", R"(#1 b 1704="name")"};
    EXPECT_EQ(self->GetProp(1), "name");
    root.runQueue();
  };
  root.contact(6);
  dispatch({R"(e 1799 2073 1137="5" 1551="1704")", R"(e 1799 2048 1137="6")"});
  EXPECT_EQ(WilfulContact::s_deleted, 1);
  EXPECT_EQ(root.eventsWaitingCount(), 0U);
}

TEST_F(ARegistry, LetsAHandlerStopTheRoot) {
  root.contact(5)->action = [this](WilfulContact*) { root.Stop(false); };
  root.contact(6);
  root.getApp2App("game");
  dispatch({R"(e 1799 2073 1137="5" 1551="1704")", R"(e 1799 2048 1137="6")", R"(e 1799 1954 1137="7")"});
  EXPECT_EQ(WilfulContact::s_deleted, 3) << "7 was made by the last pass over the queue";
  EXPECT_EQ(root.getObject(7), nullptr);
  EXPECT_EQ(root.findApp2App(), nullptr);
}

TEST_F(ARegistry, DeletesWhatIsLeftThoughDestructorsDeleteOthers) {
  // 5's destructor takes one behind it in its own bucket and one in a later bucket along.
  root.contact(5)->onDestruction = [this] {
    delete root.getObject(5 + 769);
    delete root.getObject(700);
  };
  for (const unsigned int oid : {5U + 769, 5U + 2 * 769, 700U}) root.contact(oid);
  root.Stop(false);
  EXPECT_EQ(WilfulContact::s_deleted, 4);
  for (const unsigned int oid : {5U, 5U + 769, 5U + 2 * 769, 700U}) EXPECT_EQ(root.getObject(oid), nullptr);
}

}  // namespace

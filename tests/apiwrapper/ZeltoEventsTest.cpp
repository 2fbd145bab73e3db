// Every event of the runtime, from its text to the one callback it reaches.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "apiwrapper/tables/Events.h"
#include "tests/apiwrapper/ProxyFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Callbacks as words, in the order in which they came.
std::vector<std::string> g_heard;

std::string word(long number) { return std::to_string(number); }
std::string word(ZEObject* object) { return object == nullptr ? "none" : word(long{object->getOID()}); }
std::string word(const ZEString& value) { return value.isNull() ? "null" : std::string(value); }

template <class... Parts>
void heard(const std::string& callback, const Parts&... parts) {
  std::string line = callback;
  ((line += " " + word(parts)), ...);
  g_heard.push_back(line);
}

class HeardMember : public CallMember {
 public:
  using CallMember::CallMember;
  void OnChange(int property, const ZEString& value) override { heard("OnChange", property, value); }
  void OnDelete() override { heard("OnDelete", getOID()); }
  void OnIncomingDTMF(CallMember::DTMF tone) override { heard("OnIncomingDTMF", tone); }
};

class HeardContact : public Contact {
 public:
  using Contact::Contact;
  void OnContactGoneOffline() override { heard("OnContactGoneOffline", getOID()); }
};

class HeardGroup : public ContactGroup {
 public:
  using ContactGroup::ContactGroup;
  void OnGroupChanged(Contact* contact, bool added) override { heard("OnGroupChanged", contact, added); }
};

class HeardSearch : public ContactSearch {
 public:
  using ContactSearch::ContactSearch;
  void OnNewResult(Contact* contact) override { heard("OnNewResult", contact); }
};

class HeardVideo : public Video {
 public:
  using Video::Video;
  void OnLastFrameCapture(ZEString& image, unsigned int width, unsigned int height) override {
    heard("OnLastFrameCapture", image.getHexRepresentation(), width, height);
  }
};

class HeardApp2App : public App2App {
 public:
  using App2App::App2App;
  void OnChange(App2App::PROPERTY property, const ZEStringList& values) override {
    heard("OnChange", property, values.join("|", false));
  }
  void OnDatagram(const ZEString& stream, const ZEString& data) override {
    heard("OnDatagram", stream, data);
  }
};

class HeardRoot : public Zelto {
 public:
  using Zelto::Zelto;
  CallMember* newCallMember(int oid) override { return new HeardMember(oid, this); }
  Contact* newContact(int oid) override { return new HeardContact(oid, this); }
  ContactGroup* newContactGroup(int oid) override { return new HeardGroup(oid, this); }
  ContactSearch* newContactSearch(int oid) override { return new HeardSearch(oid, this); }
  Video* newVideo(int oid) override { return new HeardVideo(oid, this); }
  App2App* newApp2App(const ZEString& name) override { return new HeardApp2App(name, this); }

  void OnLibStatusChange(LIBSTATUS value) override { heard("OnLibStatusChange", value); }
  void OnConnStatusChange(CONNSTATUS value) override { heard("OnConnStatusChange", value); }
  void OnFileError(FILEERROR value) override { heard("OnFileError", value); }
  void OnProxyAuthenticationFailure(PROXYTYPE value) override {
    heard("OnProxyAuthenticationFailure", value);
  }
  void OnUpgradeInfo(UPGRADEAVAILABILITY value, const ZEString& version) override {
    heard("OnUpgradeInfo", value, version);
  }
  void OnUICRequest(const ZEString& blob) override { heard("OnUICRequest", blob); }
  void OnRConnectionStatusChange(RCONNECTION_STATUS value) override {
    heard("OnRConnectionStatusChange", value);
  }
  void OnAvailableDeviceListChange() override { heard("OnAvailableDeviceListChange"); }
  void OnNrgLevelsChange() override { heard("OnNrgLevelsChange"); }
  void OnNewCall(Call* call) override { heard("OnNewCall", call, getObject(call->getOID()) == call); }
  void OnIncomingTransfer(Transfer* transfer) override { heard("OnIncomingTransfer", transfer); }
  void OnIncomingVoicemail(Voicemail* voicemail) override { heard("OnIncomingVoicemail", voicemail); }
  void OnChatMessage(Chat* chat, ChatMessage* message) override { heard("OnChatMessage", chat, message); }
  void OnNewCustomContactGroup(ContactGroup* group) override { heard("OnNewCustomContactGroup", group); }
  void OnContactOnlineAppearance(Contact* contact) override { heard("OnContactOnlineAppearance", contact); }
  void OnIncomingPriceQuote(PriceQuote* quote) override { heard("OnIncomingPriceQuote", quote); }
  void OnIncomingAlert(Alert* alert) override { heard("OnIncomingAlert", alert); }
};

class AnEvent : public testing::Test {
 protected:
  AnEvent() {
    transport.incoming = {"#0 b 0=\"1211\""};
    root.Start(true, "");
    root.m_reportLeaks = false;
    g_heard.clear();
  }
  // What was heard of these events.
  std::vector<std::string> hear(std::initializer_list<const char*> events) {
    g_heard.clear();
    for (const char* event : events) {
      transport.incoming.emplace_back(event);
      root.pollEvents(0);
    }
    return g_heard;
  }

  MemoryTransport transport;
  HeardRoot root{&transport};
};

TEST_F(AnEvent, OfTheServiceReachesTheRoot) {
  EXPECT_THAT(hear({"e 1465 1519 1156=\"1790\"", "e 1465 1519 1156=\"?\"", "e 1465 1519",
                    "e 1465 1554 1652=\"1242\"", "e 1465 1362 1371=\"2098\"", "e 1465 1945 1335=\"1381\"",
                    "e 1465 1625", "e 1465 1913", "e 1465 1093", "e 1465 2021 1581=\"1142\" 2034=\"2\\,1\"",
                    "e 1465 2081 1188=r\"a\\0b\"", "e 1465 2081", "e 1465 1511 2019=\"1979\""}),
              ElementsAre("OnLibStatusChange 1", "OnLibStatusChange -1", "OnLibStatusChange -1",
                          "OnConnStatusChange 4", "OnFileError 2", "OnProxyAuthenticationFailure 2",
                          "OnAvailableDeviceListChange", "OnNrgLevelsChange", "OnUpgradeInfo 2 2,1",
                          "OnUICRequest a\\0b", "OnUICRequest null", "OnRConnectionStatusChange 5"));
}

TEST_F(AnEvent, OfSomethingNewMakesItsProxy) {
  EXPECT_THAT(
      hear({"e 1221 1998 1137=\"11\"", "e 1799 1954 1137=\"12\"", "e 1133 1122 1137=\"14\"",
            "e 1974 1557 1137=\"16\"", "e 1684 1397 1137=\"17\"", "e 1459 1080 1137=\"18\" 1431=\"19\"",
            "e 1459 1080 1137=\"20\" 1431=\"0\"", "e 1826 1400 1137=\"23\"", "e 1131 1669 1137=\"24\""}),
      ElementsAre("OnNewCustomContactGroup 11", "OnContactOnlineAppearance 12", "OnNewCall 14 1",
                  "OnIncomingTransfer 16", "OnIncomingVoicemail 17", "OnChatMessage 19 18",
                  "OnIncomingPriceQuote 23", "OnIncomingAlert 24"));
  EXPECT_NE(root.findObject<ChatMessage>(20), nullptr) << "made, though nobody hears of it";
}

TEST_F(AnEvent, OfAnUnknownObjectMakesNone) {
  const char* const events[] = {"2073", "2048", "1762", "1389", "1025", "1699", "1890"};
  for (const char* event : events) {
    EXPECT_THAT(hear({("e 1799 " + std::string(event) + " 1137=\"5\" 1396=\"6\"").c_str()}), IsEmpty())
        << event;
    EXPECT_EQ(root.getObject(5), nullptr) << event;
  }
  EXPECT_EQ(root.getObject(6), nullptr);
}

TEST_F(AnEvent, OfAPropertyCarriesEnumeratorsAsNumbers) {
  root.getCallMember(5);
  EXPECT_THAT(hear({"e 1988 2073 1137=\"5\" 1551=\"1060\" 1667=\"a\\,b\"",
                    "e 1988 2073 1137=\"5\" 1551=\"1532\" 1667=\"1456\"",
                    "e 1988 2073 1137=\"5\" 1551=\"1532\" 1667=\"?\"",
                    "e 1988 2073 1137=\"5\" 1551=\"?\" 1667=\"1456\"", "e 1988 2073 1137=\"5\"",
                    "e 1988 2048 1137=\"5\""}),
              ElementsAre("OnChange 1 a,b", "OnChange 9 7", "OnChange 9 -1", "OnChange -1 1456",
                          "OnChange -1 null", "OnDelete 5"));
}

TEST_F(AnEvent, OfAClassOfItsOwnReachesTheProxy) {
  root.getContact(1);
  root.getContactGroup(2);
  root.getContactSearch(3);
  root.getCallMember(4);
  root.getVideo(5);
  EXPECT_THAT(hear({"e 1799 1389 1137=\"1\"", "e 1221 1762 1137=\"2\" 1396=\"7\" 1293=\"1\"",
                    "e 1221 1762 1137=\"2\" 1396=\"7\" 1293=\"0\"",
                    "e 1221 1762 1137=\"2\" 1396=\"0\" 1293=\"1\"", "e 2036 1699 1137=\"3\" 1396=\"8\"",
                    "e 2036 1699 1137=\"3\"", "e 1988 1025 1137=\"4\" 1901=\"1633\"",
                    "e 1311 1890 1137=\"5\" 1700=r\"\\0a\" 1492=\"640\" 1337=\"480\""}),
              ElementsAre("OnContactGoneOffline 1", "OnGroupChanged 7 1", "OnGroupChanged 7 0",
                          "OnGroupChanged none 0", "OnNewResult 8", "OnIncomingDTMF 12",
                          "OnLastFrameCapture 0061 640 480"));
}

TEST_F(AnEvent, OfAnApplicationReachesTheOneObject) {
  EXPECT_THAT(hear({"e 2097 2073 1608=\"game\" 1551=\"1049\" 1667=\"a,b\"", "e 2097 2105 1608=\"game\""}),
              IsEmpty());
  root.getApp2App("game");
  EXPECT_THAT(hear({"e 2097 2073 1608=\"game\" 1551=\"1049\" 1667=\"a\\\\\\,b,c\"",
                    "e 2097 2073 1608=\"game\"", "e 2097 2105 1608=\"game\" 1383=\"s\" 2044=\"d\"",
                    "e 1799 2105 1137=\"5\" 1383=\"s\" 2044=\"d\""}),
              ElementsAre("OnChange 4 a\\,b|c", "OnChange -1 null", "OnDatagram s d"));
}

TEST_F(AnEvent, IsKnownWhateverItsNumber) {
  testing::internal::CaptureStderr();
  for (const PMAP* row = ZELTO_CALLBACK_MAP; row->name != nullptr; ++row) {
    hear({("e 1799 " + std::string(row->name) + " 1137=\"99\"").c_str()});
    ASSERT_NE(ZEProtocol::EventByToken(row->name), nullptr) << row->name;
    EXPECT_EQ(ZEProtocol::EventByToken(row->name)->number, row->value);
  }
  EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::Not(testing::HasSubstr("Unknown event")));
}

}  // namespace

#include "zelhost/apiwrapper/client/CZelto.h"

#include <sys/stat.h>
#include <unistd.h>

#include "tests/zelhost/RootFixture.h"
#include "zelhost/apiwrapper/client/CAccount.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CContact.h"
#include "zelhost/apiwrapper/client/CSearch.h"
#include "zelhost/apiwrapper/client/CTransfer.h"
#include "zelhost/apiwrapper/client/CVoicemail.h"
#include "zelhost/apiwrapper/client/FileBinary.h"
#include "zelhost/calls/ZelhostCallManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr char kCall[] = "1133";
constexpr char kNewCall[] = "1122";
constexpr char kEnd[] = "1163";
constexpr char kDeleted[] = "2048";

class AnApplicationRoot : public test::RootFixture {
 protected:
  void Ring(unsigned id, bool conference = false) {
    m_memory.SetProperty(id, "1157", "1");
    m_memory.SetProperty(id, "1245", conference ? "1" : "0");
    Deliver(kCall, kNewCall, Id(id));
  }
  template <class Proxy>
  static void Make(Proxy proxy) {
    ServiceHostLock lock("the test");
    proxy();
  }
  int Calls() {
    ServiceHostLock lock("the test");
    return m_root->m_calls.Count();
  }
  static CCall* CurrentCall() {
    ServiceHostLock lock("the test");
    return CZelhostCallManager::m_pCall;
  }
  // What trace writes with these categories.
  std::string Traced(unsigned category) {
    testing::internal::CaptureStderr();
    m_root->trace(category, "%s", "x");
    return testing::internal::GetCapturedStderr();
  }
};

TEST_F(AnApplicationRoot, ReportsAnIncomingCallByItsKind) {
  Ring(70);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CONFERENCE_CALL), 0);
  Deliver(kCall, kDeleted, Id(70));
  Ring(71, true);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CONFERENCE_CALL));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CALL), 1);
}

TEST_F(AnApplicationRoot, RefusesASecondCallAsBusyOrSendsItToVoicemailAsTheSettingSays) {
  Ring(70);
  Ring(71);
  EXPECT_FALSE(Exists(71));
  EXPECT_EQ(Calls(), 1);
  EXPECT_EQ(m_root->lastCallIndex, 0);
  m_memory.Set("*UI/Setting/VMforBusy", "1");
  Ring(72);
  ASSERT_TRUE(m_runtime.waitForRequests(kEnd, 2));
  EXPECT_EQ(m_runtime.requests(kEnd)[0].arguments.at("1391"), "1849");
  EXPECT_EQ(m_runtime.requests(kEnd)[1].arguments.at("1391"), "2043");
  EXPECT_TRUE(Exists(72));
  EXPECT_EQ(Calls(), 2);
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CALL), 1);
}

TEST_F(AnApplicationRoot, RefusesEveryCallWhileTheCallManagerBlocksThem) {
  EXPECT_EQ(m_host.Execute("BlockIncomingCall"), "1");
  EXPECT_EQ(m_host.Execute("UnblockIncomingCall", "1"), "1");  // keeps blocking
  Ring(70);
  EXPECT_TRUE(m_runtime.waitForRequests(kEnd));
  EXPECT_EQ(Calls(), 0);
  EXPECT_EQ(m_host.Execute("UnblockIncomingCall", "0"), "1");
  Ring(72);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL));
}

TEST_F(AnApplicationRoot, DropsAnOutgoingCallThatNobodyPlaced) {
  Deliver(kCall, kNewCall, Id(70));
  EXPECT_EQ(Calls(), 0);
  EXPECT_FALSE(Exists(70));
  EXPECT_EQ(CurrentCall(), nullptr);
}

TEST_F(AnApplicationRoot, ForgetsACallThatTheRuntimeDrops) {
  Ring(70);
  EXPECT_EQ(CurrentCall(), m_root->m_calls.At(0));
  EXPECT_NE(CurrentCall(), nullptr);
  Deliver(kCall, kDeleted, Id(70));
  EXPECT_EQ(Calls(), 0);
  EXPECT_EQ(CurrentCall(), nullptr);
}

TEST_F(AnApplicationRoot, TakesAnIdOfAnotherClassForNoObject) {
  Make([&] { m_root->getContact(70); });
  Deliver(kCall, kNewCall, Id(70));
  EXPECT_EQ(Calls(), 0);
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CALL), 0);
}

TEST_F(AnApplicationRoot, ReportsEachVoicemailOnceWithTheNumberHeldBefore) {
  for (const unsigned id : {90u, 90u, 91u}) Deliver("1684", "1397", Id(id));
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_VOICEMAIL, "0"));
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_VOICEMAIL, "1"));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_VOICEMAIL), 2);
}

TEST_F(AnApplicationRoot, KeepsChatsAndTransfersOnceAndFlushesEverything) {
  const std::string chat = ScriptedRuntime::pair("1431", "60");
  m_memory.SetProperty(61, "1931", "1207");
  m_memory.SetProperty(62, "1931", "1062");
  for (const unsigned message : {61u, 62u}) Deliver("1459", "1080", Id(message) + chat);
  for (int times = 0; times < 2; ++times) Deliver("1974", "1557", Id(80));
  Deliver("1684", "1397", Id(90));
  Ring(70);
  ServiceHostLock lock("the test");
  EXPECT_EQ(m_root->m_chats.Count(), 1);
  EXPECT_EQ(m_root->m_transfers.Count(), 1);
  m_root->FlushQuickLists();
  for (const unsigned id : {60u, 70u, 80u, 90u}) EXPECT_EQ(m_root->getObject(id), nullptr) << id;
}

TEST_F(AnApplicationRoot, LetsATransferGoThatHasComeToItsEnd) {
  Deliver("1974", "1557", Id(80));
  Change("1974", 80, "1532", "1052");
  EXPECT_TRUE(Exists(80));
  Change("1974", 80, "1532", "1095");
  EXPECT_FALSE(Exists(80));
  ServiceHostLock lock("the test");
  EXPECT_EQ(m_root->m_transfers.Count(), 0);
}

TEST_F(AnApplicationRoot, FetchesTheResultsOfAFinishedSearchAndReleasesIt) {
  Make([&] { m_root->getSearch(50); });
  Make([&] { m_root->getSearch(51); });
  m_runtime.reply("2077", ScriptedRuntime::pair("0", "1") + ScriptedRuntime::pair("1271", "70,71"));
  Change("1305", 50, "1532", "1190");
  EXPECT_EQ(m_runtime.requests("2077").size() + m_runtime.requests("2005").size(), 0u);
  Change("1305", 50, "1532", "1229");
  EXPECT_TRUE(m_runtime.waitForRequests("2077"));
  EXPECT_EQ(m_runtime.requests("2077")[0].arguments.at("2074"), "-1");
  EXPECT_TRUE(m_runtime.waitForRequests("2005"));
  EXPECT_FALSE(Exists(50));
  Change("1305", 51, "1532", "1862");
  EXPECT_FALSE(Exists(51));
}

TEST_F(AnApplicationRoot, PrefetchesTheContactsOfEveryGroupWithOneRequestEach) {
  m_runtime.on("1538", [](ScriptedRuntime& to, const ScriptedRequest& request) {
    to.answer(request, request.arguments.at("1085") == "2067" ? ScriptedRuntime::pair("0", "30") : "");
  });
  m_runtime.reply("1925", ScriptedRuntime::pair("1271", "31"));
  m_runtime.reply("1249", ScriptedRuntime::pair("1271", "40,41,40"));
  m_runtime.on("1283", [](ScriptedRuntime& to, const ScriptedRequest& request) {
    to.answer(request, "1704=\"ann\"\nb 1704=\"bob\"");
  });
  ServiceHostLock lock("the test");
  m_root->HandleContactGroups(kGroupsPrefetch);
  EXPECT_EQ(m_runtime.requests("1538").size(), 12u);
  EXPECT_EQ(m_runtime.requests("1283").size(), 2u);
  EXPECT_EQ(m_runtime.requests("1283")[0].arguments.at("1857"), "1238,1704,1092,1842");
  EXPECT_EQ(m_root->getContact(41)->propCache.find(Contact::P_IDENTITY), "bob");
  m_root->HandleContactGroups(kGroupsDelete);  // a contact listed twice is deleted once
  for (const unsigned id : {30u, 31u, 40u, 41u}) EXPECT_EQ(m_root->getObject(id), nullptr) << id;
}

TEST_F(AnApplicationRoot, FindsGroupsByTypeAndByName) {
  m_runtime.reply("1538", ScriptedRuntime::pair("0", "30"));
  m_runtime.reply("1925", ScriptedRuntime::pair("1271", "31,32"));
  m_memory.SetProperty(31, "1324", "family");
  m_memory.SetProperty(32, "1324", "friends");
  m_runtime.reply("1726", ScriptedRuntime::pair("0", "40"));
  m_runtime.reply("1308", ScriptedRuntime::pair("0", "1"));
  ServiceHostLock lock("the test");
  EXPECT_EQ(m_root->FindByName("2012")->getOID(), 30u);
  EXPECT_EQ(m_root->FindByName("friends")->getOID(), 32u);
  EXPECT_EQ(m_root->FindByName("strangers"), nullptr);
  m_root->AddRemoveContact("friends", "bob", true, true);
  EXPECT_EQ(m_runtime.requests("1308").at(0).arguments.at("1396"), "40");
  m_root->AddRemoveContact("strangers", "bob", false, false);
  EXPECT_TRUE(m_runtime.requests("1972").empty());
}

TEST_F(AnApplicationRoot, StartsTheTwoKindsOfContactSearch) {
  m_runtime.reply("1303", ScriptedRuntime::pair("0", "55"));
  ServiceHostLock lock("the test");
  EXPECT_TRUE(m_root->StartContactSearch("bob", CContactSearch::kSearchContacts));
  EXPECT_EQ(m_runtime.requests("1303").at(0).arguments.at("1777"), "50");
  EXPECT_FALSE(m_root->StartContactSearch("bob", CContactSearch::kSearchProfile));  // the runtime gives none
  EXPECT_EQ(m_runtime.requests("2059").size(), 1u);
  EXPECT_FALSE(m_root->StartContactSearch("bob", CContactSearch::kSearchByTerm));
}

TEST_F(AnApplicationRoot, TracesByCategory) {
  EXPECT_EQ(Traced(kTraceZelto), "");
  m_root->SetLogLevel(kTraceZelto | kTraceCall);
  EXPECT_EQ(Traced(kTraceZelto), "ZELTOx\n");
  EXPECT_EQ(Traced(kTraceCallMember | kTraceCall), "CALLx\n");
  EXPECT_EQ(Traced(kTraceContact), "");
  EXPECT_EQ(Traced(kTraceCall | kTraceLifetime), "");
  m_root->SetLogLevel(kTraceLifetime);
  EXPECT_EQ(Traced(kTraceCall | kTraceLifetime), "CALLx\n");
  m_root->SetLogLevel(kTraceTimeStamp);
  const std::string stamped = Traced(kTracePlain | kTraceCall);
  char process[16];
  std::snprintf(process, sizeof process, "%5d # ", getpid());
  EXPECT_EQ(stamped.substr(0, std::string(process).size()), process);
  EXPECT_EQ(stamped.substr(stamped.size() - 7), " CALLx\n");
  m_root->SetLogLevel(0);
  EXPECT_EQ(Traced(kTraceCall), "");
}

TEST_F(AnApplicationRoot, TracesForeignTextAsText) {
  Make([&] { m_root->getContact(40); });
  m_root->SetLogLevel(kTraceContact);
  testing::internal::CaptureStderr();
  Change("1799", 40, "1238", "%s%n%x");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "CONTACT.1799:1238 = %s%n%x\n");
}

class AFileAsBinaryText : public testing::Test {
 protected:
  test::DeviceRoot m_device;
};

TEST_F(AFileAsBinaryText, ComesBackByteForByte) {
  std::string bytes;
  for (int i = 0; i < 200'000; ++i) bytes += static_cast<char>(i * 7);
  m_device.Write("/tmp/a", bytes);
  const ZEString text = C_FileToBin("/tmp/a");
  EXPECT_TRUE(text.isBinary());
  EXPECT_TRUE(C_BinToFile(ZEString(text.view()), "/tmp/b", false));  // as it comes out of a reply
  EXPECT_EQ(m_device.Read("/tmp/b"), bytes);
}

TEST_F(AFileAsBinaryText, IsNullForWhatHoldsNothing) {
  m_device.Write("/tmp/empty", "");
  EXPECT_TRUE(C_FileToBin("/tmp/empty").isNull());
  EXPECT_TRUE(C_FileToBin("/tmp/missing").isNull());
  EXPECT_TRUE(C_FileToBin("/tmp").isNull());
  mkfifo((m_device / "/tmp/pipe").c_str(), 0600);
  EXPECT_TRUE(C_FileToBin("/tmp/pipe").isNull());  // and nobody waits for a writer
}

TEST_F(AFileAsBinaryText, IsNeverWrittenThroughALink) {
  m_device.Write("/tmp/target", "precious");
  std::filesystem::create_symlink(m_device / "/tmp/target", m_device / "/tmp/link");
  EXPECT_FALSE(C_BinToFile("new", "/tmp/link", false));
  EXPECT_FALSE(C_BinToFile("new", "/nowhere/at/all", false));
  EXPECT_EQ(m_device.Read("/tmp/target"), "precious");
}

}  // namespace

#include <gtest/gtest.h>

#include "Common/CallManager.h"
#include "Common/ContactManager.h"
#include "tests/apiwrapper/MemoryTransport.h"
#include "tests/zelhost/FakeTelevision.h"
#include "zelhost/ZelhostCallManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

TEST(TheContactManager, KeepsAChangeOfGroupsThatNobodyAskedForFromTheWidget) {
  FakeTelevision television;
  CContactManager::GetInstance();
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_GROUP_CHANGED, 0);
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_AUTHREQUEST_ADDED, 0);
  ASSERT_TRUE(television.WaitForEvent(CZeltoManager::CONTACT_AUTHREQUEST_ADDED));
  EXPECT_FALSE(television.HasReceived(CZeltoManager::CONTACT_GROUP_CHANGED));
}

TEST(TheCallManager, LetsTheEventsOfACallThrough) {
  FakeTelevision television;
  CCallManager::GetInstance();
  for (const int type : {CZeltoManager::CALLMEMBER_STATUS_6, CZeltoManager::CALL_ENDED,
                         CZeltoManager::CALLMEMBER_REFUSE_RECEIVE_VIDEO}) {
    CZeltoManager::SendEvent(type, 0);
    EXPECT_TRUE(television.WaitForEvent(type));
  }
}

TEST(TheCallManager, BlocksIncomingCallsOnceThereIsARuntime) {
  FakeTelevision television;
  CZelhostCallManager* calls = CZelhostCallManager::GetInstance();
  EXPECT_EQ(television.Execute("BlockIncomingCall"), "0");
  EXPECT_FALSE(calls->IsBlockingIncomingCall());

  MemoryTransport transport;
  zelhost::ServiceHostLock lock("test");
  CZelto root(&transport, false, ZEString());
  g_lpZelto = &root;
  EXPECT_EQ(television.Execute("BlockIncomingCall"), "1");
  EXPECT_TRUE(calls->IsBlockingIncomingCall());
  EXPECT_EQ(television.Execute("UnblockIncomingCall", "1"), "1");
  EXPECT_TRUE(calls->IsBlockingIncomingCall());
  EXPECT_EQ(television.Execute("UnblockIncomingCall", "0"), "1");
  EXPECT_FALSE(calls->IsBlockingIncomingCall());
  g_lpZelto = nullptr;
}

}  // namespace

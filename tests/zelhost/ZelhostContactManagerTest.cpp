#include "Common/ContactManager.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingHost.h"

TEST(TheContactManager, KeepsAChangeOfGroupsThatNobodyAskedForFromTheWidget) {
  test::RecordingHost television;
  CContactManager::GetInstance();
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_GROUP_CHANGED, 0);
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_AUTHREQUEST_ADDED, 0);
  EXPECT_EQ(television.CountUntilNow(CZeltoManager::CONTACT_AUTHREQUEST_ADDED), 1);
  EXPECT_EQ(television.CountUntilNow(CZeltoManager::CONTACT_GROUP_CHANGED), 0);
}

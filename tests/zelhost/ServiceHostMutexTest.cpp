#include "zelhost/ServiceHostMutex.h"

#include <gtest/gtest.h>

#include <future>
#include <string>
#include <thread>

#include "tests/support/FastClock.h"

using zelhost::ServiceHostLock;
using zelhost::ServiceHostMutex;

namespace {

bool OthersGetIt(int milliseconds) ZELTO_NO_THREAD_SAFETY_ANALYSIS {
  return std::async(std::launch::async,
                    [=]() ZELTO_NO_THREAD_SAFETY_ANALYSIS {
                      if (!ServiceHostMutex::Get().LockWithin("a test", milliseconds)) return false;
                      ServiceHostMutex::Get().Unlock();
                      return true;
                    })
      .get();
}

// The analysis takes every lock for one that is not recursive.
void HoldTwice(const char* outer, const char* inner, void (*inside)()) ZELTO_NO_THREAD_SAFETY_ANALYSIS {
  ServiceHostLock outermost(outer);
  ServiceHostLock nested(inner);
  inside();
}

TEST(TheServiceHostMutex, BelongsToOneThreadUntilItsOutermostLevelIsLeft) {
  EXPECT_FALSE(ServiceHostMutex::Get().IsHeldByCaller());
  {
    ServiceHostLock outer("outer");
    HoldTwice("inner", "innermost", [] { EXPECT_FALSE(OthersGetIt(0)); });
    EXPECT_TRUE(ServiceHostMutex::Get().IsHeldByCaller());
    EXPECT_FALSE(OthersGetIt(20));
    EXPECT_FALSE(
        std::async(std::launch::async, [] { return ServiceHostMutex::Get().IsHeldByCaller(); }).get());
  }
  EXPECT_FALSE(ServiceHostMutex::Get().IsHeldByCaller());
  EXPECT_TRUE(OthersGetIt(0));
}

TEST(AWaiterForTheServiceHost, NamesItselfAndTheHolderEveryTenSeconds) {
  test::FastClock clock(100);
  testing::internal::CaptureStdout();
  static std::thread waiter;
  HoldTwice("RefreshTheWorld", "a detail of it", [] {
    waiter = std::thread([] { ServiceHostLock lock("GetLoginState"); });
    zelto::SleepMilliseconds(35'000);
  });
  waiter.join();
  const std::string lines = testing::internal::GetCapturedStdout();
  EXPECT_NE(lines.find("GetLoginState has been waiting for the service host for 10 s, which is busy with "
                       "RefreshTheWorld"),
            std::string::npos);
  EXPECT_NE(lines.find("for 20 s"), std::string::npos);
}

}  // namespace

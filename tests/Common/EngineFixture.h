// An engine whose host and service are the test's.
#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "tests/Common/FakeService.h"
#include "tests/Common/TestHost.h"
#include "tests/support/SurvivalCheck.h"

namespace test {

class EngineFixture : public testing::Test {
 protected:
  EngineFixture() : engine(host.StartEngine()) { CZeltoManager::GetZeltoManagerImp(); }
  ~EngineFixture() override {
    Destroy();
    FakeService::answers.clear();
    FakeService::onBeginShutdown = nullptr;
    FakeService::onKillRuntime = nullptr;
    FakeCall::onEvent = nullptr;
  }

  void Destroy() { CZeltoManager::Destroy(std::exchange(engine, nullptr)); }

  SurvivalCheck survival;
  TestHost host;
  IMoIPEngine* engine;
};

}  // namespace test

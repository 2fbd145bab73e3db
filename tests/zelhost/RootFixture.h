// The application's root object in a conversation with a scripted runtime, without the service host around
// it.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "apiwrapper/ZESocketTransport.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/Watchdog.h"
#include "tests/zelhost/RuntimeMemory.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

namespace test {

class RootFixture : public testing::Test {
 protected:
  RootFixture() {
    m_memory.Serve(m_runtime);
    m_runtime.reply("1986", ScriptedRuntime::pair("0", "1211"));
    zelhost::ServiceHostLock lock("the fixture");
    m_root = std::make_unique<CZelto>(&m_transport, false, ZEString());
    m_root->SetLogLevel(0);
    m_root->m_reportLeaks = false;
    g_lpZelto = m_root.get();
    EXPECT_TRUE(m_root->init());
    EXPECT_EQ(m_root->Start(true, "10070/1.0.0.0/"), Zelto::START_SUCCESS);
  }
  ~RootFixture() override {
    zelhost::ServiceHostLock lock("the fixture");
    m_root->Stop(false);
    m_root->cleanup();
    g_lpZelto = nullptr;
    m_root.reset();
  }

  // The runtime sends the event, and the root takes it.
  void Deliver(const std::string& classToken, const std::string& event, const std::string& pairs) {
    zelhost::ServiceHostLock lock("the test");
    m_runtime.sendEvent(classToken, event, pairs);
    ASSERT_TRUE(m_root->pollEvents(20'000));
  }
  static std::string Id(unsigned id) { return ScriptedRuntime::pair("1137", std::to_string(id)); }
  void Change(const std::string& classToken, unsigned id, const std::string& property,
              const std::string& value) {
    Deliver(classToken, "2073",
            Id(id) + ScriptedRuntime::pair("1551", property) + ScriptedRuntime::pair("1667", value));
  }
  bool Exists(unsigned id) {
    zelhost::ServiceHostLock lock("the test");
    return m_root->getObject(id) != nullptr;
  }
  // What the runtime keeps under the key. Writes are one-way: an answered read behind them shows that they
  // have arrived.
  std::string Setting(const std::string& key) {
    CZelhostLocalSetting::GetIntValue(kSettingInitialized);
    return m_memory.Setting(key);
  }

  Watchdog m_watchdog{60};
  DeviceRoot m_device;
  RuntimeMemory m_memory;
  ScriptedRuntime m_runtime{m_device / "/dtv/socket"};
  ZESocketTransport m_transport{"/dtv/socket"};
  RecordingHost m_host;
  std::unique_ptr<CZelto> m_root;
};

}  // namespace test

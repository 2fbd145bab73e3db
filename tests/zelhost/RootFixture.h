// The application's root object in a conversation with a scripted runtime, without the service host around
// it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "apiwrapper/ZESocketTransport.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/ScriptedRuntime.h"
#include "tests/support/Watchdog.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"

namespace test {

// Properties and settings that the runtime answers from memory.
class RuntimeMemory {
 public:
  explicit RuntimeMemory(ScriptedRuntime& runtime) {
    runtime.on("1879", [memory = m_memory](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, memory->Properties(request));
    });
    for (const char* read : {"1401", "1420"}) {
      runtime.on(read, [memory = m_memory](ScriptedRuntime& to, const ScriptedRequest& request) {
        const std::string value = memory->Setting(request.arguments.at("1887"));
        to.answer(request, value.empty() ? "" : ScriptedRuntime::pair("0", value));
      });
    }
    for (const char* write : {"1549", "1953"}) {
      runtime.on(write, [memory = m_memory](ScriptedRuntime&, const ScriptedRequest& request) {
        memory->Set(request.arguments.at("1887"), request.arguments.at("1667"));
      });
    }
  }

  // By object id and property token.
  void SetProperty(unsigned id, const std::string& token, const std::string& value) {
    const std::lock_guard lock(m_memory->m_mutex);
    m_memory->m_properties[{std::to_string(id), token}] = value;
  }
  void Set(const std::string& key, const std::string& value) { m_memory->Set(key, value); }
  // Empty for what was never written.
  std::string Setting(const std::string& key) { return m_memory->Setting(key); }

 private:
  // Shared with the runtime's rules, which may outlive this object.
  struct Memory {
    std::string Properties(const ScriptedRequest& request) {
      const std::lock_guard lock(m_mutex);
      std::string pairs;
      const std::string tokens = request.arguments.at("1857") + ",";
      for (std::size_t from = 0, end; (end = tokens.find(',', from)) != std::string::npos; from = end + 1) {
        const std::string token = tokens.substr(from, end - from);
        const auto found = m_properties.find({request.arguments.at("1137"), token});
        if (found != m_properties.end()) pairs += ScriptedRuntime::pair(token, found->second);
      }
      return pairs;
    }
    void Set(const std::string& key, const std::string& value) {
      const std::lock_guard lock(m_mutex);
      m_settings[key] = value;
    }
    std::string Setting(const std::string& key) {
      const std::lock_guard lock(m_mutex);
      const auto found = m_settings.find(key);
      return found == m_settings.end() ? "" : found->second;
    }

    std::mutex m_mutex;
    std::map<std::pair<std::string, std::string>, std::string> m_properties;
    std::map<std::string, std::string> m_settings;
  };
  const std::shared_ptr<Memory> m_memory = std::make_shared<Memory>();
};

class RootFixture : public testing::Test {
 protected:
  RootFixture() {
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

  Watchdog m_watchdog{60};
  DeviceRoot m_device;
  ScriptedRuntime m_runtime{m_device / "/dtv/socket"};
  RuntimeMemory m_memory{m_runtime};
  ZESocketTransport m_transport{"/dtv/socket"};
  RecordingHost m_host;
  std::unique_ptr<CZelto> m_root;
};

}  // namespace test

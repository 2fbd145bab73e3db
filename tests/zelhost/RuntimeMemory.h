// Properties and settings that a scripted runtime answers from memory.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <utility>

#include "tests/support/ScriptedRuntime.h"

namespace test {

// Threads: the runtime's reads and writes while the test does. Must outlive the runtimes that it serves.
class RuntimeMemory {
 public:
  void Serve(ScriptedRuntime& runtime) {
    runtime.on("1879", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, Properties(request));
    });
    for (const char* read : {"1401", "1420"}) {
      runtime.on(read, [this](ScriptedRuntime& to, const ScriptedRequest& request) {
        const std::string value = Setting(request.arguments.at("1887"));
        to.answer(request, value.empty() ? "" : ScriptedRuntime::pair("0", value));
      });
    }
    for (const char* write : {"1549", "1953"}) {
      runtime.on(write, [this](ScriptedRuntime&, const ScriptedRequest& request) {
        Set(request.arguments.at("1887"), request.arguments.at("1667"));
      });
    }
  }

  // By object id and property token.
  void SetProperty(unsigned id, const std::string& token, const std::string& value) {
    const std::lock_guard lock(m_mutex);
    m_properties[{std::to_string(id), token}] = value;
  }
  void Set(const std::string& key, const std::string& value) {
    const std::lock_guard lock(m_mutex);
    m_settings[key] = value;
  }
  // Empty for what was never written.
  std::string Setting(const std::string& key) {
    const std::lock_guard lock(m_mutex);
    return m_settings[key];
  }

 private:
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

  std::mutex m_mutex;
  std::map<std::pair<std::string, std::string>, std::string> m_properties;
  std::map<std::string, std::string> m_settings;
};

}  // namespace test

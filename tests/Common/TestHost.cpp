#include "tests/Common/TestHost.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "Common/ZeltoManager.h"

namespace test {
namespace {

std::string Written(const char* text) { return text != nullptr ? text : "null"; }

}  // namespace

IMoIPEngine* TestHost::StartEngine() {
  IMoIPEngine* engine = CZeltoManager::Create();
  if (engine != nullptr) Register(engine);
  return engine;
}

void TestHost::Register(IMoIPEngine* engine) {
  engine->RegisterEventCallback(&TestHost::OnEvent, this);
  engine->RegisterCommonCtrlFunc(&TestHost::OnControl, this);
}

std::vector<std::string> TestHost::Log() const {
  std::lock_guard<std::mutex> lock(m_lock);
  return m_log;
}

std::vector<std::string> TestHost::TakeLog() {
  std::lock_guard<std::mutex> lock(m_lock);
  return std::exchange(m_log, {});
}

bool TestHost::WaitFor(const std::string& call) const {
  std::unique_lock<std::mutex> lock(m_lock);
  return m_noted.wait_for(lock, std::chrono::seconds(5),
                          [&] { return std::find(m_log.begin(), m_log.end(), call) != m_log.end(); });
}

void TestHost::SetAnswer(const std::string& command, const std::string& answer) {
  std::lock_guard<std::mutex> lock(m_lock);
  m_answers[command] = answer;
}

bool TestHost::OnEvent(const CEngineEvent* event, void* user) {
  auto* host = static_cast<TestHost*>(user);
  host->Note(std::to_string(event->type) + "(" + Written(event->param1) + ", " + Written(event->param2) +
             ")");
  if (host->onEvent) host->onEvent(*event);
  return true;
}

const char* TestHost::OnControl(const char* cmd, const char* p1, const char* p2, const char* p3,
                                const char* p4, void* user) {
  auto* host = static_cast<TestHost*>(user);
  std::vector<const char*> given{p1, p2, p3, p4};
  while (!given.empty() && given.back() == nullptr) given.pop_back();
  std::string list;
  for (const char* text : given) list += (list.empty() ? "" : ", ") + Written(text);
  host->Note(Written(cmd) + "[" + list + "]");
  std::lock_guard<std::mutex> lock(host->m_lock);
  const auto answer = host->m_answers.find(Written(cmd));
  return answer != host->m_answers.end() ? answer->second.c_str() : nullptr;
}

void TestHost::Note(const std::string& call) {
  std::lock_guard<std::mutex> lock(m_lock);
  m_log.push_back(call);
  m_noted.notify_all();
}

}  // namespace test

// The service as the engine boundary sees it: managers that answer from memory, made by the factories that
// this test program links in place of the real ones.
#pragma once

#include <atomic>
#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "tests/Common/FakeServiceHost.h"
#include "tests/support/RecordingManagers.h"

namespace test {

using Hook = std::function<bool(const CZeltoEvent*)>;
inline bool Run(const Hook& hook, const CZeltoEvent* event) { return hook ? hook(event) : true; }

// What the factories made last, and what is asked of the runtime.
struct FakeService {
  static inline FakeServiceHost* host = nullptr;
  static inline struct FakeAccount* account = nullptr;
  static inline struct FakeCall* call = nullptr;
  static inline std::function<void()> onBeginShutdown;
  static inline std::function<void()> onKillRuntime;

  // By question: "contact 3 1" is property 1 of the contact at 3. Others are answered by null or -1.
  using Answers = std::map<std::string, std::string>;
  static inline Answers answers;

  template <class... Parts>
  static const char* Text(const char* kind, const Parts&... parts) {
    std::ostringstream question;
    question << kind;
    ((question << ' ' << parts), ...);
    const auto found = answers.find(question.str());
    return found != answers.end() ? found->second.c_str() : nullptr;
  }
  template <class... Parts>
  static int Number(const char* kind, const Parts&... parts) {
    const char* text = Text(kind, parts...);
    return text != nullptr ? std::atoi(text) : -1;
  }
};

// Counts its objects.
template <class Kind>
struct Counted {
  Counted() { ++made, ++alive; }
  ~Counted() { --alive; }
  static inline std::atomic<int> made{0}, alive{0};
};

struct FakeAccount : recording::AccountManager, Counted<FakeAccount> {
  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override { return Run(onEvent, event); }
  int GetLoginState() override { return loginState; }
  const char* GetAccountInfo(int property) override { return FakeService::Text("account", property); }

  Hook onEvent;
  int lastParam = 0;
  int loginState = 0;
};

struct FakeContacts : recording::ContactManager {
  const char* GetContactInfo(int index, int property) override {
    return FakeService::Text("contact", index, property);
  }
  const char* GetContactInfo(const char* name, int property) override {
    return FakeService::Text("contact", name, property);
  }
  const char* FindContactWithEmail(const char* email) override { return FakeService::Text("mail", email); }
  const char* GetContactImage(const char* name) override { return FakeService::Text("image", name); }
  int GetContactStatus(const char* name) override { return FakeService::Number("status", name); }
  const char* GetStateChangedContact() override { return FakeService::Text("changed"); }
  const char* GetOnlinedContactName() override { return FakeService::Text("onlined"); }
};

struct FakeCall : recording::CallManager, Counted<FakeCall> {
  bool OnEvent(const CZeltoEvent* event) override { return Run(onEvent, event); }
  bool IsInCall() override { return inCall; }
  const char* GetCallMemberName(int index) override { return FakeService::Text("member", index); }
  bool CallEnd(bool force) override {
    if (onCallEnd) onCallEnd(force);
    return true;
  }

  static inline Hook onEvent;  // of all, however often the service is loaded
  std::function<void(bool)> onCallEnd;
  std::atomic<bool> inCall{false};
};

struct FakeHistory : recording::HistoryManager {
  const char* GetHistoryInfo(int index, int key) override { return FakeService::Text("history", index, key); }
  int GetHistoryIndexWithTimestamp(const char* time) override {
    return FakeService::Number("position", time);
  }
  bool isMissedCallOneMember() override { return FakeService::Text("missed by") != nullptr; }
  int GetNumOfMissedCall() override { return FakeService::Number("missed"); }
  std::string GetMissedCallMemberName() override { return FakeService::Text("missed by"); }
  std::string GetMissedCallTimeStamp() override { return FakeService::Text("missed at"); }
};

}  // namespace test

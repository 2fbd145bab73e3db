// The service as the engine boundary sees it: managers that answer from memory, made by the factories that
// this test program links in place of the real ones.
#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "tests/Common/FakeServiceHost.h"
#include "tests/support/RecordingManagers.h"

namespace test {

using Hook = std::function<bool(const CZeltoEvent*)>;

inline bool Run(const Hook& hook, const CZeltoEvent* event) { return hook ? hook(event) : true; }

// The text under a key; null without one.
template <class Key>
const char* TextOf(const std::map<Key, std::string>& texts, const Key& key) {
  const auto found = texts.find(key);
  return found != texts.end() ? found->second.c_str() : nullptr;
}

// Counts its objects.
template <class Kind>
struct Counted {
  Counted() { ++made, ++alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --alive; }
  static inline std::atomic<int> made{0};
  static inline std::atomic<int> alive{0};
};

struct FakeAccount : recording::AccountManager, Counted<FakeAccount> {
  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override { return Run(onEvent, event); }
  bool Login(const char* name, const char* password, bool automatic) override {
    return ++logins, name == nullptr && password == nullptr && automatic;
  }
  int GetLoginState() override { return loginState; }
  const char* GetAccountInfo(int property) override { return TextOf(info, property); }

  Hook onEvent;
  int logins = 0;
  int loginState = 0;
  std::map<int, std::string> info;
};

struct FakeContacts : recording::ContactManager, Counted<FakeContacts> {
  const char* GetContactInfo(int index, int property) override {
    return TextOf(byIndex, std::make_pair(index, property));
  }
  const char* GetContactInfo(const char* name, int property) override {
    return TextOf(byName, std::make_pair(std::string(name), property));
  }
  const char* FindContactWithEmail(const char* email) override { return TextOf(byEmail, std::string(email)); }
  const char* GetContactImage(const char* name) override {
    return ++imagesAsked, TextOf(images, std::string(name));
  }
  int GetContactStatus(const char* name) override {
    const auto found = statuses.find(name);
    return found != statuses.end() ? found->second : -1;
  }
  const char* GetStateChangedContact() override { return changed.empty() ? nullptr : changed.c_str(); }

  std::map<std::pair<int, int>, std::string> byIndex;
  std::map<std::pair<std::string, int>, std::string> byName;
  std::map<std::string, std::string> byEmail, images;
  std::map<std::string, int> statuses;
  std::string changed;
  int imagesAsked = 0;
};

struct FakeCall : recording::CallManager, Counted<FakeCall> {
  bool OnEvent(const CZeltoEvent* event) override { return Run(onEvent, event); }
  bool AfterEvent(const CZeltoEvent* event) override { return Run(afterEvent, event); }
  bool IsInCall() override { return inCall; }
  bool CallEnd(bool force) override {
    if (onCallEnd) onCallEnd(force);
    return true;
  }

  Hook onEvent, afterEvent;
  std::function<void(bool)> onCallEnd;
  std::atomic<bool> inCall{false};
};

struct FakeHistory : recording::HistoryManager, Counted<FakeHistory> {
  const char* GetHistoryInfo(int index, int key) override {
    return TextOf(entries, std::make_pair(index, key));
  }
  int GetHistoryIndexWithTimestamp(const char* time) override {
    const auto found = positions.find(time);
    return found != positions.end() ? found->second : -1;
  }

  std::map<std::pair<int, int>, std::string> entries;
  std::map<std::string, int> positions;
};

struct FakeChat : recording::ChatManager, Counted<FakeChat> {};

// What the factories made last, null once it is deleted by hand; and what was asked of the runtime.
struct FakeService {
  static inline FakeServiceHost* host = nullptr;
  static inline FakeAccount* account = nullptr;
  static inline FakeContacts* contacts = nullptr;
  static inline FakeCall* call = nullptr;
  static inline FakeHistory* history = nullptr;
  static inline std::function<void()> onBeginShutdown;
};

}  // namespace test

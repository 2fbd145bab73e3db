// A viewer who is signed in to a service that remembers chats, calls, voicemails and people.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <initializer_list>
#include <mutex>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/system/SwitchedOnTelevision.h"

namespace test {

constexpr int kContactUpdated = 258;
constexpr int kContactRemoved = 259;
constexpr int kIncomingVoicemail = 294;
constexpr int kUnreadCountChanged = 372;
constexpr int kHistoryChanged = 378;

class AViewerWithAPast : public ATelevision {
 protected:
  using json = nlohmann::json;

  ~AViewerWithAPast() override { SwitchOff(); }
  void SetUp() override {
    m_host.SetObserver([this](const television::Report& report) {
      const std::lock_guard lock(m_mutex);
      if (report.kind == television::Report::Kind::Event) m_events.push_back(report.type);
    });
    SwitchOnAndWait();
  }
  // Signs in and waits for history and chats.
  void SignInAndRemember() {
    LooksAgain([this] { SignIn(); });
  }
  // Every sign-in after the first looks for history and chats at once.
  void SignInAgain() {
    ASSERT_EQ(Execute("Logout", "0"), "1");
    ASSERT_TRUE(Arrives(kLoggedOut));
    SignInAndRemember();
  }
  json Order(const json& order) {
    json answer = json::parse(Door(order.dump()));
    EXPECT_TRUE(answer.value("ok", false)) << order << ": " << answer;
    return answer;
  }
  bool IsThere(const std::string& object) {
    const json order = {{"order", "object"}, {"object", object}};
    return json::parse(Door(order.dump())).value("ok", false);
  }
  bool IsThere(int object) { return IsThere(std::to_string(object)); }
  // What the runtime holds under that id or name of a class.
  std::string Value(const std::string& object, int property) {
    const json answer = Order({{"order", "object"}, {"object", object}});
    return answer.value("properties", json::object()).value(std::to_string(property), "");
  }
  int IdOf(const std::string& object) { return Order({{"order", "object"}, {"object", object}})["object"]; }
  void Set(const std::string& object, int property, const std::string& value) {
    Order({{"order", "set"}, {"object", object}, {"property", property}, {"value", value}});
  }
  // In such a session: the runtime says that another sign-in is through.
  void StartRefresh() {
    constexpr int kStatus = 21;
    Set("account", kStatus, "6");
    Set("account", kStatus, "7");
  }
  void Refresh() {
    LooksAgain([this] { StartRefresh(); });
  }
  template <class Action>
  void LooksAgain(Action action) {
    const int histories = Told(kHistoryChanged);
    const int chats = Told(kUnreadCountChanged);
    ASSERT_NO_FATAL_FAILURE(action());
    ASSERT_TRUE(
        Becomes([&] { return Told(kHistoryChanged) > histories && Told(kUnreadCountChanged) > chats; }));
    m_host.Mark();
  }
  // The engine forgets the object while the runtime keeps it: the next time that the runtime names the id,
  // it is another object's.
  void ForgetsId(int object) {
    Order({{"order", "event"}, {"event", "ObjectDelete"}, {"object", std::to_string(object)}});
    Settle();
  }
  // From now on the id belongs to another class for the engine.
  void IsToldToBeAVoicemail(int object) {
    Order({{"order", "event"}, {"event", "IncomingVoicemail"}, {"object", std::to_string(object)}});
    EXPECT_TRUE(Arrives(kIncomingVoicemail));
  }
  // An order to be carried out when so many frames more have passed: in the midst of what comes next.
  void OrderAfterFrames(int frames, const std::string& words) {
    Order({{"order", "at"}, {"frame", Frames() + frames}, {"do", words}});
  }
  // The engine has taken everything that the runtime has told.
  void Settle() {
    const std::string mood = "settled " + std::to_string(++m_settled);
    Order({{"order", "contact"}, {"identity", "emi.k"}, {"mood", mood}});
    EXPECT_TRUE(Becomes([&] { return Execute("GetContactPropWithName", "emi.k", "33") == mood; }));
  }
  // Frames in both directions until now, and those that something costs.
  int Frames() { return Order({{"order", "status"}})["frames"]; }
  template <class Action>
  int FramesOf(Action action) {
    const int before = Frames();
    action();
    return Frames() - before;
  }
  int Heard(int event) {
    constexpr int kLastTimer = 412;
    Execute("OSDTimerExpired", "9");
    EXPECT_TRUE(Arrives(kLastTimer));
    return Told(event);
  }
  int Told(int event) {
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(std::count(m_events.begin(), m_events.end(), event));
  }
  template <class Condition>
  static bool Becomes(Condition condition) {
    for (int steps = 0; !condition(); ++steps) {
      if (steps == 6000) return false;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
  }

  static std::string Record(const std::vector<std::string>& fields) {
    std::string record;
    for (const std::string& field : fields) record += field + "\x03\x02";
    return record;
  }
  static std::vector<std::string> Fields(const std::string& records) {
    std::vector<std::string> fields;
    std::size_t begin = 0;
    for (std::size_t end; (end = records.find("\x03\x02", begin)) != std::string::npos; begin = end + 2) {
      fields.push_back(records.substr(begin, end - begin));
    }
    EXPECT_EQ(begin, records.size()) << "something behind the last field";
    return fields;
  }
  static std::string LocalTime(const std::string& seconds) {
    const std::time_t time = std::stol(seconds);
    std::tm local{};
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %I:%M %p", localtime_r(&time, &local));
    return text;
  }

 private:
  std::mutex m_mutex;
  std::vector<int> m_events;
  int m_settled = 0;
};

}  // namespace test

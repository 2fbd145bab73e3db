// A runtime's session in this process: requests go in as texts, replies and events are recorded.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/Wire.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/protocol/Decoder.h"
#include "simulator/runtime/requests/Dispatcher.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/SimulatedService.h"
#include "tests/support/DeviceRoot.h"

namespace test {

class RecordingOutbox : public simulator::Outbox {
 public:
  void Send(std::string_view text) override { texts.emplace_back(text); }
  std::vector<std::string> texts;
};

class RuntimeFixture : public ::testing::Test {
 protected:
  // The media, if any, must outlive the fixture.
  explicit RuntimeFixture(simulator::MediaPort* media = nullptr)
      : device(home / "/.Zelto"),
        service(simulator::DeviceStore::DataFolder(device.Folder())),
        session(simulator::Surroundings{service, device, outbox, 0, {}, {}, media}),
        dispatcher(session, &faults) {}

  // The reply's text behind the id; "" when there was none. Events go to `outbox` as well.
  std::string Ask(const std::string& request) {
    const std::string id = "#" + std::to_string(1 + m_asked++ % 9) + " ";
    const std::size_t before = outbox.texts.size();
    dispatcher.Serve(id + " a " + request);
    for (std::size_t i = before; i < outbox.texts.size(); ++i) {
      if (outbox.texts[i].compare(0, id.size(), id) == 0) return outbox.texts[i].substr(id.size());
    }
    return {};
  }
  // "KEY="value"" pairs in one text.
  std::string Ask(const ZEMethod& method, const std::string& pairs = {}) {
    return Ask(TextOf(method, pairs));
  }
  // The value of a reply's pair.
  std::string Result(const ZEMethod& method, const std::string& pairs = {}, const char* key = ZEKey::Result) {
    const std::string reply = Ask(method, pairs);
    std::vector<simulator::Pair> found;
    simulator::ParsePairs(std::string_view(reply).substr(std::min<std::size_t>(2, reply.size())), found);
    for (const simulator::Pair& pair : found) {
      if (pair.key == key) return simulator::Unescape(pair.raw);
    }
    return "(none)";
  }
  void Tell(const ZEMethod& method, const std::string& pairs = {}) {
    dispatcher.Serve("a " + TextOf(method, pairs));
  }

  static std::string TextOf(const ZEMethod& method, const std::string& pairs) {
    const char* type = method.owner == nullptr ? ACCOUNT_CLASS.token : method.owner->token;
    return std::string(type) + " " + method.token + " " + pairs;
  }
  static std::string Pair(const char* key, const std::string& value) {
    std::string text;
    simulator::PairWriter(text).Text(key, value);
    return text + " ";
  }

  // Lets the time run until nothing is left to do soon.
  void Pass(std::int64_t milliseconds = 1000) {
    for (const std::int64_t end = m_now + milliseconds; m_now < end;) session.scheduler.RunUntil(m_now += 10);
  }

  simulator::Object& Account(const std::string& name) {
    return *session.world.Find(
        simulator::ToUnsigned(Result(RootMethod::GetAccount, Pair(ZEKey::Identity, name))));
  }
  static std::string On(const simulator::Object& object) {
    return Pair(ZEKey::ObjectId, std::to_string(object.id));
  }
  simulator::Object& SignIn(const std::string& name, const std::string& password, bool save = false) {
    simulator::Object& account = Account(name);
    Tell(AccountMethod::LoginWithPassword,
         On(account) + Pair(ZEKey::Password, password) + Pair(ZEKey::SavePassword, save ? "1" : "0"));
    Pass();
    return account;
  }

  // Everything said so far in words, then forgotten.
  std::vector<std::string> Words() {
    simulator::Decoder decoder;
    std::vector<std::string> words;
    for (const std::string& text : outbox.texts) words.push_back(decoder.Words(text));
    outbox.texts.clear();
    return words;
  }
  // The values that a property of an object went through.
  std::vector<std::string> ValuesOf(const simulator::Object& object, int property) {
    const std::string begin = "event " + std::string(object.type->name) +
                              ".PropertyChange object=" + std::to_string(object.id) +
                              " property=" + std::to_string(property) + " value=";
    std::vector<std::string> values;
    for (const std::string& words : Words()) {
      if (words.compare(0, begin.size(), begin) == 0) values.push_back(words.substr(begin.size()));
    }
    return values;
  }

  DeviceRoot home;
  simulator::DeviceStore device;
  simulator::SimulatedService service;
  RecordingOutbox outbox;
  simulator::Faults faults{1};
  simulator::Session session;
  simulator::Dispatcher dispatcher;

 private:
  int m_asked = 0;
  std::int64_t m_now = 0;
};

}  // namespace test

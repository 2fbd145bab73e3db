// The library's entry points, called as a host calls them that was compiled elsewhere: through the slots of
// the interface's table, by number.
#include "Common/EngineEntry.cpp"

#include <gtest/gtest.h>

#include <cstring>

#include "Common/AccountManager.h"
#include "tests/Common/FakeService.h"

namespace {

using test::FakeService;

template <class Result, class... Arguments>
Result CallSlot(IMoIPEngine* engine, std::size_t slot, Arguments... arguments) {
  using Operation = Result (*)(IMoIPEngine*, Arguments...);
  const unsigned char* table;
  std::memcpy(&table, static_cast<void*>(engine), sizeof table);
  Operation operation;
  std::memcpy(&operation, table + slot * sizeof operation, sizeof operation);
  return operation(engine, arguments...);
}

// The records as the host's compiler lays them out.
struct HostsEvent {
  int type;
  char* param1;
  char* param2;
};
struct HostsRecord {
  int type, value;
  unsigned size;
  const void* data;
};
static_assert(sizeof(HostsEvent) == sizeof(CEngineEvent) && sizeof(HostsRecord) == sizeof(CAVData));

std::string g_seen;

bool OnHostsEvent(const HostsEvent* event, void* user) {
  g_seen = std::to_string(event->type) + event->param1 + (event->param2 == nullptr ? "null" : "") +
           *static_cast<std::string*>(user);
  return true;
}

const char* OnHostsControl(const char* cmd, const char*, const char*, const char*, const char*, void*) {
  return cmd;
}

bool OnHostsData(const HostsRecord* record, void* user, unsigned* extra) {
  g_seen = std::to_string(record->type) + "," + std::to_string(record->value) + "," +
           std::string(static_cast<const char*>(record->data), record->size) + "," + std::to_string(*extra) +
           *static_cast<std::string*>(user);
  return true;
}

TEST(AHostCompiledElsewhere, ReachesEveryOperationByItsSlot) {
  IMoIPEngine* engine = engine_create();
  ASSERT_NE(engine, nullptr);
  EXPECT_EQ(engine_create(), engine);
  std::string user = "!";

  CallSlot<void>(engine, 1, &OnHostsEvent, &user);
  CallSlot<void>(engine, 4, &OnHostsControl, static_cast<void*>(nullptr));
  CZeltoManager::NotifyEngineEvent(300, "text", nullptr);
  EXPECT_EQ(g_seen, "300textnull!");
  EXPECT_EQ(CZeltoManager::CallCommonControl("GetTVModel"), "GetTVModel");

  CallSlot<void>(engine, 3, &OnHostsData, &user);
  EXPECT_EQ(FakeService::host->loads, 1);
  unsigned char pixels[] = "abc";
  const CAVData picture{2, 9, 3, pixels};
  unsigned extra = 5;
  CZeltoManager::SendAVData(&picture, &extra);
  EXPECT_EQ(g_seen, "2,9,abc,5!");

  FakeService::host->onExecute = [](const std::string& call) {
    return call == "Cmd|1||null|4|" ? "yes" : "no";
  };
  EXPECT_STREQ(CallSlot<const char*>(engine, 0, "Cmd", "1", "", static_cast<const char*>(nullptr), "4"),
               "yes");
  const HostsRecord sound{0, 0, 3, pixels};
  CallSlot<void>(engine, 2, &sound);
  CallSlot<void>(engine, 2, static_cast<const HostsRecord*>(nullptr));
  const HostsRecord broken{0, 0, 3, nullptr};
  CallSlot<void>(engine, 2, &broken);
  ASSERT_EQ(FakeService::host->data.size(), 1u);
  EXPECT_EQ(FakeService::host->data[0].data, pixels);

  CAccountManager::GetInstance();
  FakeService::account->loginState = 2;
  FakeService::account->info[1] = "ann";
  const std::string mail = "a@b.c", ann = "ann";
  std::string id;
  int number = 0;
  const int index = 0;
  EXPECT_FALSE(CallSlot<bool>(engine, 7, &mail, &id));
  EXPECT_TRUE(CallSlot<bool>(engine, 8, &id));
  EXPECT_EQ(id, "ann");
  EXPECT_FALSE(CallSlot<bool>(engine, 9, &index, &number, &id, &id, &number));
  EXPECT_FALSE(CallSlot<bool>(engine, 10, &index, &id, &id, &number, &id));
  for (std::size_t slot : {11u, 15u, 16u, 17u}) EXPECT_FALSE(CallSlot<bool>(engine, slot, &ann, &id)) << slot;
  EXPECT_FALSE(CallSlot<bool>(engine, 12, &ann, &number));
  EXPECT_TRUE(CallSlot<bool>(engine, 13, &ann, 2));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam(),
            "Videocall\x03\x02"
            "ann");
  EXPECT_TRUE(CallSlot<bool>(engine, 14, 77));

  // Taking a function back does nothing.
  CallSlot<void>(engine, 18, &OnHostsEvent);
  CallSlot<void>(engine, 19, &OnHostsData);
  CallSlot<void>(engine, 20, &OnHostsControl);
  EXPECT_EQ(CZeltoManager::CallCommonControl("GetTVModel"), "GetTVModel");

  CallSlot<void>(engine, 6);  // the deleting destructor
  EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
}

TEST(AHostCompiledElsewhere, MayDestroyNothingAndNothingTwice) {
  engine_destroy(nullptr);
  IMoIPEngine* engine = engine_create();
  engine_destroy(engine);
  engine_destroy(engine);
  EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
}

// A host built against the interface may leave the questions unanswered.
TEST(TheInterface, AnswersNoToEveryQuestionByDefault) {
  struct Minimal : IMoIPEngine {
    const char* Execute(const char*, const char*, const char*, const char*, const char*) noexcept override {
      return "";
    }
    void RegisterEventCallback(MoIPEventCallback, void*) noexcept override {}
    void OnData(const CAVData*) noexcept override {}
    void RegisterDataCallback(MoIPDataCallback, void*) noexcept override {}
    void RegisterCommonCtrlFunc(MoIPCommonCtrlFunc, void*) noexcept override {}
  } minimal;
  std::string text;
  EXPECT_FALSE(minimal.IsLoggedIn(text));
  EXPECT_FALSE(minimal.PlaceCall(text, 1));
}

}  // namespace

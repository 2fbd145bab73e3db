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
static_assert(offsetof(CEngineEvent, type) == 0 && offsetof(CEngineEvent, param1) == 8 &&
              offsetof(CEngineEvent, param2) == 16 && sizeof(CEngineEvent) == 24);
static_assert(offsetof(CAVData, type) == 0 && offsetof(CAVData, value) == 4 && offsetof(CAVData, size) == 8 &&
              offsetof(CAVData, data) == 16 && sizeof(CAVData) == 24);

bool OnHostsEvent(const CEngineEvent* event, void* user) {
  *static_cast<std::string*>(user) = std::to_string(event->type) + event->param1;
  return true;
}

const char* OnHostsControl(const char* cmd, const char*, const char*, const char*, const char*, void*) {
  return cmd;
}

bool OnHostsData(const CAVData* record, void* user, void* extra) {
  *static_cast<std::string*>(user) =
      std::to_string(record->type) + "," + std::to_string(*static_cast<int*>(extra));
  return true;
}

TEST(AHostCompiledElsewhere, ReachesEveryOperationByItsSlot) {
  IMoIPEngine* engine = engine_create();
  ASSERT_NE(engine, nullptr);
  EXPECT_EQ(engine_create(), engine);
  std::string seen;

  CallSlot<void>(engine, 1, &OnHostsEvent, &seen);
  CallSlot<void>(engine, 4, &OnHostsControl, static_cast<void*>(nullptr));
  CZeltoManager::NotifyEngineEvent(300, "text", nullptr);
  EXPECT_EQ(seen, "300text");

  CallSlot<void>(engine, 3, &OnHostsData, &seen);
  EXPECT_EQ(FakeService::host->loads, 1);
  unsigned char pixels[] = "abc";
  const CAVData picture{2, 9, 3, pixels};
  unsigned extra = 5;
  CZeltoManager::SendAVData(&picture, &extra);
  EXPECT_EQ(seen, "2,5");

  FakeService::host->onExecute = [](const std::string& call) {
    return call == "Cmd|1||null|4|" ? "yes" : "no";
  };
  EXPECT_STREQ(CallSlot<const char*>(engine, 0, "Cmd", "1", "", static_cast<const char*>(nullptr), "4"),
               "yes");
  const CAVData sound{0, 0, 3, pixels};
  const CAVData broken{0, 0, 3, nullptr};
  for (const CAVData* record : {&sound, static_cast<const CAVData*>(nullptr), &broken}) {
    CallSlot<void>(engine, 2, record);
  }
  ASSERT_EQ(FakeService::host->data.size(), 1u);
  EXPECT_EQ(FakeService::host->data[0].data, pixels);

  CAccountManager::GetInstance();
  FakeService::account->loginState = 2;
  FakeService::answers = {{"account 1", "signed in"}, {"mail ann", "by mail"},
                          {"image ann", "image"},     {"contact ann 13", "mobile"},
                          {"contact ann 11", "home"}, {"contact ann 12", "office"},
                          {"status ann", "3"}};
  const std::string ann = "ann";
  std::string text;
  int number = 0;
  const int index = 0;
  EXPECT_TRUE(CallSlot<bool>(engine, 8, &text));
  EXPECT_EQ(text, "signed in");
  EXPECT_FALSE(CallSlot<bool>(engine, 9, &index, &number, &text, &text, &number));
  EXPECT_FALSE(CallSlot<bool>(engine, 10, &index, &text, &text, &number, &text));
  const std::pair<std::size_t, const char*> questions[] = {
      {7, "by mail"}, {11, "image"}, {15, "mobile"}, {16, "home"}, {17, "office"}};
  for (const auto& [slot, answer] : questions) {
    EXPECT_TRUE(CallSlot<bool>(engine, slot, &ann, &text)) << slot;
    EXPECT_EQ(text, answer);
  }
  EXPECT_TRUE(CallSlot<bool>(engine, 12, &ann, &number));
  EXPECT_EQ(number, 3);
  EXPECT_TRUE(CallSlot<bool>(engine, 13, &ann, 2));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam().substr(0, 9), "Videocall");
  EXPECT_TRUE(CallSlot<bool>(engine, 14, 77));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam().substr(0, 9), "Voicemail");

  // Taking a function back does nothing.
  CallSlot<void>(engine, 18, &OnHostsEvent);
  CallSlot<void>(engine, 19, &OnHostsData);
  CallSlot<void>(engine, 20, &OnHostsControl);
  EXPECT_EQ(CZeltoManager::CallCommonControl("GetTVModel"), "GetTVModel");

  CallSlot<void>(engine, 6);  // the deleting destructor
  EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
  FakeService::answers.clear();
}

TEST(AHostCompiledElsewhere, MayDestroyNothingAndNothingTwice) {
  engine_destroy(nullptr);
  IMoIPEngine* engine = engine_create();
  engine_destroy(engine);
  engine_destroy(engine);
  EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
}

}  // namespace

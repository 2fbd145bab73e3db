#include "simulator/television/Errands.h"

#include <gmock/gmock.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "simulator/television/ContactList.h"
#include "tests/support/SilentEngine.h"

using namespace television;
using ::testing::ElementsAre;

namespace {

// Keeps the commands it is given.
class ListeningEngine : public test::SilentEngine {
 public:
  const char* Execute(const char* command, const char* p1, const char* p2, const char*,
                      const char*) noexcept override {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.push_back(std::string(command) + ' ' + (p1 != nullptr ? p1 : "") + ' ' +
                         (p2 != nullptr ? p2 : ""));
    m_changed.notify_all();
    return "1";
  }
  std::vector<std::string> Commands(std::size_t count) {
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, std::chrono::seconds(5), [&] { return m_commands.size() >= count; });
    return m_commands;
  }

 private:
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::vector<std::string> m_commands;
};

Report Control(const std::string& command, const std::string& parameter) {
  return {Report::Kind::Control, 0, command, {parameter}, "1"};
}

}  // namespace

TEST(TheTelevisionsErrands, StartTheWidgetAndGoOnAfterASourceChangeOnAThreadOfTheirOwn) {
  ListeningEngine engine;
  std::atomic<bool> ownThread{false};
  Errands errands([&, here = std::this_thread::get_id()](const std::string&, const std::string&) {
    ownThread = std::this_thread::get_id() != here;
  });
  errands.Take(Control("StartWidgetWithParam", ""));
  errands.Attach(engine);
  errands.Take(Control("StartWidgetWithParam", "TVModeAudio"));
  errands.Take(Control("StartWidgetWithParam", "Videocall\x03\x02maria"));
  errands.Take(Control("RegisterAfterSourceChangeCallback", "ResumeTVModeVideo"));
  errands.Take(Control("StartPIGMode", ""));
  errands.Take(Control("StopPIGMode", ""));  // nothing is registered any more
  EXPECT_THAT(engine.Commands(5),
              ElementsAre("SetZeltoWidgetState 1 ", "SetZeltoWidgetState 2 ", "SetZeltoWidgetState 1 ",
                          "CreateCall maria 1", "ResumeTVModeVideo  "));
  errands.Detach();
  EXPECT_TRUE(ownThread);
}

TEST(AContactList, IsReadFromWholeRecordsOnly) {
  const std::string end = "\x03\x02";
  const std::string anna = "anna" + end + end + "Anna" + end + "7" + end + "2" + end + "file:///a.jpg" + end;
  const auto contacts = ReadContacts(anna + "hello" + end + anna);
  ASSERT_EQ(contacts.size(), 1u);
  EXPECT_EQ(contacts[0].displayName, "Anna");
  EXPECT_EQ(contacts[0].mood, "hello");
  EXPECT_STREQ(PresenceWord(contacts[0].availability), "online");
  EXPECT_STREQ(PresenceWord(-1), "offline");
}

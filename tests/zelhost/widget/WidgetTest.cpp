#include <gtest/gtest.h>

#include <filesystem>

#include "tests/zelhost/Service.h"
#include "zelhost/ZelhostZeltoManager.h"

namespace {

constexpr int kTimer = CZeltoManager::WIDGET_OSD_TIMER_EXPIRED;

// Fifty seconds pass in one.
class AWidget : public testing::Test {
 protected:
  static constexpr char kPlain[] = "/mtd_down/widgets/normal/100000000042";
  static constexpr char kImage[] = "/mtd_down/widgets/normal/100000000042_img";
  static constexpr char kBackup[] = "/mtd_down/moip/engines/Zelto/w.data";
  static constexpr char kAccount[] = "/mtd_down/moip/engines/Zelto/.Zelto";

  void MakeFolder(const char* folder) const { std::filesystem::create_directories(m_device / folder); }
  std::string Do(const char* command, const char* p1 = nullptr, const char* p2 = nullptr) {
    return m_host.Execute(command, p1, p2);
  }

  test::Watchdog m_watchdog{60};
  test::DeviceRoot m_device;
  test::FastPlatform m_platform{50};
  test::RecordingHost m_host;
};

TEST_F(AWidget, HearsOnlyTheLastStartOfATimerAndNothingAfterItsStop) {
  const std::int64_t before = m_platform.Now();
  EXPECT_EQ(Do("StartOSDTimer", "20", "3"), "1");
  EXPECT_EQ(Do("StartOSDTimer", "25", "3"), "0");
  EXPECT_EQ(Do("RestartOSDTimer", "30", "3"), "1");
  EXPECT_EQ(Do("RestartOSDTimer", "5", "0"), "1");
  EXPECT_EQ(Do("StartOSDTimer", "20", "4"), "1");
  EXPECT_EQ(Do("StopOSDTimer", "4"), "1");
  EXPECT_TRUE(m_host.WaitFor(kTimer + 3));
  EXPECT_GE(m_platform.Now() - before, 30'000'000'000);
  EXPECT_EQ(m_host.CountUntilNow(kTimer + 3), 1);
  EXPECT_EQ(m_host.CountUntilNow(kTimer + 4), 0);
  EXPECT_EQ(m_host.CountUntilNow(kTimer), 1);
  EXPECT_EQ(Do("StartOSDTimer", "600", "3"), "0");  // it counts as running until it is stopped
}

TEST_F(AWidget, HasTenTimersAndMayGoWhileTheyRunOut) {
  for (const char* id : {"10", "-1"}) {
    for (const char* command : {"StartOSDTimer", "RestartOSDTimer"}) EXPECT_EQ(Do(command, "0", id), "0");
    EXPECT_EQ(Do("StopOSDTimer", id), "0");
  }
  for (int id = 0; id < 10; ++id) CZelhostZeltoManager::GetInstance()->RestartWidegtOSDTimer(id % 2, id);
}

TEST_F(AWidget, HasItsDataBackedUpFromWhereItLies) {
  for (const char* folder : {kPlain, kImage, "/mtd_down/moip/engines/Zelto"}) MakeFolder(folder);
  EXPECT_EQ(Do("BackupWidgetData"), "0");
  m_device.Write(std::string(kPlain) + "/w.data", "plain");
  EXPECT_EQ(Do("BackupWidgetData"), "1");
  EXPECT_EQ(m_device.Read(kBackup), "plain");
  m_device.Write(std::string(kImage) + "/w.data", "image");
  EXPECT_EQ(Do("BackupWidgetData"), "1");
  EXPECT_EQ(m_device.Read(kBackup), "image");
}

TEST_F(AWidget, GetsItsDataBackWhileThereIsAnAccount) {
  MakeFolder(kAccount);
  for (const char* file : {"/a", "/b", "/c"}) m_device.Write(std::string(kAccount) + file, "");
  EXPECT_EQ(Do("RestoreWidgetData"), "");  // no folder of the widget
  MakeFolder(kPlain);
  EXPECT_EQ(Do("RestoreWidgetData"), "1");  // nothing to copy
  m_device.Write(kBackup, "kept");
  EXPECT_EQ(Do("RestoreWidgetData"), "1");
  EXPECT_EQ(m_device.Read(std::string(kPlain) + "/w.data"), "kept");
  MakeFolder(kImage);
  EXPECT_EQ(Do("RestoreWidgetData"), "1");
  EXPECT_EQ(m_device.Read(std::string(kImage) + "/w.data"), "kept");

  std::filesystem::remove(m_device / kAccount + "/c");
  EXPECT_EQ(Do("RestoreWidgetData"), "0");
  EXPECT_FALSE(m_device.Has(std::string(kPlain) + "/w.data"));
  EXPECT_TRUE(m_device.Has(std::string(kImage) + "/w.data"));
}

}  // namespace

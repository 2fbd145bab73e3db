#include <gmock/gmock.h>

#include "tests/support/DeviceRoot.h"
#include "tests/support/RecordingHost.h"
#include "zelhost/media/ZelhostIPCManager.h"

namespace {

const std::string kFolder = "/mtd_rwcommon/moip/snapshot/Zelto";

class TheSnapShots : public testing::Test {
 protected:
  TheSnapShots() {
    m_device.Write("/tmp/capture.jpg", "a picture");
    m_host.Answers("MinimizeSnapShot", "1");
  }
  ~TheSnapShots() override { CZelhostIPCManager::DeleteInstance(); }

  std::string List(std::initializer_list<const char*> names) {
    std::string list;
    for (const char* name : names) list += "file://" + kFolder + "/" + name + "\x03\x02";
    return list;
  }

  test::DeviceRoot m_device;
  test::RecordingHost m_host;
};

TEST_F(TheSnapShots, AreNumberedListedAndRemoved) {
  EXPECT_EQ(m_host.Execute("GetNumOfSnapShot"), "0");
  EXPECT_EQ(m_host.Execute("GetSnapShotPathList"), "");
  EXPECT_EQ(m_host.Execute("SaveSnapShot"), "1");
  EXPECT_EQ(m_host.Execute("SaveSnapShot"), "1");
  EXPECT_THAT(m_host.TakeControls(), testing::Contains("MinimizeSnapShot(96, 96)").Times(2));
  EXPECT_EQ(m_host.Execute("GetSnapShotPathList"), List({"0000000001.jpg", "0000000002.jpg"}));
  EXPECT_EQ(m_device.Read(kFolder + "/0000000002.jpg"), "a picture");
  EXPECT_EQ(m_host.Execute("DeleteSnapShot", "0"), "1");
  EXPECT_EQ(m_host.Execute("SaveSnapShot"), "1");
  EXPECT_EQ(m_host.Execute("GetSnapShotPathList"), List({"0000000002.jpg", "0000000003.jpg"}));
  for (const char* none : {"2", "-1", "5"}) EXPECT_EQ(m_host.Execute("DeleteSnapShot", none), "0");
  EXPECT_EQ(m_host.Execute("GetNumOfSnapShot"), "2");
  m_host.Answers("MinimizeSnapShot", "0");
  EXPECT_EQ(m_host.Execute("SaveSnapShot"), "0");
}

// Names that others have put there: only those whose first dot is followed by the extension count, and none
// reaches a shell or forges a field.
TEST_F(TheSnapShots, BearOddNames) {
  EXPECT_EQ(m_host.Execute("GetNumOfSnapShot"), "0");
  for (const char* name : {"/a.b.jpg", "/.jpg", "/12 '$(touch x)'.jpgx", "/7\x03\x02z.jpg", "/plain"}) {
    m_device.Write(kFolder + name, "");
  }
  EXPECT_EQ(m_host.Execute("GetSnapShotPathList"), List({".jpg", "12 '$(touch x)'.jpgx", "7  z.jpg"}));
  EXPECT_EQ(m_host.Execute("SaveSnapShot"), "1");
  EXPECT_TRUE(m_device.Has(kFolder + "/0000000013.jpg"));
  EXPECT_EQ(m_host.Execute("DeleteSnapShot", "2"), "1");
  EXPECT_FALSE(m_device.Has(kFolder + "/12 '$(touch x)'.jpgx"));
  m_device.Write(kFolder + "/99999999999999999999.jpg", "");
  EXPECT_EQ(m_host.Execute("SaveSnapShot"), "0");
}

}  // namespace

#include "simulator/television/Host.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <ctime>
#include <string_view>

#include "tests/support/SilentEngine.h"

using television::Host;
using television::Report;
using television::TelevisionState;
using ::testing::ElementsAre;

namespace {

// Stands in for the engine: keeps the functions that a host registers.
class RegistrationOnlyEngine : public test::SilentEngine {
 public:
  void RegisterEventCallback(MoIPEventCallback callback, void* user) noexcept override {
    m_event = callback, m_user = user;
  }
  void RegisterCommonCtrlFunc(MoIPCommonCtrlFunc function, void*) noexcept override { m_control = function; }

  std::string Control(const char* command, const char* p1 = nullptr, const char* p2 = nullptr) {
    return m_control(command, p1, p2, nullptr, nullptr, m_user);
  }
  void Event(int type, const char* p1) {
    const CEngineEvent event{type, const_cast<char*>(p1), nullptr};
    m_event(&event, m_user);
  }

 private:
  MoIPEventCallback m_event = nullptr;
  MoIPCommonCtrlFunc m_control = nullptr;
  void* m_user = nullptr;
};

unsigned short* Allocated(std::u16string_view text) {
  auto* units = static_cast<unsigned short*>(std::calloc(text.size() + 1, sizeof(unsigned short)));
  std::copy(text.begin(), text.end(), units);
  return units;
}

class ATelevisionHost : public ::testing::Test {
 protected:
  ATelevisionHost() { host.Attach(engine); }

  RegistrationOnlyEngine engine;
  Host host;
};

}  // namespace

TEST_F(ATelevisionHost, KeepsWhatControlCallsStoreAndAnswersIt) {
  EXPECT_EQ(engine.Control("GetSpeakerVolume"), "20");
  EXPECT_EQ(engine.Control("SetSpeakerVolume", "0"), "1");
  EXPECT_EQ(engine.Control("GetSpeakerVolume"), "0");
  EXPECT_EQ(engine.Control("StartPIGMode", "10", "20"), "1");
  host.WithState([](TelevisionState& state) { EXPECT_EQ(state.Get("pig"), "10 20"); });
  EXPECT_EQ(engine.Control("MuteSpeakerVolume"), "1");
  EXPECT_EQ(engine.Control("MinimizeSnapShot", "96", "96"), "0");  // no camera
  EXPECT_EQ(engine.Control("GetCameraMicDistance", "1"), "20");
  engine.Control("StopCallWithTV");
  host.WithState([](TelevisionState& state) {
    EXPECT_EQ(state.Get("speakerMuted"), "0");
    EXPECT_THAT(state.SetByEngine(),
                ElementsAre("call", "pig", "pipSource", "speakerMuted", "speakerVolume"));
  });
  EXPECT_EQ(engine.Control("NoSuchCommand"), "");
}

TEST_F(ATelevisionHost, AnswersItsOwnClockAndLocalTime) {
  host.WithState([](TelevisionState& state) { EXPECT_TRUE(state.Set("clockOffset", "100000")); });
  EXPECT_GE(std::stol(engine.Control("GetEpochTime")), std::time(nullptr) + 99999);
  setenv("TZ", "UTC", 1);
  EXPECT_EQ(engine.Control("GetLocalTime", "86399"), "1970-01-01 23:59:59");
  EXPECT_EQ(engine.Control("GetLocalTime12", "86399"), "1970-01-01 11:59 PM");
}

TEST_F(ATelevisionHost, CopiesTextsAndNoticesWhichTheEngineFreesRightAfter) {
  std::vector<Report> seen;
  host.SetObserver([&](const Report& report) { seen.push_back(report); });
  std::string text = "anna";
  engine.Event(21, text.c_str());
  text = "gone";
  {
    CEngineGlobalNoticeInfo record;
    record.append = false;
    record.defaultFocus = 0;
    record.buttonCount = 1;
    record.title = Allocated(u"Ζελτο");
    record.buttonTexts[0] = Allocated(u"Ναι");
    record.buttonCallbacks[0] = ::strdup("CallEnd");
    engine.Event(17, reinterpret_cast<const char*>(&record));
  }
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_THAT(seen[0].parameters, ElementsAre("anna"));
  EXPECT_EQ(Written(*seen[1].notice),
            "0 | replace | 3000 ms | Ζελτο |  | Resource/icon_zelto.png | Ναι* -> CallEnd");
}

// What a call in real time does to sound and pictures.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iterator>
#include <mutex>
#include <numeric>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "simulator/common/TestPicture.h"
#include "simulator/television/media/Metronome.h"
#include "tests/system/SwitchedOnTelevision.h"

namespace test {

namespace {

using std::chrono::milliseconds;

constexpr int kMyVideoAvailable = 419;
constexpr int kMembersCleared = 280;
constexpr int kSoundRecord = 0;
constexpr int kCameraRecord = 16;
constexpr int kPictureRecord = 16;
constexpr std::size_t kSoundPacket = 960;
constexpr std::size_t kPictures = 300;  // in 10 s
constexpr std::size_t kSoundPackets = 1000;
constexpr std::size_t kMostLostAtStart = 20;  // packets until the far end hears
constexpr int kUntilAllIsBack = 3000;         // milliseconds

class AnEchoCall : public ATelevision {
 protected:
  void SetUp() override {
    m_host.SetMediaSink([this](const CAVData& record, unsigned* waiting) { Take(record, waiting); });
    SwitchOnAndWait();
    SignIn();
    ASSERT_EQ(Execute("SetZeltoWidgetState", "1"), "1");
    ASSERT_EQ(Execute("CreateCall", "sndtest", "1"), "1");
    ASSERT_TRUE(Arrives(kMyVideoAvailable));
  }

  // Ten seconds of noise and pictures; then until nothing more comes back.
  void Talk() {
    std::mt19937 random(7);
    std::generate_n(std::back_inserter(m_said), kSoundPacket * kSoundPackets,
                    [&] { return static_cast<char>(random()); });
    std::atomic<std::size_t> sounds{0};
    std::atomic<std::uint32_t> pictures{0};
    simulator::TestPicture camera("echo");
    {
      television::Metronome sound(
          milliseconds(10), [] {},
          [&] {
            if (sounds < kSoundPackets)
              Give(kSoundRecord, m_said.data() + kSoundPacket * sounds++, kSoundPacket);
          });
      television::Metronome picture(
          std::chrono::microseconds(1'000'000 / 30), [] {},
          [&] {
            if (pictures == kPictures) return;
            std::vector<unsigned char>& frame = camera.Draw({pictures++, 0});
            Give(kCameraRecord, frame.data(), frame.size());
          });
      sound.Switch(true);
      picture.Switch(true);
      Await([&] { return sounds == kSoundPackets && pictures == kPictures; }, 20'000);
    }
    Await([&] { return Seen().size() == kPictures && Heard().size() >= m_said.size(); }, kUntilAllIsBack);
  }

  std::string Heard() {
    const std::lock_guard lock(m_mutex);
    return m_heard;
  }
  std::vector<std::uint32_t> Seen() {
    const std::lock_guard lock(m_mutex);
    return m_seen;
  }
  std::string m_said;

 private:
  template <class Bytes>
  void Give(int type, Bytes* data, std::size_t size) {
    const CAVData record{type, 0, static_cast<unsigned>(size), reinterpret_cast<unsigned char*>(data)};
    Engine().OnData(&record);
  }
  static void Await(const std::function<bool()>& condition, int limit) {
    const auto end = std::chrono::steady_clock::now() + milliseconds(limit);
    while (!condition() && std::chrono::steady_clock::now() < end)
      std::this_thread::sleep_for(milliseconds(5));
  }
  void Take(const CAVData& record, unsigned* waiting) {
    const std::lock_guard lock(m_mutex);
    if (record.type == kSoundRecord) m_heard.append(reinterpret_cast<char*>(record.data), record.size);
    if (record.type == kPictureRecord) {
      const auto burnt = simulator::ReadTestPicture(record.data, record.size);
      m_seen.push_back(burnt ? burnt->counter : ~0u);
    }
    if (waiting != nullptr) *waiting = 0;
  }

  std::mutex m_mutex;
  std::string m_heard;
  std::vector<std::uint32_t> m_seen;  // the pictures' counters
};

}  // namespace

TEST_F(AnEchoCall, GivesBackEverySampleAndEveryPicture) {
  Talk();
  const std::string heard = Heard();
  ASSERT_GE(heard.size(), m_said.size() - kMostLostAtStart * kSoundPacket);
  EXPECT_TRUE(m_said.compare(m_said.size() - heard.size(), std::string::npos, heard) == 0);
  std::vector<std::uint32_t> sent(kPictures);
  std::iota(sent.begin(), sent.end(), 0u);
  EXPECT_EQ(Seen(), sent);
  EXPECT_EQ(Execute("CallEnd", "0"), "1");
  EXPECT_TRUE(Arrives(kMembersCleared));
}

}  // namespace test

#include "simulator/runtime/media/Media.h"

#include <atomic>
#include <future>
#include <thread>

#include "simulator/common/TestPicture.h"
#include "simulator/runtime/Wire.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/media/PacketTypes.h"
#include "tests/simulator/runtime/media/EngineSide.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::EngineSide;
using test::Packet;
using test::Words;

constexpr int kMany = 300;
constexpr int kWindow = 20;  // packets on their way at a time

std::string SoundPacket(int number) {
  std::string payload(packet::kSoundSize, '\0');
  for (std::size_t i = 0; i < payload.size(); ++i)
    payload[i] = static_cast<char>(number * 7 + static_cast<int>(i));
  return payload;
}

class AnEngineInACall : public ::testing::Test {
 protected:
  AnEngineInACall() { media.Attach(); }
  ~AnEngineInACall() override { media.Detach(); }

  // Sends all of them, paced by what comes back, and answers what came back.
  std::vector<Packet> Exchange(const EngineSide::Channel& out, const EngineSide::Channel& in,
                               const std::vector<std::string>& payloads, std::size_t others) {
    std::atomic<int> back{0};
    std::thread sending([&] {
      for (std::size_t i = 0; i < payloads.size(); ++i) {
        while (static_cast<int>(i) - back >= kWindow) std::this_thread::yield();
        EXPECT_EQ(0, EngineSide::Send(out, packet::kMedia, payloads[i]));
      }
    });
    std::vector<Packet> received;
    while (received.size() < payloads.size() + others) {
      received.push_back(EngineSide::Receive(in));
      if (received.back().type == EngineSide::kNone) break;
      ++back;
    }
    back = static_cast<int>(payloads.size());
    sending.join();
    return received;
  }
  void ReturnsSound(int count) {
    std::vector<std::string> payloads;
    for (int i = 0; i < count; ++i) payloads.push_back(SoundPacket(i));
    media.BeginSound(FarSound::Echo);
    const std::vector<Packet> received = Exchange(engine->soundOut, engine->soundIn, payloads, 1);
    ASSERT_EQ(payloads.size() + 1, received.size());
    EXPECT_EQ(packet::kSoundBegins, received[0].type);
    for (std::size_t i = 0; i < payloads.size(); ++i) {
      ASSERT_EQ(packet::kMedia, received[i + 1].type);
      ASSERT_EQ(payloads[i], received[i + 1].payload) << i;
    }
    media.EndSound();
    EXPECT_EQ(packet::kSoundEnds, EngineSide::Receive(engine->soundIn).type);
  }
  void ReturnsPictures(int count) {
    std::vector<std::string> frames;
    TestPicture camera("Camera", 320, 240);
    for (int i = 0; i < count; ++i) {
      const std::vector<unsigned char>& frame = camera.Draw({static_cast<std::uint32_t>(i), i * 33'333});
      frames.emplace_back(frame.begin(), frame.end());
    }
    media.ShowPicture(FarPicture::Echo);
    const std::vector<Packet> received = Exchange(engine->picturesOut, engine->picturesIn, frames, 1);
    ASSERT_EQ(frames.size() + 1, received.size());
    EXPECT_EQ(packet::kShape, received[0].type);
    EXPECT_EQ(Words({320, 240}), received[0].payload);
    for (std::size_t i = 0; i < frames.size(); ++i) ASSERT_EQ(frames[i], received[i + 1].payload) << i;
    media.ShowPicture(FarPicture::None);
  }
  json Order(const std::string& words) { return orders.Execute(Orders::FromWords(words)); }
  template <typename Condition>
  static bool Soon(Condition condition) {
    for (int i = 0; i < 1000 && !condition(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return condition();
  }

  const test::Watchdog watchdog{60};
  const test::SurvivalCheck survival;
  const test::DeviceRoot root;
  std::unique_ptr<EngineSide> engine = std::make_unique<EngineSide>();
  Media media;
  Wire wire{false};
  Faults faults{1};
  Controls controls{wire, faults, nullptr, &media};
  Orders orders{controls};
};

TEST_F(AnEngineInACall, HearsAndSeesItselfWithoutLossAndAgainAfterARestart) {
  auto sound = std::async(std::launch::async, [this] { ReturnsSound(kMany); });
  ReturnsPictures(kMany);
  sound.get();
  const MediaCounts counts = media.Counts();
  const auto many = static_cast<std::uint64_t>(kMany);
  EXPECT_EQ(many, counts.soundIn);
  EXPECT_EQ(many, counts.soundOut);
  EXPECT_EQ(many, counts.picturesIn);
  EXPECT_EQ(many, counts.picturesOut);
  EXPECT_EQ(0u, counts.picturesDropped);
  EXPECT_EQ(0u, media.SoundDropped());
  // Nothing comes back that was not asked for.
  EXPECT_EQ(0, EngineSide::Send(engine->soundOut, packet::kMedia, SoundPacket(1)));
  EXPECT_TRUE(Soon([&] { return media.Counts().soundIn == many + 1; }));
  EXPECT_EQ(EngineSide::kNone, EngineSide::Receive(engine->soundIn, 0).type);
  media.Detach();
  engine.reset();
  engine = std::make_unique<EngineSide>();
  media.Attach();
  ReturnsSound(5);
  ReturnsPictures(5);
}

TEST_F(AnEngineInACall, SeesTheTestPictureAndHearsATone) {
  media.ShowPicture(FarPicture::TestPicture);
  EXPECT_EQ(0, EngineSide::Send(engine->picturesOut, packet::kKeyFrameRequest, {}));
  EXPECT_EQ(Words({640, 480}), EngineSide::Receive(engine->picturesIn).payload);
  std::int64_t clock = 0;
  for (std::uint32_t i = 0; i < 10; ++i) {
    const Packet frame = EngineSide::Receive(engine->picturesIn);
    ASSERT_EQ(packet::kMedia, frame.type);
    const auto* jpeg = reinterpret_cast<const unsigned char*>(frame.payload.data()) + packet::kTimeStampSize;
    const auto burnt = ReadTestPicture(jpeg, frame.payload.size() - packet::kTimeStampSize);
    ASSERT_TRUE(burnt.has_value());
    EXPECT_EQ(i, burnt->counter);
    EXPECT_GT(burnt->clock, clock);
    clock = burnt->clock;
  }
  EXPECT_TRUE(Soon([&] { return media.Counts().keyFrameRequests == 1; }));
  media.ShowPicture(FarPicture::None);
  media.BeginSound(FarSound::Tone);
  EXPECT_EQ(packet::kSoundBegins, EngineSide::Receive(engine->soundIn).type);
  std::string tone;
  for (int i = 0; i < 10; ++i) tone += EngineSide::Receive(engine->soundIn).payload;
  ASSERT_EQ(10 * packet::kSoundSize, tone.size());
  int rising = 0;
  std::vector<std::int16_t> samples(tone.size() / 2);
  std::memcpy(samples.data(), tone.data(), tone.size());
  for (std::size_t i = 1; i < samples.size(); ++i) rising += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
  EXPECT_NEAR(44, rising, 1);
  EXPECT_NEAR(8000, *std::max_element(samples.begin(), samples.end()), 10);
}

TEST_F(AnEngineInACall, HearsAnotherMelodyForEachRecordingAndThenATone) {
  // Waves in the next packet of sound, which hold a hundredth of a second.
  const auto waves = [&] {
    const std::string sound = EngineSide::Receive(engine->soundIn).payload;
    std::vector<std::int16_t> samples(sound.size() / 2);
    std::memcpy(samples.data(), sound.data(), 2 * samples.size());
    int rising = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) rising += samples[i - 1] <= 0 && samples[i] > 0;
    return rising;
  };
  for (const auto& [recording, frequency] : {std::pair(1u, 400), std::pair(11u, 600)}) {
    media.PlayRecording(recording);
    EXPECT_EQ(packet::kSoundBegins, EngineSide::Receive(engine->soundIn).type);
    EXPECT_EQ(frequency / 100, waves());
    media.EndSound();
    while (EngineSide::Receive(engine->soundIn).type == packet::kMedia) {
    }
  }
  media.PlayRecording(1);
  media.BeginSound(FarSound::Tone);
  media.EndSound();
}

TEST_F(AnEngineInACall, IsMeasuredAndServedByOrders) {
  EXPECT_EQ((json{"audio-in", "audio-out", "video-in", "video-out"}), Order("media")["attached"]);
  EngineSide::Send(engine->soundOut, packet::kMicConfiguration, Words({1, 20, 30}));
  std::string loud;
  for (int i = 0; i < 480; ++i) loud += std::string("\xff\x7f", 2);
  EngineSide::Send(engine->soundOut, packet::kMedia, loud);
  EXPECT_TRUE(Soon([&] { return media.VoiceLevel() == 10; }));
  EXPECT_EQ((json{1, 20, 30}), Order("media")["microphones"]);
  EXPECT_TRUE(Soon([&] { return media.VoiceLevel() == 0; }));  // nothing more is heard
  EXPECT_TRUE(Order("mic-volume 65535")["ok"].get<bool>());
  EXPECT_TRUE(Order("packet audio-in type=77 hex=4142")["ok"].get<bool>());
  const Packet volume = EngineSide::Receive(engine->soundIn);
  EXPECT_EQ(packet::kMicVolume, volume.type);
  EXPECT_EQ(Words({0, 65535}), volume.payload);
  EXPECT_EQ("AB", EngineSide::Receive(engine->soundIn).payload);
  for (const char* refused :
       {"packet audio-out type=1", "packet audio-in type=-1", "mic-volume 4294967296",
        "header video-in word=8 value=1", "header sound word=1 value=1", "stall slow"}) {
    EXPECT_FALSE(Order(refused)["ok"].get<bool>()) << refused;
  }
  Order("stall on");
  EXPECT_TRUE(Soon([&] { return EngineSide::Send(engine->soundOut, packet::kMedia, loud, 0) != 0; }));
  Order("clear");
  EXPECT_EQ(0, EngineSide::Send(engine->soundOut, packet::kMedia, loud));
  EXPECT_TRUE(Order("header video-in word=2 value=3")["ok"].get<bool>());
  EXPECT_EQ(3u, shmipc::HeaderOf(engine->picturesIn.get()).writeOffset);
}

TEST_F(AnEngineInACall, DoesNoHarmWithWhatItSendsNorByVanishing) {
  media.BeginSound(FarSound::Echo);
  media.ShowPicture(FarPicture::Echo);
  for (std::uint32_t type = 0; type < 256; ++type) {
    for (const std::size_t size : {0u, 3u, 11u, 2000u}) {
      EXPECT_EQ(0, EngineSide::Send(engine->soundOut, type, std::string(size, '\xd8')));
      EXPECT_EQ(0, EngineSide::Send(engine->picturesOut, type, std::string(size, '\xff')));
    }
  }
  EXPECT_TRUE(Soon([&] { return media.Counts().picturesIn == 2; }));
  EXPECT_EQ(0u, media.Counts().soundIn);  // none of them was sound
  for (EngineSide::Channel* channel :
       {&engine->soundIn, &engine->soundOut, &engine->picturesIn, &engine->picturesOut}) {
    auto* words = static_cast<std::uint32_t*>((*channel)->segment);
    for (const std::uint32_t value :
         {0u, 1u, 15u, 16u, 2431u, 2432u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
      for (int word = 0; word < 8; ++word) shmipc::PublishWord(words[word], value);
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
  }
  media.BeginSound(FarSound::Tone);
  media.ShowPicture(FarPicture::TestPicture);
  engine.reset();
  media.Detach();
  engine = std::make_unique<EngineSide>();
  media.Attach();
  ReturnsSound(3);
}

}  // namespace
}  // namespace simulator

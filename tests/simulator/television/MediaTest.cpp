#include <gmock/gmock.h>

#include <atomic>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include "simulator/television/media/MediaStudio.h"
#include "simulator/television/media/Pace.h"
#include "simulator/television/media/PlaybackBuffer.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/SilentEngine.h"

using namespace std::chrono_literals;
using namespace television;
using simulator::BurntIn;
using ::testing::HasSubstr;

namespace {

// How often something happens in a second when the one at `lateAt` (counted from 0) takes `late` longer.
int InASecond(Pace::Clock::duration period, int lateAt, Pace::Clock::duration late) {
  Pace pace(period);
  Pace::Clock::time_point now{};
  const Pace::Clock::time_point end = now + 1s;
  pace.Begin(now);
  int count = 0;
  while (now < end) {
    const Pace::Clock::time_point done = now + (count++ == lateAt ? late : 1ms);
    now = pace.Next(done);
    EXPECT_GE(now - done, period / 2);
  }
  return count;
}

void WriteSound(const std::string& path, int rate, int channels, const std::vector<Sample>& samples) {
  SF_INFO info{};
  info.samplerate = rate, info.channels = channels, info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
  sf_write_short(file, samples.data(), static_cast<sf_count_t>(samples.size()));
  sf_close(file);
}

std::string Refusal(const std::string& file) {
  try {
    Microphone refused(file);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return {};
}

// Gives back what it is given, as the far end of an echo does, but for the pictures it is told to lose.
class EchoingEngine : public test::SilentEngine {
 public:
  explicit EchoingEngine(MediaStudio& studio) : m_studio(studio) {}

  void OnData(const CAVData* data) noexcept override {
    constexpr unsigned kStamp = simulator::TestPicture::kTimeStampSize;
    if (data->type == 0) {
      ++sound;
      m_studio.Take(*data, &waiting);
    } else if (pictures++ % 5 != 4) {
      const CAVData back{data->type, 0, data->size - kStamp, data->data + kStamp};
      m_studio.Take(back, nullptr);
    }
  }
  bool HasGot(int packets, int frames) const {
    for (int i = 0; i < 1000 && (sound < packets || pictures < frames); ++i)
      std::this_thread::sleep_for(10ms);
    return sound >= packets && pictures >= frames;
  }

  std::atomic<int> sound{0};
  std::atomic<int> pictures{0};
  unsigned waiting = 0;

 private:
  MediaStudio& m_studio;
};

}  // namespace

TEST(APace, KeepsItsRateUnlessItFallsTooFarBehind) {
  EXPECT_EQ(InASecond(10ms, -1, 0ms), 100);
  EXPECT_EQ(InASecond(10ms, 20, 150ms), 100);
  EXPECT_EQ(InASecond(10ms, 20, 500ms), 51);  // what should have happened meanwhile is given up
}

TEST(TheSpeakersBuffer, PlaysInRealTime) {
  PlaybackBuffer buffer;
  const PlaybackBuffer::Clock::time_point start{1h};
  EXPECT_EQ(buffer.Add(960, start), 960u);
  EXPECT_EQ(buffer.Add(4800, start + 5ms), 5280u);
  EXPECT_EQ(buffer.Waiting(start + 15ms), 4320u);
  EXPECT_EQ(buffer.Waiting(start + 1s), 0u);
  EXPECT_EQ(buffer.Add(960, start + 2s), 960u);
}

TEST(SoundFiles, ComeBackSampleForSampleAndOverAndOver) {
  const test::DeviceRoot folder;
  const std::string file = folder.Path() + "/sound.wav";
  std::vector<Sample> sound(1000);
  for (std::size_t i = 0; i < sound.size(); ++i) sound[i] = static_cast<Sample>(i * 31 - 15000);
  {
    Speaker speaker(file);
    speaker.Play(reinterpret_cast<const unsigned char*>(sound.data()), 400);
    speaker.Play(reinterpret_cast<const unsigned char*>(sound.data() + 200), 1601);
  }
  Microphone microphone(file);
  for (const std::size_t start : {0u, 480u, 960u}) {
    const Microphone::Packet& packet = microphone.Next();
    for (std::size_t i = 0; i < packet.size(); ++i) ASSERT_EQ(packet[i], sound[(start + i) % sound.size()]);
  }
  microphone.Rewind();
  EXPECT_EQ(microphone.Next()[1], sound[1]);
}

TEST(SoundFiles, OfTwoChannelsAreMixedAndOthersRefusedInWords) {
  const test::DeviceRoot folder;
  const std::string file = folder.Path() + "/sound.wav";
  WriteSound(file, 48000, 2, {100, 300, -100, -200});
  Microphone microphone(file);
  const Microphone::Packet& packet = microphone.Next();
  EXPECT_EQ(packet[0], 200);
  EXPECT_EQ(packet[1], -150);
  WriteSound(file, 44100, 1, {1, 2});
  EXPECT_THAT(Refusal(file), HasSubstr("44100"));
  WriteSound(file, 48000, 1, {});
  EXPECT_THAT(Refusal(file), HasSubstr("no sound"));
  EXPECT_THAT(Refusal(folder.Path() + "/nothing.wav"), HasSubstr("can't read"));
}

TEST(ThePictureLedger, CountsGapsAndTellsAnEchoFromAnotherCamera) {
  PictureLedger ledger;
  for (std::uint32_t i = 0; i < 10; ++i) ledger.Sent({i, 1000 * i});
  for (const std::uint32_t i : {3u, 4u, 7u, 7u}) ledger.Received(BurntIn{i, 1000 * i}, 1000 * i + 600 * i);
  PictureCounts counts = ledger.Counts();
  EXPECT_EQ(counts.received, 4u);
  EXPECT_EQ(counts.dropped, 2u);
  EXPECT_EQ(counts.repeated, 1u);
  EXPECT_TRUE(counts.echo);
  EXPECT_EQ(counts.mostLatency, 4200);
  EXPECT_EQ(counts.latency, (3 + 4 + 7 + 7) * 600 / 4);
  ledger.Received(BurntIn{900, 5}, 15);
  ledger.Received(std::nullopt, 20);
  counts = ledger.Counts();
  EXPECT_FALSE(counts.echo);
  EXPECT_EQ(counts.dropped, 2u);
  EXPECT_EQ(counts.unmarked, 1u);
}

TEST(TheScreensFolder, KeepsTheLatestPicturesOnly) {
  const test::DeviceRoot folder;
  ScreenFolder screen(folder.Path() + "/screen");
  for (std::uint64_t i = 0; i < ScreenFolder::kMostPictures + 2; ++i)
    screen.Show(reinterpret_cast<const unsigned char*>("x"), 1);
  EXPECT_FALSE(std::filesystem::exists(folder.Path() + "/screen/picture-0000002.jpg"));
  EXPECT_TRUE(std::filesystem::exists(folder.Path() + "/screen/picture-0000003.jpg"));
  EXPECT_TRUE(std::filesystem::exists(folder.Path() + "/screen/picture-0000602.jpg"));
}

TEST(TheMediaStudio, SendsInRealTimeWhatTheCallAsksForAndReadsTheEcho) {
  const test::DeviceRoot folder;
  MediaStudio studio({"", "", "", ""});
  EchoingEngine engine(studio);
  studio.Attach(engine);
  EXPECT_FALSE(studio.Capture(folder.Path() + "/capture.jpg"));
  studio.Control("SetCamVideoSize");  // a camera without a call sends nothing
  const auto start = std::chrono::steady_clock::now();
  studio.Control("StartCall");
  ASSERT_TRUE(engine.HasGot(101, 30));
  const auto took = std::chrono::steady_clock::now() - start;
  EXPECT_GT(took, 960ms);
  EXPECT_TRUE(studio.Capture(folder.Path() + "/capture.jpg"));
  studio.Control("StopPreview");
  const int pictures = engine.pictures;
  ASSERT_TRUE(engine.HasGot(engine.sound + 20, 0));
  EXPECT_LE(engine.pictures, pictures + 1);  // one may have been on its way
  studio.Detach();
  EXPECT_GT(engine.waiting, 0u);
  const MediaCounts counts = studio.Counts();
  EXPECT_EQ(counts.soundReceived, counts.soundSent);
  EXPECT_EQ(counts.pictures.sent, static_cast<std::uint64_t>(engine.pictures));
  EXPECT_TRUE(counts.pictures.echo);
  EXPECT_GE(counts.pictures.dropped, 4u);
  studio.Control("StopCall");
  studio.Control("StartCall");  // a new call counts anew
  EXPECT_EQ(studio.Counts().pictures.sent, 0u);
}

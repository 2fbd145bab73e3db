#include "simulator/television/media/MediaStudio.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "simulator/television/media/MediaCues.h"

namespace television {

namespace {

using std::chrono::duration_cast;
using std::chrono::microseconds;

constexpr microseconds kPicturePeriod{1000000 / 30};
constexpr microseconds kSoundPeriod{1000000 / kPacketsPerSecond};
constexpr std::size_t kMostUnseen = 60;  // two seconds of pictures

// Records on their way to and from the engine.
constexpr int kSoundRecord = 0;
constexpr int kPictureRecord = 16;

std::int64_t Now() {
  return duration_cast<microseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace

MediaStudio::MediaStudio(const MediaOptions& options)
    : m_microphone(options.microphone),
      m_camera(options.camera),
      m_speaker(options.speaker),
      m_screen(options.screen),
      m_looking(kMostUnseen, [this](Arrival& arrival) { Look(arrival); }) {}

MediaStudio::~MediaStudio() { Detach(); }

void MediaStudio::Attach(IMoIPEngine& engine) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_inCall = m_cameraWanted = false;
  m_soundPace = std::make_unique<Metronome>(
      kSoundPeriod, [this] { m_microphone.Rewind(); }, [this, &engine] { SendSound(engine); });
  m_picturePace = std::make_unique<Metronome>(
      kPicturePeriod, [] {}, [this, &engine] { SendPicture(engine); });
}

void MediaStudio::Detach() {
  std::unique_ptr<Metronome> sound;
  std::unique_ptr<Metronome> picture;
  const std::lock_guard<std::mutex> lock(m_mutex);
  sound = std::move(m_soundPace);
  picture = std::move(m_picturePace);
}

void MediaStudio::Control(std::string_view command) {
  const auto* row = std::find_if(std::begin(kMediaCues), std::end(kMediaCues),
                                 [&](const MediaCue& cue) { return command == cue.command; });
  if (row == std::end(kMediaCues)) return;
  const std::lock_guard<std::mutex> lock(m_mutex);
  const bool sentBefore = m_inCall && m_cameraWanted;
  if (row->cue == Cue::Call && !m_inCall) BeginCall();
  if (row->cue == Cue::Call || row->cue == Cue::NoCall) m_inCall = row->cue == Cue::Call;
  if (row->cue != Cue::Call) m_cameraWanted = row->cue == Cue::Camera;
  const bool sendsNow = m_inCall && m_cameraWanted;
  if (sendsNow && !sentBefore) m_pictures.GoOn();
  if (m_soundPace != nullptr) m_soundPace->Switch(m_inCall);
  if (m_picturePace != nullptr) m_picturePace->Switch(sendsNow);
}

void MediaStudio::BeginCall() {
  m_pictures.Begin();
  m_picturesSkipped = m_soundSent = m_soundReceived = 0;
  m_counter = 0;
}

void MediaStudio::Take(const CAVData& record, unsigned int* waiting) {
  if (record.type == kSoundRecord) {
    ++m_soundReceived;
    const std::size_t unplayed = m_speaker.Play(record.data, record.size);
    if (waiting != nullptr) *waiting = static_cast<unsigned int>(unplayed);
  } else if (record.type == kPictureRecord) {
    if (!m_looking.Add({Now(), {record.data, record.data + record.size}})) ++m_picturesSkipped;
  }
}

bool MediaStudio::Capture(const std::string& path) {
  constexpr std::size_t kSkipped = simulator::TestPicture::kTimeStampSize;
  const std::lock_guard<std::mutex> lock(m_latestMutex);
  return m_latest.size() > kSkipped &&
         WritePicture(path, m_latest.data() + kSkipped, m_latest.size() - kSkipped);
}

MediaCounts MediaStudio::Counts() const {
  MediaCounts counts;
  counts.pictures = m_pictures.Counts();
  counts.picturesSkipped = m_picturesSkipped;
  counts.soundSent = m_soundSent;
  counts.soundReceived = m_soundReceived;
  counts.soundLost = m_speaker.Lost();
  return counts;
}

void MediaStudio::SendSound(IMoIPEngine& engine) {
  Microphone::Packet& packet = m_microphone.Next();
  const CAVData record{kSoundRecord, 0, kPacketSize, reinterpret_cast<unsigned char*>(packet.data())};
  engine.OnData(&record);
  ++m_soundSent;
}

void MediaStudio::SendPicture(IMoIPEngine& engine) {
  const simulator::BurntIn burnt{m_counter++, Now()};
  std::vector<unsigned char>& frame = m_camera.Next(burnt);
  {
    const std::lock_guard<std::mutex> lock(m_latestMutex);
    m_latest = frame;
  }
  m_pictures.Sent(burnt);  // before it can come back
  const auto milliseconds = static_cast<int>(burnt.clock / 1000 % 1000000000);
  const CAVData record{kPictureRecord, milliseconds, static_cast<unsigned int>(frame.size()), frame.data()};
  engine.OnData(&record);
}

void MediaStudio::Look(const Arrival& arrival) {
  m_pictures.Received(simulator::ReadTestPicture(arrival.jpeg.data(), arrival.jpeg.size()), arrival.time);
  m_screen.Show(arrival.jpeg.data(), arrival.jpeg.size());
}

std::string Readable(const MediaCounts& counts) {
  const PictureCounts& pictures = counts.pictures;
  const auto number = [](std::uint64_t value) { return std::to_string(value); };
  std::string line = "pictures: " + number(pictures.sent) + " sent, " + number(pictures.received) +
                     " received, " + number(pictures.dropped) + " dropped";
  if (pictures.received > pictures.unmarked) {
    line += ", latency " + std::to_string(pictures.latency / 1000) + " ms";
    line += pictures.echo ? " (round trip through the echo)" : " (one way)";
    line += ", at most " + std::to_string(pictures.mostLatency / 1000) + " ms";
  }
  if (pictures.repeated > 0) line += ", " + number(pictures.repeated) + " repeated";
  if (pictures.unmarked > 0) line += ", " + number(pictures.unmarked) + " without a counter";
  if (counts.picturesSkipped > 0) line += ", " + number(counts.picturesSkipped) + " not looked at";
  line +=
      "; sound: " + number(counts.soundSent) + " packets sent, " + number(counts.soundReceived) + " received";
  if (counts.soundLost > 0) line += ", " + number(counts.soundLost) + " samples not kept";
  return line;
}

}  // namespace television

#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "Common/IMoIPEngine.h"
#include "simulator/television/media/Camera.h"
#include "simulator/television/media/Metronome.h"
#include "simulator/television/media/Microphone.h"
#include "simulator/television/media/PictureLedger.h"
#include "simulator/television/media/ScreenFolder.h"
#include "simulator/television/media/Speaker.h"
#include "simulator/television/media/Worker.h"

namespace television {

// Where sound and pictures come from and go to; empty names have the meaning that the classes give them.
struct MediaOptions {
  std::string microphone;
  std::string camera;
  std::string speaker;
  std::string screen;
};

// Counters of the call that goes on, or of the last one.
struct MediaCounts {
  PictureCounts pictures;
  std::uint64_t picturesSkipped = 0;  // came while too many waited to be looked at
  std::uint64_t soundSent = 0;        // packets, as the next
  std::uint64_t soundReceived = 0;
  std::uint64_t soundLost = 0;  // samples that the speaker's file lacks, of all calls
};

// One line for people.
std::string Readable(const MediaCounts& counts);

// The television's sound and pictures: gives the engine what microphone and camera make, in real time, while
// the engine's control calls ask for it (MediaCues.h), and takes what the engine has for speaker and screen.
// Threads: any. What the engine's threads call only copies, queues and switches.
class MediaStudio {
 public:
  // Throws std::runtime_error when one of the options can't be used.
  explicit MediaStudio(const MediaOptions& options);
  ~MediaStudio();

  // From now on the engine is given sound and pictures when it asks for them.
  void Attach(IMoIPEngine& engine);
  // Before the engine is ended: waits until nothing is on its way to it any more.
  void Detach();

  // A control call of the engine.
  void Control(std::string_view command);
  // A record of the engine. For sound `waiting`, unless it is null, is told how many bytes the speaker still
  // has to play.
  void Take(const CAVData& record, unsigned int* waiting);
  // Writes the camera's latest picture; false when there is none yet or it can't be written.
  bool Capture(const std::string& path);

  MediaCounts Counts() const;

 private:
  struct Arrival {
    std::int64_t time;
    std::vector<unsigned char> jpeg;
  };

  void BeginCall();
  void SendSound(IMoIPEngine& engine);
  void SendPicture(IMoIPEngine& engine);
  void Look(const Arrival& arrival);

  Microphone m_microphone;  // used by its metronome only, as the camera by its own
  Camera m_camera;
  Speaker m_speaker;
  ScreenFolder m_screen;
  PictureLedger m_pictures;
  std::atomic<std::uint64_t> m_picturesSkipped{0};
  std::atomic<std::uint64_t> m_soundSent{0};
  std::atomic<std::uint64_t> m_soundReceived{0};
  std::atomic<std::uint32_t> m_counter{0};  // of the next picture

  mutable std::mutex m_mutex;  // guards what follows
  bool m_inCall = false;
  bool m_cameraWanted = false;
  std::unique_ptr<Metronome> m_soundPace;  // both exist while an engine is attached
  std::unique_ptr<Metronome> m_picturePace;

  std::mutex m_latestMutex;
  std::vector<unsigned char> m_latest;  // the camera's frame

  Worker<Arrival> m_looking;  // last: ends before what it uses
};

}  // namespace television

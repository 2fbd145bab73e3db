// The ring between the host and a sender beside a lock-free queue of blocks of the same size; and a call
// through the media threads beside bare threads that wait in the same way and copy the same bytes.
#include <benchmark/benchmark.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <boost/lockfree/spsc_queue.hpp>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Common/HostControl.h"
#include "shmipc/shmipc.h"
#include "tests/support/DeviceRoot.h"
#include "zelhost/media/MediaLimits.h"
#include "zelhost/media/ZelhostIPCInfo.h"
#include "zelhost/media/ZelhostIPCManager.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// --- The ring: a frame in and out again.

constexpr std::size_t kSoundFrame = 960;
constexpr std::size_t kPictureFrame = 1 << 20;
constexpr std::size_t kSlots = 4;

// A process that never had a second thread gets its locks for nothing; the engine's has many.
const bool g_hasHadThreads = (std::thread([] {}).join(), true);

template <std::size_t kSize>
struct Block {
  unsigned char data[kSize];
  unsigned size;
  unsigned long timestamp;
};

// Frames come from different places, as from a host's buffers.
template <std::size_t kSize>
std::vector<Block<kSize>> Sources() {
  std::vector<Block<kSize>> sources(8);
  for (Block<kSize>& source : sources) {
    std::memset(source.data, 's', kSize);
    source.size = kSize;
    source.timestamp = 0;
  }
  return sources;
}

// How a frame leaves: copied to the reader, or looked at where it lies. Both sides always copy as often.
enum class Reading { Copies, InPlace };

template <std::size_t kSize, Reading kReading>
void RingZelto(benchmark::State& state) {
  const auto sources = Sources<kSize>();
  const auto target = std::make_unique<Block<kSize>>();
  CZelhostBuffer ring(kSize, kSlots);
  std::size_t next = 0;
  for (auto _ : state) {
    const Block<kSize>& source = sources[next++ % sources.size()];
    ring.Write(source.data, source.size, source.timestamp);
    unsigned char* data = target->data;
    if constexpr (kReading == Reading::Copies) {
      ring.Read(data, &target->size, &target->timestamp);
    } else {
      ring.Read(&data, &target->size, &target->timestamp);
    }
    benchmark::DoNotOptimize(data[kSize - 1]);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations());
}

template <std::size_t kSize, Reading kReading>
void RingBoost(benchmark::State& state) {
  const auto sources = Sources<kSize>();
  const auto target = std::make_unique<Block<kSize>>();
  boost::lockfree::spsc_queue<Block<kSize>> queue(kSlots);
  std::size_t next = 0;
  for (auto _ : state) {
    queue.push(sources[next++ % sources.size()]);
    if constexpr (kReading == Reading::Copies) {
      queue.pop(*target);
      benchmark::DoNotOptimize(target->data[kSize - 1]);
    } else {
      queue.consume_one([](const Block<kSize>& block) { benchmark::DoNotOptimize(block.data[kSize - 1]); });
    }
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations());
}

// --- The call: 100 frames of sound and 30 pictures a second, both ways.

constexpr std::size_t kPicture = 100'000;
constexpr auto kTick = 10ms;
constexpr unsigned kTicksPerSecond = 100;
constexpr unsigned kPicturesPerSecond = 30;
constexpr unsigned kTicks = 3 * kTicksPerSecond;
constexpr auto kUntilAllHasArrived = 300ms;

// Drives both partners: the tick's sound each time, a picture when one is due. Answers how many pictures.
template <class Sound, class Picture>
unsigned Drive(Sound sound, Picture picture) {
  unsigned pictures = 0;
  auto next = std::chrono::steady_clock::now();
  for (unsigned tick = 0; tick < kTicks; ++tick) {
    sound();
    for (; pictures < tick * kPicturesPerSecond / kTicksPerSecond; ++pictures) picture();
    next += kTick;
    std::this_thread::sleep_until(next);
  }
  return pictures;
}

std::set<int> Threads() {
  std::set<int> threads;
  for (const auto& entry : fs::directory_iterator("/proc/self/task")) {
    threads.insert(std::stoi(entry.path().filename()));
  }
  return threads;
}

// Processor time of a thread of this process, in seconds.
double ProcessorTime(int thread) {
  constexpr int kThreadClock = 6;
  const auto clock = static_cast<clockid_t>((~static_cast<unsigned>(thread) << 3) | kThreadClock);
  timespec time{};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// The threads that have come since the object was made.
class NewThreads {
 public:
  double Processor() const {
    double sum = 0;
    for (const int thread : Threads()) {
      if (m_before.count(thread) == 0) sum += ProcessorTime(thread);
    }
    return sum;
  }

 private:
  const std::set<int> m_before = Threads();
};

double ResidentMiB() {
  long all = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

// The runtime's ends of the channels.
class Runtime {
 public:
  void SendSound() const { Send(m_audioIn, m_sound); }
  void SendPicture() const { Send(m_videoIn, m_picture); }
  // Takes all that has come and counts the pictures.
  void Drain() {
    while (SHMIPC_recv_packet(m_audioOut.get(), 0, nullptr) != nullptr) {
    }
    while (const SHMIPC_packet_t* packet = SHMIPC_recv_packet(m_videoOut.get(), 0, nullptr)) {
      if (packet->length == kPicture) ++m_pictures;
    }
  }
  unsigned Pictures() const { return m_pictures; }

 private:
  using Channel = std::unique_ptr<SHMIPC_channel_t, void (*)(SHMIPC_channel_t*)>;

  static Channel Open(SHMIPC_channel_t* (*open)(int), int (*side)(SHMIPC_channel_t*)) {
    Channel channel(open(0), SHMIPC_close_channel);
    side(channel.get());
    return channel;
  }
  static void Send(const Channel& channel, const std::vector<char>& frame) {
    const SHMIPC_packet_t head{4, static_cast<std::uint32_t>(frame.size())};
    SHMIPC_send_packet(channel.get(), &head, frame.data(), 0);
  }

  const std::vector<char> m_sound = std::vector<char>(kSoundFrame, 's');
  const std::vector<char> m_picture = std::vector<char>(kPicture, 'p');
  const Channel m_audioIn = Open(SHMIPC_open_audio_in_channel, SHMIPC_initialize_sender);
  const Channel m_audioOut = Open(SHMIPC_open_audio_out_channel, SHMIPC_initialize_receiver);
  const Channel m_videoIn = Open(SHMIPC_open_video_in_channel, SHMIPC_initialize_sender);
  const Channel m_videoOut = Open(SHMIPC_open_video_out_channel, SHMIPC_initialize_receiver);
  unsigned m_pictures = 0;
};

std::atomic<unsigned> g_picturesReceived{0};

bool TakeRecord(const CAVData* record, void*, void*) {
  if (record->type == 16) ++g_picturesReceived;
  return true;
}

void CallZelto(benchmark::State& state) {
  const test::DeviceRoot root;
  zelto::HostControl::Get().SetDataCallback(&TakeRecord, nullptr);
  CZelhostIPCManager* const media = CZelhostIPCManager::GetInstance();
  media->Initialize();
  std::vector<unsigned char> sound(kSoundFrame, 's');
  std::vector<unsigned char> picture(kPicture, 'p');
  const CAVData soundRecord{0, 0, kSoundFrame, sound.data()};
  const CAVData pictureRecord{1, 0, kPicture, picture.data()};
  for (auto _ : state) {
    Runtime runtime;
    g_picturesReceived = 0;
    const double idle = ResidentMiB();
    const NewThreads threads;
    media->StartExchangeData(1);
    const unsigned sent = Drive(
        [&] {
          media->SendData(&soundRecord);
          runtime.SendSound();
          runtime.Drain();
        },
        [&] {
          media->SendData(&pictureRecord);
          runtime.SendPicture();
        });
    std::this_thread::sleep_for(kUntilAllHasArrived);
    runtime.Drain();
    state.SetIterationTime(threads.Processor());
    state.counters["resident_mib"] = ResidentMiB() - idle;
    state.counters["pictures_lost"] = 2.0 * sent - runtime.Pictures() - g_picturesReceived;
    media->StopExchangeData(1);
  }
  media->Destroy();
  CZelhostIPCManager::DeleteInstance();
  zelto::HostControl::Get().Clear();
}

// A receiver's bare thread: looks for a frame in growing steps and copies it.
class BareReceiver {
 public:
  explicit BareReceiver(std::size_t size) : m_shared(size), m_own(size) {}
  ~BareReceiver() {
    m_stop = true;
    m_thread.join();
  }
  BareReceiver(const BareReceiver&) = delete;
  BareReceiver& operator=(const BareReceiver&) = delete;
  void Send(const std::vector<unsigned char>& frame) {
    std::memcpy(m_shared.data(), frame.data(), frame.size());
    m_sent.fetch_add(1, std::memory_order_release);
  }

 private:
  void Receive() {
    unsigned seen = 0;
    while (!m_stop) {
      for (int exponent = 16; !m_stop && m_sent.load(std::memory_order_acquire) == seen;
           exponent = std::min(exponent + 1, 22)) {
        const timespec step{0, 1L << exponent};
        nanosleep(&step, nullptr);
      }
      std::memcpy(m_own.data(), m_shared.data(), m_shared.size());
      benchmark::DoNotOptimize(m_own.data());
      benchmark::ClobberMemory();
      seen = m_sent;
    }
  }

  std::vector<unsigned char> m_shared;
  std::vector<unsigned char> m_own;
  std::atomic<unsigned> m_sent{0};
  std::atomic<bool> m_stop{false};
  std::thread m_thread{[this] { Receive(); }};
};

// A sender's bare thread: is woken for a frame, or after 30 ms, and copies it.
class BareSender {
 public:
  explicit BareSender(std::size_t size) : m_given(size), m_shared(size) {}
  ~BareSender() {
    m_stop = true;
    m_thread.join();
  }
  BareSender(const BareSender&) = delete;
  BareSender& operator=(const BareSender&) = delete;
  void Give(const std::vector<unsigned char>& frame) {
    {
      const std::lock_guard lock(m_mutex);
      std::memcpy(m_given.data(), frame.data(), frame.size());
      ++m_waiting;
    }
    m_filled.notify_one();
  }

 private:
  bool Take() {
    std::unique_lock lock(m_mutex);
    m_filled.wait_for(lock, std::chrono::milliseconds(zelhost::kRingWait), [this] { return m_waiting > 0; });
    return std::exchange(m_waiting, 0) > 0;
  }
  void Send() {
    while (!m_stop) {
      if (!Take()) continue;
      std::memcpy(m_shared.data(), m_given.data(), m_given.size());
      benchmark::DoNotOptimize(m_shared.data());
      benchmark::ClobberMemory();
    }
  }

  std::vector<unsigned char> m_given;
  std::vector<unsigned char> m_shared;
  std::mutex m_mutex;
  std::condition_variable m_filled;
  int m_waiting = 0;
  std::atomic<bool> m_stop{false};
  std::thread m_thread{[this] { Send(); }};
};

void CallBare(benchmark::State& state) {
  const std::vector<unsigned char> sound(kSoundFrame, 's');
  const std::vector<unsigned char> picture(kPicture, 'p');
  for (auto _ : state) {
    const NewThreads threads;
    BareReceiver soundIn(kSoundFrame);
    BareReceiver pictureIn(kPicture);
    BareSender soundOut(kSoundFrame);
    BareSender pictureOut(kPicture);
    Drive(
        [&] {
          soundOut.Give(sound);
          soundIn.Send(sound);
        },
        [&] {
          pictureOut.Give(picture);
          pictureIn.Send(picture);
        });
    std::this_thread::sleep_for(kUntilAllHasArrived);
    state.SetIterationTime(threads.Processor());
  }
}

BENCHMARK(RingZelto<kSoundFrame, Reading::Copies>)->Name("Ring960/zelto");
BENCHMARK(RingBoost<kSoundFrame, Reading::Copies>)->Name("Ring960/boost_lockfree");
BENCHMARK(RingZelto<kSoundFrame, Reading::InPlace>)->Name("Ring960InPlace/zelto");
BENCHMARK(RingBoost<kSoundFrame, Reading::InPlace>)->Name("Ring960InPlace/boost_lockfree");
BENCHMARK(RingZelto<kPictureFrame, Reading::InPlace>)->Name("Ring1MiB/zelto");
BENCHMARK(RingBoost<kPictureFrame, Reading::InPlace>)->Name("Ring1MiB/boost_lockfree");
BENCHMARK(CallZelto)->Name("Call/zelto")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(CallBare)->Name("Call/bare")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

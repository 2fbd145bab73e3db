// A channel beside the bare copies, a message queue, and the waiting steps that its latency comes from.
#include <benchmark/benchmark.h>
#include <sys/shm.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <boost/interprocess/ipc/message_queue.hpp>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Common/Platform.h"
#include "shmipc/segment.h"
#include "shmipc/shmipc.h"

namespace {

constexpr std::size_t kPacketSize = 960;  // of sound
constexpr std::size_t kPacketRoom = 976;
constexpr int kBurst = 16;
constexpr unsigned kRing = 32768;

// Both ends of a fresh channel in this process, without locking, as the engine uses them.
class Pair {
 public:
  Pair() {
    char folder[] = "/tmp/zelto-bench-XXXXXX";
    m_folder = mkdtemp(folder);
    const std::string key = m_folder + "/key";
    sender = SHMIPC_open_channel(key.c_str(), kRing, 1, 1);
    receiver = SHMIPC_open_channel(key.c_str(), kRing, 1, 0);
    SHMIPC_initialize_sender(sender);
    SHMIPC_initialize_receiver(receiver);
    SHMIPC_disable_locking(sender);
    SHMIPC_disable_locking(receiver);
  }
  Pair(const Pair&) = delete;
  Pair& operator=(const Pair&) = delete;
  ~Pair() {
    shmctl(sender->segment_id, IPC_RMID, nullptr);
    SHMIPC_close_channel(sender);
    SHMIPC_close_channel(receiver);
    std::filesystem::remove_all(m_folder);
  }

  SHMIPC_channel_t* sender;
  SHMIPC_channel_t* receiver;

 private:
  std::string m_folder;
};

void BurstZelto(benchmark::State& state) {
  const Pair pair;
  const std::vector<char> payload(kPacketSize, 's');
  const SHMIPC_packet_t head{1, kPacketSize};
  for (auto _ : state) {
    for (int i = 0; i < kBurst; ++i) SHMIPC_send_packet(pair.sender, &head, payload.data(), 0);
    for (int i = 0; i < kBurst; ++i) {
      benchmark::DoNotOptimize(SHMIPC_recv_packet(pair.receiver, 0, nullptr));
      benchmark::ClobberMemory();
    }
  }
  state.SetItemsProcessed(state.iterations() * kBurst);
}

// The same bytes through buffers of the same size: into a ring, out of it packet by packet.
void BurstMemcpy(benchmark::State& state) {
  const std::vector<char> payload(kPacketSize, 's');
  std::vector<char> ring(kRing);
  std::vector<char> batch(kRing);
  std::size_t place = 0;
  for (auto _ : state) {
    const std::size_t first = place;
    for (int i = 0; i < kBurst; ++i) {
      std::memcpy(ring.data() + place, payload.data(), kPacketSize);
      benchmark::ClobberMemory();
      place = place + 2 * kPacketRoom > kRing ? 0 : place + kPacketRoom;
    }
    std::size_t from = first;
    for (int i = 0; i < kBurst; ++i) {
      std::memcpy(batch.data() + static_cast<std::size_t>(i) * kPacketRoom, ring.data() + from, kPacketSize);
      benchmark::DoNotOptimize(batch.data());
      benchmark::ClobberMemory();
      from = from + 2 * kPacketRoom > kRing ? 0 : from + kPacketRoom;
    }
  }
  state.SetItemsProcessed(state.iterations() * kBurst);
}

void BurstMessageQueue(benchmark::State& state) {
  namespace ipc = boost::interprocess;
  const std::string name = "zelto-bench-" + std::to_string(getpid());
  ipc::message_queue::remove(name.c_str());
  {
    ipc::message_queue queue(ipc::create_only, name.c_str(), kRing / kPacketRoom, kPacketSize);
    const std::vector<char> payload(kPacketSize, 's');
    std::vector<char> packet(kPacketSize);
    for (auto _ : state) {
      for (int i = 0; i < kBurst; ++i) queue.try_send(payload.data(), kPacketSize, 0);
      for (int i = 0; i < kBurst; ++i) {
        std::size_t size = 0;
        unsigned priority = 0;
        queue.try_receive(packet.data(), kPacketSize, size, priority);
        benchmark::DoNotOptimize(packet.data());
        benchmark::ClobberMemory();
      }
    }
    state.SetItemsProcessed(state.iterations() * kBurst);
  }
  ipc::message_queue::remove(name.c_str());
}

// One way at a time: a sender that pauses at random, a receiver that waits in growing steps. Latencies go
// from just before the sending to just after the receiving, in nanoseconds.
constexpr int kMessages = 300;
constexpr std::uint32_t kLongestPause = 12'000'000;

class ChannelWay {
 public:
  void Send(std::int64_t stamp) const {
    const SHMIPC_packet_t head{1, sizeof stamp};
    SHMIPC_send_packet(m_pair.sender, &head, &stamp, -1);
  }

  std::int64_t Receive() const {
    const SHMIPC_packet_t* const packet = SHMIPC_recv_packet(m_pair.receiver, -1, nullptr);
    std::int64_t stamp = 0;
    std::memcpy(&stamp, packet + 1, sizeof stamp);
    return stamp;
  }

 private:
  const Pair m_pair;
};

// Nothing but a word and the steps: 65 microseconds doubling to 4.2 milliseconds.
class StepsWay {
 public:
  void Send(std::int64_t stamp) {
    while (m_stamp.load() != 0) std::this_thread::yield();
    m_stamp = stamp;
  }

  std::int64_t Receive() {
    for (int exponent = 16; m_stamp.load() == 0; exponent = std::min(exponent + 1, 22)) {
      const timespec step{0, 1L << exponent};
      nanosleep(&step, nullptr);
    }
    return m_stamp.exchange(0);
  }

 private:
  std::atomic<std::int64_t> m_stamp{0};
};

template <class Way>
void Latency(benchmark::State& state) {
  std::vector<std::int64_t> latencies;
  for (auto _ : state) {
    Way way;
    std::thread sender([&way] {
      std::mt19937 random(7);
      for (int i = 0; i < kMessages; ++i) {
        zelto::System().Sleep(static_cast<std::int64_t>(random() % kLongestPause));
        way.Send(zelto::System().Now());
      }
    });
    for (int i = 0; i < kMessages; ++i) {
      const std::int64_t stamp = way.Receive();
      latencies.push_back(zelto::System().Now() - stamp);
    }
    sender.join();
  }
  std::sort(latencies.begin(), latencies.end());
  const auto percentile = [&](std::size_t hundredth) {
    return static_cast<double>(latencies[(latencies.size() - 1) * hundredth / 100]);
  };
  state.counters["p50"] = percentile(50);
  state.counters["p99"] = percentile(99);
}

}  // namespace

BENCHMARK(BurstZelto)->Name("ChannelBurst/zelto");
BENCHMARK(BurstMemcpy)->Name("ChannelBurst/memcpy");
BENCHMARK(BurstMessageQueue)->Name("ChannelBurst/boost_message_queue");
BENCHMARK(Latency<ChannelWay>)->Name("ChannelLatency/zelto")->Iterations(1)->UseRealTime();
BENCHMARK(Latency<StepsWay>)->Name("ChannelLatency/steps")->Iterations(1)->UseRealTime();

BENCHMARK_MAIN();

// The media bridge between a host that writes down what it is handed and a runtime's ends of the channels.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "shmipc/segment.h"
#include "shmipc/shmipc.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/FastClock.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"
#include "zelhost/media/ZelhostIPCManager.h"

namespace test {

inline std::string Words(std::initializer_list<std::uint32_t> words) {
  return {reinterpret_cast<const char*>(words.begin()), words.size() * sizeof(std::uint32_t)};
}

// A record as the host got it, or a packet as the runtime got it.
struct Item {
  unsigned type;
  std::string bytes;
  int value = 0;
  bool operator==(const Item& other) const {
    return type == other.type && bytes == other.bytes && value == other.value;
  }
};
inline void PrintTo(const Item& item, std::ostream* out) {
  *out << item.type << "/" << item.value << ":" << testing::PrintToString(item.bytes.substr(0, 32));
}

// The runtime's end of a channel.
class End {
 public:
  End(SHMIPC_channel_t* channel, int (*side)(SHMIPC_channel_t*)) : m_channel(channel, SHMIPC_close_channel) {
    EXPECT_EQ(side(channel), 0);
  }
  bool Send(unsigned type, const std::string& bytes) const {
    const SHMIPC_packet_t head{type, static_cast<std::uint32_t>(bytes.size())};
    return SHMIPC_send_packet(m_channel.get(), &head, bytes.data(), 2000) == 0;
  }
  // Type 999 when nothing comes.
  Item Receive() const {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (std::chrono::steady_clock::now() < limit) {
      const SHMIPC_packet_t* const packet = SHMIPC_recv_packet(m_channel.get(), 100, nullptr);
      if (packet == nullptr) continue;
      return {packet->type, {reinterpret_cast<const char*>(packet + 1), packet->length}};
    }
    return {999, {}};
  }
  bool IsEmpty() const { return SHMIPC_recv_packet(m_channel.get(), 0, nullptr) == nullptr; }
  shmipc::SegmentHeader& Header() const { return shmipc::HeaderOf(m_channel.get()); }

 private:
  std::unique_ptr<SHMIPC_channel_t, void (*)(SHMIPC_channel_t*)> m_channel;
};

class MediaFixture : public testing::Test {
 protected:
  MediaFixture() {
    m_host.Engine()->RegisterDataCallback(&MediaFixture::OnRecord, this);  // there is no runtime to load
    m_media->Initialize();
    m_audioIn = std::make_unique<End>(SHMIPC_open_audio_in_channel(0), SHMIPC_initialize_sender);
    m_audioOut = std::make_unique<End>(SHMIPC_open_audio_out_channel(0), SHMIPC_initialize_receiver);
    m_videoIn = std::make_unique<End>(SHMIPC_open_video_in_channel(0), SHMIPC_initialize_sender);
    m_videoOut = std::make_unique<End>(SHMIPC_open_video_out_channel(0), SHMIPC_initialize_receiver);
  }
  ~MediaFixture() override {
    HangUp();
    m_media->Destroy();
    CZelhostIPCManager::DeleteInstance();
  }
  void HangUp() {
    for (auto* end : {&m_audioIn, &m_audioOut, &m_videoIn, &m_videoOut}) end->reset();
  }

  void GiveSound(std::string bytes) { Give(0, 0, bytes); }
  void GivePicture(std::string bytes, int stamp) { Give(1, stamp, bytes); }
  void Give(int type, int value, std::string& bytes) {
    const CAVData record{type, value, static_cast<unsigned>(bytes.size()),
                         reinterpret_cast<unsigned char*>(bytes.data())};
    m_host.Engine()->OnData(&record);
  }

  // The next records that the host gets.
  std::vector<Item> Take(std::size_t count) {
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, std::chrono::seconds(10), [&] { return m_records.size() >= count; });
    return std::exchange(m_records, {});
  }
  // While it does, the host keeps the thread that hands it a volume.
  void HoldVolumes(bool holds) {
    const std::lock_guard lock(m_mutex);
    m_holdsVolumes = holds;
    m_changed.notify_all();
  }

  Watchdog m_watchdog{60};
  DeviceRoot m_device;
  SurvivalCheck m_survival;
  FastClock m_clock{20};
  RecordingHost m_host;
  CZelhostIPCManager* const m_media = CZelhostIPCManager::GetInstance();
  std::unique_ptr<End> m_audioIn, m_audioOut, m_videoIn, m_videoOut;

 private:
  static bool OnRecord(const CAVData* data, void* user, void*) {
    auto* self = static_cast<MediaFixture*>(user);
    std::unique_lock lock(self->m_mutex);
    self->m_records.push_back({static_cast<unsigned>(data->type),
                               {reinterpret_cast<const char*>(data->data), data->size},
                               data->value});
    self->m_changed.notify_all();
    self->m_changed.wait(lock, [&] { return data->type != 5 || !self->m_holdsVolumes; });
    return true;
  }

  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::vector<Item> m_records;
  bool m_holdsVolumes = false;
};

}  // namespace test

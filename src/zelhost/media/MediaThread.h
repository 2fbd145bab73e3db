#pragma once

#include <atomic>

#include "Common/ZeltoThread.h"
#include "zelhost/media/MediaChannels.h"

// What the four media threads share: the channel, which the thread alone uses while it runs, and the way they
// start and stop.
// Threads: opening, closing, starting and stopping under the service-host mutex.
class MediaThread : public zelto::CZeltoThread {
 public:
  explicit MediaThread(const zelhost::MediaChannel& channel) : m_description(channel) {}
  // The thread has been destroyed before.
  ~MediaThread() override { CloseChannel(); }

  // Before each start.
  virtual void Initialize() = 0;

  // A failure is logged and leaves the channel closed; an open one stays.
  void OpenChannel();
  // Only while the thread does not run.
  void CloseChannel();

  // Starts the thread. False: it runs already, or the system refuses a thread.
  virtual bool Create(const char* name);
  // Asks the body to stop and returns once it has. The longest wait is one poll or one sending.
  virtual void Destroy();

 protected:
  // The body's parts, on its own thread: once, and again and again until it is asked to stop.
  virtual void Begin() {}
  virtual void Round() = 0;

  void t_Main() final;
  bool IsRunning() const { return m_state.load() == kRunning; }
  SHMIPC_channel_t* Channel() const { return m_channel; }

  // The next packet within so many milliseconds, valid until the next call; null for none, and then `*usable`
  // tells whether the channel is merely empty.
  SHMIPC_packet_t* Receive(int milliseconds, bool* usable = nullptr);
  // Sends a packet, trying again until it is gone or the thread is asked to stop.
  bool SendWhileRunning(unsigned type, const void* payload, unsigned size);

 private:
  enum State { kStopped = 0, kStopRequested = 1, kRunning = 2 };

  const zelhost::MediaChannel& m_description;
  SHMIPC_channel_t* m_channel = nullptr;
  std::atomic<int> m_state{kStopped};
};

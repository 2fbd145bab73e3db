#pragma once

#include <atomic>
#include <string>

#include "zelhost/media/MediaThread.h"
#include "zelhost/media/ZelhostIPCInfo.h"

// What the two senders share: the ring that the host fills, the way out of it, and the dump of what was sent.
class MediaSender : public MediaThread {
 public:
  // What differs: the words of the log, the dump's place and the ring's slots.
  struct Kind {
    const char* owner;     // the class
    const char* medium;    // "Audio" or "Video"
    const char* delivery;  // the operation that sends
    const char* dumpFile;
    int slotSize;
  };

  MediaSender(const zelhost::MediaChannel& channel, const Kind& kind) : MediaThread(channel), m_kind(kind) {}
  ~MediaSender() override;

  // Makes the ring the first time and empties it later.
  void Initialize() override;
  // From the next start on, what is sent is also written to a file.
  void EnableDump() { m_dumpEnabled = true; }
  void t_StartDump();
  void t_StopDump();
  void Destroy() override;

 protected:
  // Where a frame from the host belongs; null, logged, without a ring or a frame. Any thread.
  CZelhostBuffer* RingFor(const unsigned char* data, unsigned size) const;
  // Copies the frame into the ring; a host may come with several threads at once. Any thread.
  bool Put(CZelhostBuffer& ring, const unsigned char* data, unsigned size, unsigned long timestamp);
  // Sends what the ring holds; pauses when it is empty. False: nothing can be sent.
  bool DeliverFrames();
  virtual void SendFrame(const unsigned char* data, unsigned size) = 0;

 private:
  bool Dump(const unsigned char* data, unsigned size) const;

  const Kind& m_kind;
  // Made once and then there as long as the sender, since the host's thread looks for it at any time.
  std::atomic<CZelhostBuffer*> m_buffer{nullptr};
  zelto::Mutex m_putLock{zelto::LockRank::Ring, "frames from the host"};  // one writes at a time
  std::atomic<bool> m_dumpEnabled{false};
  int m_dump = -1;  // the file's descriptor
};

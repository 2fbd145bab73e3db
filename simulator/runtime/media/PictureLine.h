// The pictures of a call, both ways.
#pragma once

#include <atomic>
#include <cstdint>

#include "Common/Locks.h"
#include "simulator/common/PictureShape.h"
#include "simulator/common/TestPicture.h"
#include "simulator/runtime/media/MediaPort.h"
#include "simulator/runtime/media/Pacer.h"
#include "simulator/runtime/media/PacketReceiver.h"
#include "simulator/runtime/media/PacketSender.h"

namespace simulator {

// Threads: a receiver's, a sender's and a pacer's of its own; the operations belong to one other.
class PictureLine {
 public:
  PictureLine();
  PictureLine(const PictureLine&) = delete;
  PictureLine& operator=(const PictureLine&) = delete;
  ~PictureLine() { Stop(); }

  // The channels may be null, and must live until Stop().
  void Start(SHMIPC_channel_t* toEngine, SHMIPC_channel_t* fromEngine);
  void Stop();

  void Show(FarPicture picture);
  // Also what nobody but a test sends.
  void Send(std::uint32_t type, const void* payload, std::size_t size);
  void Stall(bool stalled) { m_receiver.Stall(stalled); }

  std::uint64_t Received() const { return m_received; }
  std::uint64_t KeyFrameRequests() const { return m_keyFrameRequests; }
  std::uint64_t Sent() const { return m_sender.Sent(); }
  std::uint64_t Dropped() const { return m_sender.Dropped(); }

 private:
  bool Receive(std::uint32_t type, const unsigned char* payload, std::size_t size);
  void Return(const unsigned char* frame, std::size_t size) ZELTO_REQUIRES(m_lock);
  void SendShape(const PictureShape& shape);
  void Film();

  std::atomic<std::uint64_t> m_received{0};
  std::atomic<std::uint64_t> m_keyFrameRequests{0};
  TestPicture m_camera;
  std::uint32_t m_filmed = 0;  // the pacer's

  // Also held while an echo is queued, so that none comes behind the end.
  zelto::Mutex m_lock{zelto::LockRank::Queue, "far picture"};
  FarPicture m_picture ZELTO_GUARDED_BY(m_lock) = FarPicture::None;
  PictureShape m_shape ZELTO_GUARDED_BY(m_lock);  // as the engine was told; none at the beginning

  PacketSender m_sender;
  PacketReceiver m_receiver;
  Pacer m_film;
};

}  // namespace simulator

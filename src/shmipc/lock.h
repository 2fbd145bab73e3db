// The lock of a handle that several threads share.
#pragma once

#include <pthread.h>

#include "shmipc/shmipc.h"

namespace shmipc {

// Holds the handle's mutex with cancellation disabled, so that a cancelled thread never leaves it locked.
// A handle with locking disabled is left alone.
class ChannelLock {
 public:
  explicit ChannelLock(SHMIPC_channel_t* channel)
      : m_channel(channel), m_enabled(channel->locking_disabled == 0) {
    Lock();
  }
  // Letting go is where a cancelled thread ends, which unwinds like an exception.
  ~ChannelLock() noexcept(false) { Unlock(); }
  ChannelLock(const ChannelLock&) = delete;
  ChannelLock& operator=(const ChannelLock&) = delete;

  // Calls the function without the lock: for waits.
  template <typename Function>
  int Outside(Function function) {
    Unlock();
    const int result = function();
    Lock();
    return result;
  }

 private:
  void Lock() {
    if (!m_enabled) return;
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &m_cancellation);
    pthread_mutex_lock(&m_channel->mutex);
    m_locked = true;
  }

  void Unlock() {
    if (!m_locked) return;
    m_locked = false;
    pthread_mutex_unlock(&m_channel->mutex);
    pthread_setcancelstate(m_cancellation, nullptr);
    pthread_testcancel();
  }

  SHMIPC_channel_t* const m_channel;
  const bool m_enabled;
  bool m_locked = false;
  int m_cancellation = PTHREAD_CANCEL_ENABLE;
};

}  // namespace shmipc

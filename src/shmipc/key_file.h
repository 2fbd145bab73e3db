// The file that stands for a group of channels, and the lock over it.
#pragma once

#include <fcntl.h>
#include <sys/types.h>

#include <cerrno>
#include <string>

#include "Common/Platform.h"

namespace shmipc {

constexpr mode_t kEverybody = 0666;  // the runtime may run as another user

// Opens the file and tries to take the write lock over it, which keeps every other process from opening a
// channel. Both end with the object; errno stays what the last failure made it.
class KeyFile {
 public:
  // `flags`: O_CREAT or 0. Not blocking: anything may lie at that path, a pipe without reader included.
  KeyFile(const std::string& path, int flags)
      : m_descriptor(zelto::System().Open(path.c_str(), O_WRONLY | O_NONBLOCK | flags, kEverybody)),
        m_locked(m_descriptor >= 0 && zelto::System().LockFile(m_descriptor) == 0) {}
  KeyFile(const KeyFile&) = delete;
  KeyFile& operator=(const KeyFile&) = delete;
  ~KeyFile() {
    const int error = errno;
    if (m_descriptor >= 0) zelto::System().Close(m_descriptor);
    errno = error;
  }

  bool IsLocked() const { return m_locked; }

 private:
  const int m_descriptor;
  const bool m_locked;
};

}  // namespace shmipc

// Opening and closing a channel.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "shmipc/key_file.h"
#include "shmipc/segment.h"

namespace shmipc {

namespace {

constexpr std::uint32_t kSmallestRequest = 32;
constexpr std::uint64_t kSmallestSegment = 64;

using OpenChannel = std::unique_ptr<SHMIPC_channel_t, decltype(&SHMIPC_close_channel)>;

std::uint64_t SegmentSize(unsigned size) {
  return size < kSmallestRequest ? kSmallestSegment : RoundUp(std::uint64_t{size} + kHeaderSize);
}

bool Attach(SHMIPC_channel_t* channel, std::size_t size, bool create) {
  const int flags = create ? IPC_CREAT | IPC_EXCL | kEverybody : kEverybody;
  channel->segment_id = zelto::System().ShmGet(channel->key, size, flags);
  if (channel->segment_id < 0) return false;
  void* const segment = zelto::System().ShmAt(channel->segment_id);
  if (segment != reinterpret_cast<void*>(-1)) {
    channel->segment = segment;
    return true;
  }
  const int error = errno;
  if (create) zelto::System().ShmCtl(channel->segment_id, IPC_RMID, nullptr);
  errno = error;
  return false;
}

// The creator writes the header, everybody else finds the one that it must find.
bool AgreeOnHeader(SHMIPC_channel_t* channel) {
  if (channel->creator != 0) {
    std::memset(channel->segment, 0, kHeaderSize);
    PublishWord(HeaderOf(channel).capacity, channel->capacity);
    return true;
  }
  errno = EINVAL;
  return ReadWord(HeaderOf(channel).capacity) == channel->capacity;
}

bool Open(SHMIPC_channel_t* channel, std::uint64_t segmentSize, int project, bool create) {
  const std::string path = zelto::DevicePath(channel->path);
  const KeyFile file(path, create ? O_CREAT : 0);
  if (!file.IsLocked()) return false;
  channel->key = zelto::System().Ftok(path.c_str(), project);
  if (channel->key == -1) return false;
  channel->creator = create ? 1 : 0;
  channel->capacity = static_cast<std::uint32_t>(segmentSize - kHeaderSize);
  return Attach(channel, static_cast<std::size_t>(segmentSize), create) && AgreeOnHeader(channel);
}

}  // namespace

}  // namespace shmipc

SHMIPC_channel_t* SHMIPC_open_channel(const char* path, unsigned size, int project, int create) {
  const std::uint64_t segmentSize = shmipc::SegmentSize(size);
  if (path == nullptr || segmentSize > std::numeric_limits<std::uint32_t>::max()) {
    errno = EINVAL;
    return nullptr;
  }
  shmipc::OpenChannel channel(static_cast<SHMIPC_channel_t*>(std::calloc(1, sizeof(SHMIPC_channel_t))),
                              SHMIPC_close_channel);
  if (channel == nullptr) {
    zelto::Print("file to open IPC channel");
    return nullptr;
  }
  pthread_mutex_init(&channel->mutex, nullptr);
  channel->path = strdup(path);
  if (channel->path == nullptr) return nullptr;
  return shmipc::Open(channel.get(), segmentSize, project, create != 0) ? channel.release() : nullptr;
}

void SHMIPC_close_channel(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return;
  const int error = errno;
  if (channel->segment != nullptr) zelto::System().ShmDt(channel->segment);
  pthread_mutex_destroy(&channel->mutex);
  std::free(channel->batch);
  std::free(channel->path);
  std::free(channel);
  errno = error;
}

#include "zelhost/media/MediaChannels.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "Common/Log.h"

namespace zelhost {

namespace {

bool PutBlob(SHMIPC_channel_t* handle, const MediaChannel& channel) {
  if (channel.audioRate == 0) {
    return channel.blob == nullptr || SHMIPC_put_config(handle, channel.blob, channel.blobSize) == 0;
  }
  unsigned size = 0;
  void* blob = AS_resize_channel_conf(channel.audioRate, channel.audioFactor, &size);
  const bool put = blob != nullptr && SHMIPC_put_config(handle, blob, size) == 0;
  std::free(blob);
  return put;
}

bool TakeSide(SHMIPC_channel_t* handle, const MediaChannel& channel) {
  return (channel.sends ? SHMIPC_initialize_sender(handle) : SHMIPC_initialize_receiver(handle)) == 0;
}

}  // namespace

SHMIPC_channel_t* OpenMediaChannel(const MediaChannel& channel) {
  SHMIPC_channel_t* const handle = channel.open(1);
  if (handle == nullptr) {
    ZELTO_FATAL("%s(%s)\n", channel.notOpened, std::strerror(errno));
    return nullptr;
  }
  SHMIPC_disable_locking(handle);
  if (PutBlob(handle, channel) && TakeSide(handle, channel)) {
    ZELTO_DEBUG("%s", channel.configured);
    if (channel.opened != nullptr) ZELTO_DEBUG("%s", channel.opened);
    return handle;
  }
  ZELTO_FATAL("%s", channel.notConfigured);
  SHMIPC_close_channel(handle);
  return nullptr;
}

}  // namespace zelhost

#include "zelhost/ZelhostIPCManager.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "Common/Log.h"
#include "shmipc/leftovers.h"
#include "zelhost/ServiceHostMutex.h"

using zelhost::kMediaChannels;
using zelhost::MediaChannel;

namespace {

std::atomic<CZelhostIPCManager*> g_manager{nullptr};

bool PutBlob(SHMIPC_channel_t* channel, const MediaChannel& row) {
  if (row.audioRate == 0) {
    return row.blob == nullptr || SHMIPC_put_config(channel, row.blob, row.blobSize) == 0;
  }
  unsigned size = 0;
  void* blob = AS_resize_channel_conf(row.audioRate, row.audioFactor, &size);
  const bool put = blob != nullptr && SHMIPC_put_config(channel, blob, size) == 0;
  std::free(blob);
  return put;
}

bool TakeSide(SHMIPC_channel_t* channel, const MediaChannel& row) {
  return (row.sends ? SHMIPC_initialize_sender(channel) : SHMIPC_initialize_receiver(channel)) == 0;
}

SHMIPC_channel_t* Open(const MediaChannel& row) {
  SHMIPC_channel_t* channel = row.open(1);
  if (channel == nullptr) {
    ZELTO_FATAL("%s(%s)\n", row.notOpened, std::strerror(errno));
    return nullptr;
  }
  SHMIPC_disable_locking(channel);
  if (PutBlob(channel, row) && TakeSide(channel, row)) {
    ZELTO_DEBUG("%s", row.configured);
    return channel;
  }
  ZELTO_FATAL("%s", row.notConfigured);
  SHMIPC_close_channel(channel);
  return nullptr;
}

}  // namespace

CZelhostIPCManager* CZelhostIPCManager::GetInstance() {
  CZelhostIPCManager* manager = g_manager.load(std::memory_order_acquire);
  if (manager != nullptr) return manager;
  zelhost::ServiceHostLock lock("CZelhostIPCManager");
  if (g_manager == nullptr) g_manager = new CZelhostIPCManager;
  return g_manager;
}

void CZelhostIPCManager::DeleteInstance() { delete g_manager.exchange(nullptr); }

CZelhostIPCManager::~CZelhostIPCManager() { CloseAllChannel(); }

// After a launch that failed the former channels are still open; the next runtime gets fresh ones.
void CZelhostIPCManager::Initialize() {
  ZELTO_DEBUG("CZelhostIPCManager::Initialize ");
  CloseAllChannel();
  SHMIPC_remove_leftovers();
  OpenAllChannel();
}

void CZelhostIPCManager::Destroy() {
  ZELTO_DEBUG("CZelhostIPCManager::Destroy ");
  CloseAllChannel();
  SHMIPC_remove_leftovers();
}

void CZelhostIPCManager::OpenAllChannel() {
  ZELTO_DEBUG("Open All IPC Channel");
  for (std::size_t i = 0; i < m_channels.size(); ++i) {
    m_channels[i] = Open(kMediaChannels[i]);
  }
}

void CZelhostIPCManager::CloseAllChannel() {
  ZELTO_DEBUG("Close All IPC Channel");
  for (SHMIPC_channel_t*& channel : m_channels) {
    SHMIPC_close_channel(channel);
    channel = nullptr;
  }
}

void CZelhostIPCManager::StartExchangeData(int type) {
  ZELTO_DEBUG("CZelhostIPCManager::StartExchangeData(%d)\n", type);
}

void CZelhostIPCManager::StopExchangeData(int type) {
  ZELTO_DEBUG("CZelhostIPCManager::StopExchangeData(%d)\n", type);
}

bool CZelhostIPCManager::SendData(const CAVData* data) {
  if (data == nullptr) ZELTO_DEBUG("CZelhostIPCManager::SendData >> No Data ");
  return false;
}

void CZelhostIPCManager::SendKeyFrameRequest() {
  ZELTO_FATAL("\n\n\n!!! m_Channel is not initialized: can't send Key Frame Request to the Remote !!!\n\n");
}

void CZelhostIPCManager::EnableDump(int type) { ZELTO_DEBUG("CZelhostIPCManager::EnableDump(%d)\n", type); }

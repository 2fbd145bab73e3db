#include "zelhost/media/ZelhostIPCManager.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <memory>

#include "Common/Log.h"
#include "shmipc/leftovers.h"

using zelhost::ServiceHostLock;

namespace {

// As the commands "EnableTxAudioDump" and "EnableTxVideoDump" name them.
constexpr int kAudioDump = 2;
constexpr int kVideoDump = 4;

constexpr int kSound = 0;  // the host's record type; all others are pictures

std::atomic<CZelhostIPCManager*> g_manager{nullptr};

}  // namespace

struct CZelhostIPCManager::WorkerRow {
  const char* name;  // of the thread
  const char* stop;  // of the operation that stops it
};

// Up to four workers in the order in which they are started and stopped.
struct CZelhostIPCManager::ExchangeRow {
  int type;
  int count;
  Worker starts[kWorkerCount];
  Worker stops[kWorkerCount];
};

// clang-format off
const CZelhostIPCManager::WorkerRow CZelhostIPCManager::kWorkers[] = {
    {"ZelhostVideoReceiver", "StopReceiveVideo"},
    {"ZelhostAudioReceiver", "StopReceiveAudio"},
    {"ZelhostVideoSender",   "StopSendVideo"},
    {"ZelhostAudioSender",   "StopSendAudio"},
};

const CZelhostIPCManager::ExchangeRow CZelhostIPCManager::kExchanges[] = {
    {1, 4, {kReceiveAudio, kSendAudio, kSendVideo, kReceiveVideo},
           {kReceiveVideo, kReceiveAudio, kSendVideo, kSendAudio}},
    {2, 2, {kReceiveAudio, kSendAudio}, {kReceiveAudio, kSendAudio}},
    {3, 1, {kSendVideo},                {kSendVideo}},
    {4, 1, {kReceiveVideo},             {kReceiveVideo}},
};
// clang-format on

// Whoever comes first makes it. No lock: the host's data must not wait for a command.
CZelhostIPCManager* CZelhostIPCManager::GetInstance() {
  CZelhostIPCManager* present = g_manager.load(std::memory_order_acquire);
  if (present != nullptr) return present;
  std::unique_ptr<CZelhostIPCManager> made(new CZelhostIPCManager);
  return g_manager.compare_exchange_strong(present, made.get()) ? made.release() : present;
}

void CZelhostIPCManager::DeleteInstance() { delete g_manager.exchange(nullptr); }

CZelhostIPCManager::~CZelhostIPCManager() { StopRunning(); }

void CZelhostIPCManager::Initialize() {
  ZELTO_DEBUG("CZelhostIPCManager::Initialize ");
  ServiceHostLock lock("Initialize");
  StopRunning();
  CloseAllChannel();
  SHMIPC_remove_leftovers();
  SHMIPC_claim_keys();
  OpenAllChannel();
}

void CZelhostIPCManager::Destroy() {
  ZELTO_DEBUG("CZelhostIPCManager::Destroy ");
  ServiceHostLock lock("Destroy");
  StopRunning();
  CloseAllChannel();
  SHMIPC_remove_leftovers();
}

void CZelhostIPCManager::StopRunning() {
  ServiceHostLock lock("StopRunning");
  for (const Worker worker : {kReceiveAudio, kReceiveVideo, kSendAudio, kSendVideo}) {
    if (m_running[worker]) ThreadOf(worker).Destroy();
    m_running[worker] = false;
  }
}

void CZelhostIPCManager::OpenAllChannel() {
  ZELTO_DEBUG("Open All IPC Channel");
  ServiceHostLock lock("OpenAllChannel");
  for (int worker = 0; worker < kWorkerCount; ++worker) ThreadOf(static_cast<Worker>(worker)).OpenChannel();
}

void CZelhostIPCManager::CloseAllChannel() {
  ZELTO_DEBUG("Close All IPC Channel");
  ServiceHostLock lock("CloseAllChannel");
  for (int worker = 0; worker < kWorkerCount; ++worker) ThreadOf(static_cast<Worker>(worker)).CloseChannel();
}

MediaThread& CZelhostIPCManager::ThreadOf(Worker worker) {
  MediaThread* const threads[] = {&m_videoReceiver, &m_audioReceiver, &m_videoSender, &m_audioSender};
  static_assert(std::size(threads) == kWorkerCount);
  return *threads[worker];
}

const CZelhostIPCManager::ExchangeRow* CZelhostIPCManager::FindExchange(int type) {
  const auto* const row =
      std::find_if(std::begin(kExchanges), std::end(kExchanges),
                   [type](const ExchangeRow& candidate) { return candidate.type == type; });
  if (row != std::end(kExchanges)) return row;
  ZELTO_DEBUG("There is no type!!");
  return nullptr;
}

void CZelhostIPCManager::StartExchangeData(int type) {
  ZELTO_DEBUG("CZelhostIPCManager::StartExchangeData(%d)\n", type);
  const ExchangeRow* const row = FindExchange(type);
  if (row != nullptr) std::for_each_n(row->starts, row->count, [this](Worker worker) { Start(worker); });
}

void CZelhostIPCManager::StopExchangeData(int type) {
  ZELTO_DEBUG("CZelhostIPCManager::StopExchangeData(%d)\n", type);
  const ExchangeRow* const row = FindExchange(type);
  if (row != nullptr) std::for_each_n(row->stops, row->count, [this](Worker worker) { Stop(worker); });
}

void CZelhostIPCManager::Start(Worker worker) {
  ServiceHostLock lock("StartExchangeData");
  const char* const name = kWorkers[worker].name;
  if (m_running[worker]) {
    ZELTO_FATAL("%s is running!!", name);
    return;
  }
  MediaThread& thread = ThreadOf(worker);
  thread.Initialize();
  m_running[worker] = thread.Create(name);
}

void CZelhostIPCManager::Stop(Worker worker) {
  ServiceHostLock lock("StopExchangeData");
  ZELTO_DEBUG("CZelhostIPCManager::%s(%d)\n", kWorkers[worker].stop, m_running[worker]);
  if (m_running[worker]) ThreadOf(worker).Destroy();
  m_running[worker] = false;
}

bool CZelhostIPCManager::SendData(const CAVData* data) {
  if (data == nullptr) {
    ZELTO_DEBUG("CZelhostIPCManager::SendData >> No Data ");
    return false;
  }
  if (data->type == kSound) {
    m_audioSender.PutData(data->data, data->size);
  } else {
    m_videoSender.PutData(data->data, data->size, static_cast<unsigned long>(data->value));
  }
  return true;
}

void CZelhostIPCManager::SendKeyFrameRequest() {
  ServiceHostLock lock("SendKeyFrameRequest");
  m_videoSender.SendKeyFrameRequest();
}

void CZelhostIPCManager::EnableDump(int type) {
  ZELTO_DEBUG("CZelhostIPCManager::EnableDump(%d)\n", type);
  if (type == kVideoDump) {
    m_videoSender.EnableDump();
  } else if (type == kAudioDump) {
    m_audioSender.EnableDump();
  } else {
    ZELTO_DEBUG("There is no type!!");
  }
}

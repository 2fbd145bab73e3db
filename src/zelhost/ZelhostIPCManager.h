#pragma once

#include <array>
#include <atomic>

#include "zelhost/MediaChannels.h"

struct CAVData;

// The bridge between the host's sound and picture and the runtime: owns the four shared-memory channels.
// Nothing is exchanged yet: the operations that would move media answer that they are not ready.
// Threads: channels are opened and closed under the service-host mutex; everything else from any thread.
class CZelhostIPCManager {
 public:
  // Created on first use, and there until the process ends or DeleteInstance(), after which no thread may
  // use the former one.
  static CZelhostIPCManager* GetInstance();
  static void DeleteInstance();

  CZelhostIPCManager(const CZelhostIPCManager&) = delete;
  CZelhostIPCManager& operator=(const CZelhostIPCManager&) = delete;
  ~CZelhostIPCManager();

  // At service load, before the runtime starts: removes what an earlier engine left behind and opens the
  // four channels. A channel that can't be opened is logged and stays closed.
  void Initialize();
  // At service unload: closes the channels and removes the segments that nobody is attached to.
  void Destroy();

  // The exchange types: 1 all, 2 audio, 3 send video, 4 receive video.
  void StartExchangeData(int type);
  void StopExchangeData(int type);
  // False: the record was not taken.
  bool SendData(const CAVData* data);
  void SendKeyFrameRequest();
  void EnableDump(int type);
  // Whether the microphone's level follows the far end's wishes.
  void SetAutoMic(bool automatic) { m_autoMic = automatic; }
  bool GetAutoMic() const { return m_autoMic; }

  // Snapshots of the camera: none yet.
  bool SaveSnapShot() { return false; }
  int GetNumOfSnapShot() { return 0; }
  int GetMaxSnapShotIndex() { return 0; }
  bool DeleteSnapShot(int) { return false; }
  const char* GetSnapShotPathList() { return ""; }

 private:
  CZelhostIPCManager() = default;
  void OpenAllChannel();
  void CloseAllChannel();

  std::array<SHMIPC_channel_t*, zelhost::kMediaChannelCount> m_channels{};
  std::atomic<bool> m_autoMic{false};
};

#pragma once

#include <array>
#include <string>

#include "zelhost/ServiceHostMutex.h"
#include "zelhost/media/ZelhostReceiveAudio.h"
#include "zelhost/media/ZelhostReceiveVideo.h"
#include "zelhost/media/ZelhostSendAudio.h"
#include "zelhost/media/ZelhostSendVideo.h"

// The bridge between the host's sound and picture and the runtime: owns the four media threads with their
// channels, and the camera's snapshots.
// Threads: any. SendData and the automatic microphone take no lock that a command holds; everything else runs
// under the service-host mutex, and a stop waits for the thread's present round: half a second at most, or as
// long as the host's data callback takes.
class CZelhostIPCManager {
 public:
  // Created on first use, and there until the process ends or DeleteInstance(), after which no thread may
  // use the former one.
  static CZelhostIPCManager* GetInstance();
  static void DeleteInstance();

  CZelhostIPCManager(const CZelhostIPCManager&) = delete;
  CZelhostIPCManager& operator=(const CZelhostIPCManager&) = delete;
  ~CZelhostIPCManager();

  // At service load, before the runtime starts: ends what a failed launch has left running, removes what an
  // earlier engine left behind and opens the four channels. A channel that can't be opened is logged and
  // stays closed.
  void Initialize();
  // At service unload: stops the threads, closes the channels and removes the segments that nobody is
  // attached to.
  void Destroy();

  // The exchange types: 1 all, 2 audio, 3 send video, 4 receive video. What runs already stays as it is.
  void StartExchangeData(int type);
  void StopExchangeData(int type);

  void StartReceiveVideo() { Start(kReceiveVideo); }
  void StartReceiveAudio() { Start(kReceiveAudio); }
  void StartSendVideo() { Start(kSendVideo); }
  void StartSendAudio() { Start(kSendAudio); }
  void StopReceiveVideo() { Stop(kReceiveVideo); }
  void StopReceiveAudio() { Stop(kReceiveAudio); }
  void StopSendVideo() { Stop(kSendVideo); }
  void StopSendAudio() { Stop(kSendAudio); }

  // A record from the host: sound (type 0) or a picture, into whose first four bytes the time stamp goes. The
  // data is copied; what does not fit, or comes before the first call, is dropped. False without a record.
  bool SendData(const CAVData* data);
  // Waits for a runtime that does not read, half a second at most.
  void SendKeyFrameRequest();
  // From the next call on, what is sent is written to files: 4 video, 2 audio.
  void EnableDump(int type);
  // Whether the microphone's level follows the far end's wishes.
  void SetAutoMic(bool automatic) { m_audioReceiver.SetAutoMic(automatic); }
  bool GetAutoMic() const { return m_audioReceiver.GetAutoMic(); }

  // --- Snapshots of the camera, files in a folder of the television.
  // Has the host take one and stores it behind the others. False: the host has none, or no number is free.
  bool SaveSnapShot();
  int GetNumOfSnapShot();
  // 0 without snapshots.
  long GetMaxSnapShotIndex();
  // Removes the n-th, counted from 0 in the order of names. False: there is none.
  bool DeleteSnapShot(int index);
  // Their addresses, each with the two-byte separator behind it. Valid until the next question or deletion.
  const char* GetSnapShotPathList();

 private:
  enum Worker { kReceiveVideo, kReceiveAudio, kSendVideo, kSendAudio, kWorkerCount };
  struct WorkerRow;
  struct ExchangeRow;
  static const WorkerRow kWorkers[kWorkerCount];  // in the order of opening and closing
  static const ExchangeRow kExchanges[];

  CZelhostIPCManager() = default;
  void OpenAllChannel();
  void CloseAllChannel();  // the threads are stopped before
  static const ExchangeRow* FindExchange(int type);
  MediaThread& ThreadOf(Worker worker);
  void Start(Worker worker);
  void Stop(Worker worker);
  void StopRunning();

  CZelhostReceiveVideo m_videoReceiver;
  CZelhostReceiveAudio m_audioReceiver;
  CZelhostSendVideo m_videoSender;
  CZelhostSendAudio m_audioSender;
  std::array<bool, kWorkerCount> m_running ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get()){};
  std::string m_snapShots ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
};

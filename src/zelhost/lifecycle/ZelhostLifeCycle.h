#pragma once

#include <pthread.h>

#include <atomic>
#include <memory>
#include <string>

#include "Common/ZeltoThread.h"
#include "zelhost/ServiceHostMutex.h"

class CZelto;
class ZESocketTransport;

namespace zelhost {
class RuntimeProcess;
}  // namespace zelhost

// The runtime process from its start to its end: launches it, connects the root object to it, pumps the
// protocol's events on a thread of its own and takes everything down again.
// Threads: every operation takes the service-host mutex itself; the poll thread ("MoIPPollEventThread")
// takes it for each pass and gives up waiting for it as soon as it is asked to stop, so that whoever
// holds the mutex may stop it. State and readiness are answered without it.
class CZelhostLifeCycle : private zelto::CZeltoThread {
 public:
  // The numbers are what "GetZeltoState" answers.
  enum State {
    ZELTO_LOADING = 0,  // launch in progress
    ZELTO_LOADED = 1,   // connected and started; the managers are up
    ZELTO_UNLOADING = 2,
    ZELTO_UNLOADED = 3,  // nothing running
  };

  CZelhostLifeCycle();
  // The owner has unloaded it.
  ~CZelhostLifeCycle() override;

  // Launches the runtime and returns; readiness is reported as event ZELTO_RUNTIME_READY (371) some
  // seconds later. Waits for an unload that is under way. False when it is loading or loaded, or when
  // the executable is missing.
  bool Load();
  // Signs out, stops the runtime and reaps it, closes the media channels and deletes the managers. Takes
  // at most about 5 seconds: a runtime that blocks the way is killed after 3. Always true, except on the
  // poll thread, which would have to end itself: refused there.
  bool Unload();

  bool IsReady() const { return m_state.load() == ZELTO_LOADED; }
  int GetState() const { return m_state.load(); }

  // Whether the host wants an automatic sign-in.
  bool GetAutoStart();
  // Removes the runtime's database; false while anything is loaded.
  bool ResetDB();
  // Removes database and snapshots, in every state.
  void InitZeltoDB();
  // Writes the account's default settings when they are missing. Answers the flag that says they are
  // there: 0 without a runtime.
  int InitPersonalData();

  // Creates what is missing of the five managers and registers their event handlers.
  static void BringUpManagers();

  // Called when the engine is about to be destroyed: from now on a runtime that keeps anybody waiting
  // is killed 3 seconds later, which releases whoever waits. Does nothing when no runtime was started.
  static void BeginShutdown();
  // Kills the runtime now, which releases whoever waits for it. Does nothing when there is none.
  static void KillRuntime();

 private:
  void t_Main() override;
  bool PreInit();
  bool Connect();
  bool StartRuntime() ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void FilterOutProperties() ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void RunPollLoop();

  void CreateRoot() ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void DeleteRoot() ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  pid_t StartZelHost(const std::string& executable) ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void SetAvataPath();
  void StopPollThread();
  void KillZelto() ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void EndCallAndSignOut();

  // Runs a step under the service-host mutex; false when the poll thread was asked to stop before.
  template <class Step>
  bool UnlessStopping(const char* who, Step step);
  bool WaitUnlessStopping(int milliseconds);

  std::atomic<int> m_state{ZELTO_UNLOADED};
  std::atomic<bool> m_stop{false};         // asks the poll thread to leave
  std::atomic<pthread_t> m_pollThread{0};  // 0 while its body does not run
  std::shared_ptr<zelhost::RuntimeProcess> m_process ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
  std::unique_ptr<ZESocketTransport> m_transport ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
  std::unique_ptr<CZelto> m_root ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
};

#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "Common/ZeltoThread.h"

class CZelto;
class ZESocketTransport;

namespace zelhost {
class RuntimeProcess;
}  // namespace zelhost

// The runtime process from its start to its end: launches it, connects the root object to it, pumps the
// protocol's events on a thread of its own and takes everything down again.
// Threads: every operation takes the service-host mutex itself; the poll thread ("MoIPPollEventThread")
// takes it for each pass and gives up waiting for it as soon as it is asked to stop, so that whoever
// holds the mutex may stop it.
class CZelhostLifeCycle : private zelto::CZeltoThread {
 public:
  // The numbers are what "GetZeltoState" answers.
  enum State {
    ZELTO_LOADING = 0,   // launch in progress
    ZELTO_LOADED = 1,    // connected and started; the managers are up
    ZELTO_UNLOADING = 2,
    ZELTO_UNLOADED = 3,  // nothing running
  };

  CZelhostLifeCycle();
  ~CZelhostLifeCycle() override;

  // Launches the runtime and returns; readiness is reported as event ZELTO_RUNTIME_READY (371) some
  // seconds later. False when it is loading or loaded, or when the executable is missing.
  bool Load();
  // Signs out, stops the runtime and reaps it, closes the media channels and deletes the managers.
  // Always true. Takes at most about 5 seconds: a runtime that blocks the way is killed after 3.
  bool Unload();

  bool IsReady() const { return m_state.load() == ZELTO_LOADED; }
  int GetState() const { return m_state.load(); }

  // Whether the host wants an automatic sign-in.
  bool GetAutoStart();
  // Removes the runtime's database; false while anything is loaded.
  bool ResetDB();
  // Removes database and snapshots, in every state.
  void InitZeltoDB();
  // Writes the account's default settings when they are missing. Answers the value of the flag that
  // says so, or what the writing answers.
  int InitPersonalData();

  // Called when the engine is about to be destroyed: from now on a runtime that keeps anybody waiting
  // is killed 3 seconds later, which releases whoever waits. Does nothing when no runtime was started.
  static void BeginShutdown();

 private:
  void t_Main() override;
  bool PreInit();
  bool ConnectAndStart();
  void FilterOutProperties();
  void RunPollLoop();
  pid_t StartZelHost(const std::string& executable);
  std::string ChooseExecutable();
  void SetAvataPath();
  void StopPollThread();
  void KillZelto();
  bool LockUnlessStopping();
  bool WaitUnlessStopping(int milliseconds);

  std::atomic<int> m_state{ZELTO_UNLOADED};
  std::atomic<bool> m_stop{false};     // asks the poll thread to leave
  std::atomic<bool> m_polling{false};  // the poll thread's body runs
  std::shared_ptr<zelhost::RuntimeProcess> m_process;
  std::unique_ptr<ZESocketTransport> m_transport;
  std::unique_ptr<CZelto> m_root;
};

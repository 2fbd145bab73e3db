#pragma once

#include <memory>

#include "Common/IMoIPEngine.h"
#include "Common/ZeltoThread.h"

// Tells the host the microphone's volume, which may take it a while, so that the far end's sound need not
// wait. Only the newest volume counts.
// Threads: AddCmd from any.
class CZelhostMicVolumeChangeThread final : public zelto::CZeltoThread {
 public:
  // A command's owner. The payload is an array of bytes.
  struct Free {
    void operator()(CAVData* record) const {
      delete[] record->data;
      delete record;
    }
  };
  using Command = std::unique_ptr<CAVData, Free>;

  // Takes the record and its payload over; replaces one that the host has not got yet.
  void AddCmd(CAVData* record);

  bool Create(const char* name);
  // Returns once the body has ended; a pending command is dropped.
  virtual void Destroy();

 protected:
  void t_Main() override;

 private:
  // Waits for the next command; null when the thread is asked to stop.
  Command Next();

  zelto::Mutex m_lock{zelto::LockRank::Leaf, "microphone volume"};
  zelto::Condition m_changed;
  Command m_pending ZELTO_GUARDED_BY(m_lock);
  bool m_running ZELTO_GUARDED_BY(m_lock) = false;
};

#include "shmipc/leftovers.h"

#include <string>

#include "Common/DevicePath.h"
#include "Common/Platform.h"
#include "shmipc/channels.h"
#include "shmipc/key_file.h"

namespace {

void RemoveIfUnused(key_t key) {
  zelto::Platform& system = zelto::System();
  const int id = system.ShmGet(key, 0, 0);
  if (id < 0) return;
  shmid_ds status{};
  if (system.ShmCtl(id, IPC_STAT, &status) != 0 || status.shm_nattch != 0) return;
  system.ShmCtl(id, IPC_RMID, nullptr);
}

// The caller holds the lock that every opening takes: a segment just created and not yet attached is no
// leftover.
void RemoveUnused(const std::string& path) {
  for (const shmipc::Channel& channel : shmipc::kChannels) {
    const key_t key = zelto::System().Ftok(path.c_str(), channel.project);
    if (key != -1) RemoveIfUnused(key);
  }
}

}  // namespace

void SHMIPC_remove_leftovers(void) {
  const std::string path = zelto::DevicePath(shmipc::kKeyFile);
  const shmipc::KeyFile file(path, 0);
  if (!file.IsLocked()) return;
  RemoveUnused(path);
  zelto::System().Unlink(path.c_str());
}

void SHMIPC_claim_keys(void) {
  const std::string path = zelto::DevicePath(shmipc::kKeyFile);
  const shmipc::KeyFile file(path, O_CREAT);
  if (file.IsLocked()) RemoveUnused(path);
}

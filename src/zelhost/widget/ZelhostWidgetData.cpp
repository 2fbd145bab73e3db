// The copy of the widget's data file in the engine's storage.
#include <unistd.h>

#include <string>
#include <vector>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/Shell.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/ZelhostZeltoManager.h"

namespace {

constexpr const char* kWidgetFolders[] = {zelhost::kWidgetImageFolder, zelhost::kWidgetFolder};
constexpr char kDataFile[] = "/w.data";

// The folder of an account holds at least three files beside the two dot entries.
constexpr std::size_t kEntriesWithAccount = 5;

bool Exists(const std::string& path) {
  return zelto::System().Access(zelto::DevicePath(path).c_str(), F_OK) == 0;
}

bool HasAccount() {
  std::vector<std::string> names;
  zelto::System().ListDirectory(zelto::DevicePath(zelhost::kBackupAccountFolder).c_str(), names);
  return names.size() >= kEntriesWithAccount;
}

// What the command does must reach the flash before the widget is told so.
void RunAndSync(const std::string& command) {
  zelto::ExecuteShell(command.c_str());
  zelto::System().Sync();
}

void Copy(const std::string& from, const std::string& to) {
  RunAndSync("cp -f " + zelto::ShellPath(from) + " " + zelto::ShellPath(to));
}

void RemoveDataOfFormerAccount() {
  zelto::Print("There is no account..");
  zelto::Print("Remove w.data for factory reset case..");
  RunAndSync("rm -f " + zelto::ShellPath(std::string(zelhost::kWidgetFolder) + kDataFile));
}

}  // namespace

bool CZelhostZeltoManager::BackupWidgetData() {
  for (const char* folder : kWidgetFolders) {
    const std::string file = std::string(folder) + kDataFile;
    if (!Exists(file)) continue;
    ZELTO_DEBUG("w.data is in %s\n", folder);
    Copy(file, std::string(zelhost::kBackupFolder) + "/.");
    return true;
  }
  return false;
}

const char* CZelhostZeltoManager::RestoreWidgetData() {
  if (!HasAccount()) {
    RemoveDataOfFormerAccount();
    return "0";
  }
  for (const char* folder : kWidgetFolders) {
    if (!Exists(folder)) continue;
    ZELTO_DEBUG("zelto widget is in %s\n", folder);
    Copy(std::string(zelhost::kBackupFolder) + kDataFile, folder);
    return "1";
  }
  ZELTO_FATAL("there is no widget folder");
  return nullptr;
}

// The camera's snapshots: numbered files in a folder of the television.
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/RecordWriter.h"
#include "Common/Shell.h"
#include "Common/ZeltoManager.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/media/ZelhostIPCManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr char kParentFolder[] = "/mtd_rwcommon/moip/snapshot";
constexpr char kFolder[] = "/mtd_rwcommon/moip/snapshot/Zelto";
constexpr char kCapture[] = "/tmp/capture.jpg";  // where the host leaves a picture
constexpr char kWidth[] = "96";
constexpr char kHeight[] = "96";
constexpr std::string_view kExtension = "jpg";

void MakeFolders() {
  for (const char* folder : {kParentFolder, kFolder}) {
    zelto::System().MakeDirectory(zelto::DevicePath(folder).c_str(), 0777);
  }
}

std::string PathOf(const std::string& name) { return std::string(kFolder) + "/" + name; }

// What stands behind the first dot counts, whatever follows it.
bool IsSnapShot(std::string_view name) {
  const std::size_t dot = name.find('.');
  return dot != std::string_view::npos && name.substr(dot + 1, kExtension.size()) == kExtension;
}

// In the order of names; none when the folder can't be read.
std::vector<std::string> SnapShots() {
  std::vector<std::string> snapShots;
  std::vector<std::string> names;
  if (!zelto::System().ListDirectory(zelto::DevicePath(kFolder).c_str(), names)) std::perror("scandir");
  for (std::string& name : names) {
    if (IsSnapShot(name)) snapShots.push_back(std::move(name));
  }
  return snapShots;
}

}  // namespace

bool CZelhostIPCManager::SaveSnapShot() {
  ServiceHostLock lock("SaveSnapShot");
  if (CZeltoManager::CallCommonControl("MinimizeSnapShot", kWidth, kHeight) != "1") return false;
  MakeFolders();
  const long last = GetMaxSnapShotIndex();
  if (last == LONG_MAX) return false;  // a file that somebody else has put there
  char name[32];
  std::snprintf(name, sizeof name, "%.10ld.jpg", last + 1);
  zelto::ExecuteShell(("cp " + zelto::ShellPath(kCapture) + " " + zelto::ShellPath(PathOf(name))).c_str());
  zelto::System().Sync();
  return true;
}

int CZelhostIPCManager::GetNumOfSnapShot() {
  ServiceHostLock lock("GetNumOfSnapShot");
  MakeFolders();
  return static_cast<int>(SnapShots().size());
}

long CZelhostIPCManager::GetMaxSnapShotIndex() {
  ServiceHostLock lock("GetMaxSnapShotIndex");
  long highest = 0;
  for (const std::string& name : SnapShots()) {
    highest = std::max(highest, std::strtol(name.c_str(), nullptr, 10));
  }
  return highest;
}

bool CZelhostIPCManager::DeleteSnapShot(int index) {
  ServiceHostLock lock("DeleteSnapShot");
  const std::vector<std::string> snapShots = SnapShots();
  if (index < 0 || static_cast<std::size_t>(index) >= snapShots.size()) {
    ZELTO_WARNING("there is no %d index jpg\n", index);
    return false;
  }
  m_snapShots = snapShots[static_cast<std::size_t>(index)];
  zelto::System().Unlink(zelto::DevicePath(PathOf(m_snapShots)).c_str());
  zelto::System().Sync();
  return true;
}

const char* CZelhostIPCManager::GetSnapShotPathList() {
  ServiceHostLock lock("GetSnapShotPathList");
  m_snapShots.clear();
  zelto::RecordWriter list(m_snapShots);
  for (const std::string& name : SnapShots()) list.Field(zelhost::kFileLocation + PathOf(name));
  ZELTO_DEBUG("%s: %s\n", "GetSnapShotPathList", m_snapShots.c_str());
  return m_snapShots.c_str();
}

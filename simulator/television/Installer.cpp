#include "simulator/television/Installer.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <thread>
#include <utility>

#include "apiwrapper/ZESocketTransport.h"
#include "apiwrapper/ZETCPTransport.h"
#include "simulator/television/Words.h"

namespace television {
namespace {

constexpr std::chrono::milliseconds kPoll{100};
constexpr int kTenths = 10;
constexpr std::size_t kBarWidth = 20;
constexpr int kKilobyte = 1024;

// Where the engine looks for its runtime.
constexpr char kInstallPath[] = "/mtd_rwcommon/moip/engines/Zelto";

std::unique_ptr<ZETransport> TransportTo(const std::string& address) {
  const std::size_t colon = address.rfind(':');
  if (colon == std::string::npos || address.find('/') != std::string::npos)
    return std::make_unique<ZESocketTransport>(address.c_str());
  return std::make_unique<ZETCPTransport>(address.substr(0, colon).c_str(),
                                          std::atoi(address.c_str() + colon + 1));
}

std::string Kilobytes(int bytes) { return std::to_string(bytes / kKilobyte) + " KB"; }

}  // namespace

int InstallerProgress::Tenths() const {
  if (total <= 0) return 0;
  return static_cast<int>(std::int64_t{std::clamp(done, 0, total)} * kTenths / total);
}

std::string ProgressBar(const InstallerProgress& progress) {
  const std::size_t filled = static_cast<std::size_t>(progress.Tenths()) * kBarWidth / kTenths;
  std::string line = Column(progress.step, 12) + '[' + std::string(filled, '#') +
                     std::string(kBarWidth - filled, '.') + "] " + Kilobytes(progress.done) + " of " +
                     Kilobytes(progress.total);
  if (progress.speed > 0) line += ", " + Kilobytes(progress.speed) + "/s";
  return line;
}

Installer::Installer(const std::string& address, Observer observer)
    : m_observer(std::move(observer)), m_transport(TransportTo(address)), m_client(m_transport.get()) {}

Installer::~Installer() { m_client.cleanup(); }

std::string Installer::Install(const std::string& package) {
  if (!m_client.init()) return "no installer service there";
  if (!m_client.Set(ZelInstall::INSTALLPATH, kInstallPath)) return Failure("setting the path");
  if (!Download(package)) return Failure("the download");
  if (!m_client.CRCCheck()) return Failure("the check");
  if (!m_client.Install() || !Reach(ZelInstall::STATUS_INSTALL_FINISHED, "installing"))
    return Failure("the installation");
  m_client.Exit();
  return "";
}

std::string Installer::Failure(const std::string& step) const {
  if (!m_transport->isConnected()) return step + " failed: the service has gone";
  return step + " failed: error " + std::to_string(m_client.LastErrorCode()) +
         std::string(m_client.LastErrorText().view());
}

bool Installer::Download(const std::string& package) {
  const bool isUrl = package.find("://") != std::string::npos;
  const bool begun = isUrl ? m_client.Download(package.c_str()) : m_client.DownloadFromFile(package.c_str());
  return begun && Reach(ZelInstall::STATUS_DOWNLOAD_FINISHED, "downloading");
}

bool Installer::Reach(ZelInstall::STATUS goal, const char* step) {
  for (;;) {
    InstallerProgress progress{step, 0, 0, 0};
    const int status = m_client.Status(progress.done, progress.total, progress.speed);
    const bool goesOn = status == ZelInstall::STATUS_CONNECTING || status == ZelInstall::STATUS_DOWNLOADING ||
                        status == ZelInstall::STATUS_INSTALLING;
    if (status != goal && !goesOn) return false;
    m_observer(progress);
    if (status == goal) return true;
    std::this_thread::sleep_for(kPoll);
  }
}

}  // namespace television

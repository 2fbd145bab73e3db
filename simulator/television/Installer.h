#pragma once

#include <functional>
#include <memory>
#include <string>

#include "apiwrapper/ZETransport.h"
#include "apiwrapper/ZelInstall.h"

namespace television {

// How far an installation is; numbers in bytes, and bytes a second.
struct InstallerProgress {
  const char* step;
  int done;
  int total;
  int speed;  // 0: not known

  int Tenths() const;
};

// One line with a bar, and numbers in kilobytes.
std::string ProgressBar(const InstallerProgress& progress);

// Has an installer service fetch, check and install a package.
// Threads: one.
class Installer {
 public:
  using Observer = std::function<void(const InstallerProgress& progress)>;

  // `address` is ADDRESS:PORT (IPv4) or a socket's path on the television. The observer is called several
  // times a second while something goes on.
  Installer(const std::string& address, Observer observer);
  ~Installer();

  // From connecting to the end; the service ends after a success. The package is a path on the service's
  // machine, or a URL. Empty when it is installed, else the step that failed and why.
  std::string Install(const std::string& package);

 private:
  bool Download(const std::string& package);
  std::string Failure(const std::string& step) const;
  // Looks again and again until the service has got there. False when it has failed or does something else.
  bool Reach(ZelInstall::STATUS goal, const char* step);

  const Observer m_observer;
  const std::unique_ptr<ZETransport> m_transport;
  ZelInstall m_client;
};

}  // namespace television

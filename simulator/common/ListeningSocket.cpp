#include "simulator/common/ListeningSocket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

namespace simulator {
namespace {

constexpr int kBacklog = 8;

[[noreturn]] void Throw(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

void RemoveStale(const std::string& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) return;
  if (!S_ISSOCK(status.st_mode)) {
    errno = EEXIST;
    Throw(path);
  }
  unlink(path.c_str());
}

}  // namespace

ListeningSocket::ListeningSocket(std::string path)
    : m_path(std::move(path)), m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
  if (m_descriptor < 0) Throw("socket");
  try {
    Bind();
  } catch (...) {
    close(m_descriptor);
    throw;
  }
}

void ListeningSocket::Bind() {
  const std::filesystem::path whole = std::filesystem::absolute(m_path);
  std::filesystem::create_directories(whole.parent_path());
  RemoveStale(m_path);
  // Through the folder's descriptor the address stays short, however deep the folder lies.
  const int folder = open(whole.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) Throw(m_path);
  const std::string shortPath = "/proc/self/fd/" + std::to_string(folder) + "/" + whole.filename().string();
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const bool fits = shortPath.size() < sizeof address.sun_path;
  if (fits) std::memcpy(address.sun_path, shortPath.c_str(), shortPath.size() + 1);
  const bool bound =
      fits && bind(m_descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  const int failure = fits ? errno : ENAMETOOLONG;
  close(folder);
  if (!bound) {
    errno = failure;
    Throw(m_path);
  }
  struct stat status {};
  if (lstat(m_path.c_str(), &status) == 0) {
    m_device = status.st_dev;
    m_file = status.st_ino;
  }
  if (listen(m_descriptor, kBacklog) != 0) Throw(m_path);
}

ListeningSocket::~ListeningSocket() {
  struct stat status {};
  const bool own =
      lstat(m_path.c_str(), &status) == 0 && status.st_dev == m_device && status.st_ino == m_file;
  if (own) unlink(m_path.c_str());
  close(m_descriptor);
}

int ListeningSocket::Accept() {
  return accept4(m_descriptor, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
}

}  // namespace simulator

#include "tests/faults/TourClock.h"

#include <signal.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace test {

TourClock& TourClock::Make(std::int64_t factor) {
  static auto* const clocks = new std::vector<std::unique_ptr<TourClock>>;
  clocks->push_back(std::make_unique<TourClock>(factor));
  return *clocks->back();
}

namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds kLongestStart{20};

}  // namespace

bool Lives(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/stat");
  std::string line;
  std::getline(status, line);
  const std::size_t behindName = line.rfind(')');
  return behindName != std::string::npos && line.compare(behindName + 2, 1, "Z") != 0;
}

pid_t TourClock::Spawn(const zelto::SpawnRequest& request) {
  const pid_t process = FastClock::Spawn(request);
  // Shells, which are started too, run no longer than the call that starts them.
  m_started = process;
  return process;
}

int TourClock::Connect(int descriptor, const sockaddr* address, socklen_t length) {
  const auto limit = steady_clock::now() + kLongestStart;
  int result = FastClock::Connect(descriptor, address, length);
  while (result != 0 && Lives(m_started) && steady_clock::now() < limit) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    result = FastClock::Connect(descriptor, address, length);
  }
  return result;
}

int TourClock::Kill(pid_t pid, int signal) {
  const int result = FastClock::Kill(pid, signal);
  if (result == 0 && signal == SIGKILL) m_killed = pid;
  return result;
}

pid_t TourClock::WaitPid(pid_t pid, int* status, int options) {
  return FastClock::WaitPid(pid, status, pid == m_killed ? options & ~WNOHANG : options);
}

}  // namespace test

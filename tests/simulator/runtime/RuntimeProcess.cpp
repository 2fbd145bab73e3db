#include "tests/simulator/runtime/RuntimeProcess.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <thread>

namespace test {
namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kPoll = std::chrono::milliseconds(5);

Clock::time_point Limit() { return Clock::now() + std::chrono::milliseconds(kLimitMilliseconds); }

}  // namespace

Client::Client(const std::string& path) : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
  const auto limit = Limit();
  while (connect(m_descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    if (Clock::now() > limit) {
      ADD_FAILURE() << "nobody listens at " << path;
      return;
    }
    std::this_thread::sleep_for(kPoll);
  }
}

Client::~Client() { close(m_descriptor); }

void Client::Write(const std::string& bytes) {
  for (std::size_t sent = 0; sent < bytes.size();) {
    const ssize_t size = send(m_descriptor, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (size <= 0) return;
    sent += static_cast<std::size_t>(size);
  }
}

void Client::Tell(const std::string& text) {
  std::string frame;
  simulator::AppendFrame(frame, text);
  Write(frame);
}

std::string Client::Ask(const std::string& request) {
  const std::string id = "#" + std::to_string(m_asked++) + " ";
  Tell(id + " a " + request);
  for (;;) {
    const std::string text = NextFrame();
    if (text.empty()) return text;
    if (text.compare(0, id.size(), id) == 0) return text.substr(id.size());
  }
}

bool Client::Read() {
  pollfd waiting{m_descriptor, POLLIN, 0};
  if (poll(&waiting, 1, kLimitMilliseconds) <= 0) {
    ADD_FAILURE() << "nothing comes";
    return false;
  }
  char* room = m_reader.Room();
  const ssize_t size = recv(m_descriptor, room, m_reader.RoomSize(), 0);
  if (size <= 0) return false;
  m_line.append(room, static_cast<std::size_t>(size));
  m_reader.Filled(static_cast<std::size_t>(size));
  return true;
}

std::string Client::NextFrame() {
  std::string_view text;
  while (!m_reader.Next(text)) {
    if (!Read()) return {};
  }
  return std::string(text);
}

std::string Client::NextLine() {
  while (m_line.find('\n') == std::string::npos) {
    if (!Read()) return {};
  }
  const std::string line = m_line.substr(0, m_line.find('\n'));
  m_line.erase(0, line.size() + 1);
  return line;
}

bool Client::AtEnd() {
  while (Read()) {
  }
  return true;
}

RuntimeProcess::~RuntimeProcess() {
  if (m_process == 0) return;
  kill(m_process, SIGKILL);
  waitpid(m_process, nullptr, 0);
}

void RuntimeProcess::Start(const std::vector<std::string>& more, const std::string& scenario) {
  const std::string program =
      (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "zelhost").string();
  std::vector<std::string> words = {program, "-s", Socket(), "-x", "-o", "-m", "3600"};
  words.insert(words.end(), more.begin(), more.end());
  std::vector<std::string> settings = {"HOME=" + home.Path(), "ZELHOST_SCENARIO=" + scenario,
                                       "ZELTO_DEVICE_ROOT=" + home.Path()};
  std::vector<char*> arguments, environment;
  for (std::string& word : words) arguments.push_back(word.data());
  for (std::string& setting : settings) environment.push_back(setting.data());
  arguments.push_back(nullptr);
  environment.push_back(nullptr);
  ASSERT_EQ(0,
            posix_spawn(&m_process, program.c_str(), nullptr, nullptr, arguments.data(), environment.data()))
      << program;
}

void RuntimeProcess::Signal(int signal) { kill(m_process, signal); }

int RuntimeProcess::Wait() {
  const auto limit = Limit();
  int status = -1;
  while (waitpid(m_process, &status, WNOHANG) == 0) {
    if (Clock::now() > limit) return -1;
    std::this_thread::sleep_for(kPoll);
  }
  m_process = 0;
  return status;
}

}  // namespace test

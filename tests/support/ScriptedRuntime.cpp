#include "tests/support/ScriptedRuntime.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::size_t kHeaderSize = 4;

int listenAt(const std::string& path) {
  sockaddr_un address = sockaddr_un();
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof(address.sun_path)) throw std::runtime_error("socket path too long: " + path);
  std::memcpy(address.sun_path, path.data(), path.size());
  unlink(path.c_str());
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (listener < 0 || bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
      listen(listener, 8) != 0) {
    throw std::runtime_error("can't listen at " + path);
  }
  return listener;
}

// The next token at `position`, which moves behind the blank that ends it.
std::string nextToken(const std::string& text, std::size_t* position) {
  const std::size_t end = std::min(text.find(' ', *position), text.size());
  const std::string token = text.substr(*position, end - *position);
  *position = std::min(end + 1, text.size());
  return token;
}

// The quoted value whose opening quote stands at `position`, which moves behind its closing quote.
std::string quotedValue(const std::string& text, std::size_t* position) {
  std::string value;
  std::size_t i = *position + 1;
  for (; i < text.size() && text[i] != '"'; ++i) {
    if (text[i] == '\\' && i + 1 < text.size()) ++i;
    value += text[i];
  }
  *position = std::min(i + 1, text.size());
  return value;
}

}  // namespace

ScriptedRuntime::ScriptedRuntime(const std::string& path) : m_path(path) {
  if (m_path.empty()) {
    char folder[] = "/tmp/zelto-runtime-XXXXXX";
    if (mkdtemp(folder) == nullptr) throw std::runtime_error("can't make a temporary folder");
    m_folder = folder;
    m_path = m_folder + "/socket";
  }
  m_listener = listenAt(m_path);
  if (pipe2(m_wakePipe, O_CLOEXEC | O_NONBLOCK) != 0) throw std::runtime_error("can't make a pipe");
  m_thread = std::thread([this] { run(); });
}

ScriptedRuntime::~ScriptedRuntime() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_stop = true;
  }
  wake();
  m_thread.join();
  drop();
  if (m_listener != -1) close(m_listener);
  close(m_wakePipe[0]);
  close(m_wakePipe[1]);
  unlink(m_path.c_str());
  if (!m_folder.empty()) rmdir(m_folder.c_str());
}

void ScriptedRuntime::on(const std::string& method, Handler handler) {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_handlers[method] = std::move(handler);
}

void ScriptedRuntime::reply(const std::string& method, const std::string& pairs) {
  on(method,
     [pairs](ScriptedRuntime& runtime, const ScriptedRequest& request) { runtime.answer(request, pairs); });
}

void ScriptedRuntime::stayMute(const std::string& method) {
  on(method, [](ScriptedRuntime&, const ScriptedRequest&) {});
}

void ScriptedRuntime::answer(const ScriptedRequest& request, const std::string& pairs) {
  if (!request.id.empty()) sendMessage(request.id + "b " + pairs);
}

void ScriptedRuntime::sendEvent(const std::string& classToken, const std::string& event,
                                const std::string& pairs) {
  sendMessage("e " + classToken + " " + event + (pairs.empty() ? "" : " " + pairs));
}

void ScriptedRuntime::sendMessage(const std::string& text) { sendBytes(frame(text)); }

void ScriptedRuntime::sendBytes(const std::string& bytes) {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_outgoing += bytes;
  }
  wake();
}

void ScriptedRuntime::die() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_closing = true;
    m_listening = false;
  }
  wake();
}

void ScriptedRuntime::wake() {
  const char byte = 0;
  // A full pipe wakes the thread as well.
  [[maybe_unused]] const ssize_t written = write(m_wakePipe[1], &byte, 1);
}

template <class Condition>
bool ScriptedRuntime::waitUntil(Condition condition) {
  std::unique_lock<std::mutex> lock(m_mutex);
  return m_changed.wait_until(lock, std::chrono::steady_clock::now() + kScriptPatience, condition);
}

bool ScriptedRuntime::waitForMessages(std::size_t count) {
  return waitUntil([&] { return m_messages.size() >= count; });
}

bool ScriptedRuntime::waitForRequests(const std::string& method, std::size_t count) {
  return waitUntil([&] {
    const auto matches = [&](const std::string& message) { return parse(message).method == method; };
    return static_cast<std::size_t>(std::count_if(m_messages.begin(), m_messages.end(), matches)) >= count;
  });
}

std::vector<std::string> ScriptedRuntime::messages() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_messages;
}

std::vector<ScriptedRequest> ScriptedRuntime::requests(const std::string& method) const {
  std::vector<ScriptedRequest> found;
  for (const std::string& message : messages()) {
    ScriptedRequest request = parse(message);
    if (request.method == method) found.push_back(std::move(request));
  }
  return found;
}

std::string ScriptedRuntime::pair(const std::string& key, const std::string& value) {
  std::string text = key + "=\"";
  for (const char c : value) {
    if (c == ',' || c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + "\" ";
}

std::string ScriptedRuntime::frame(const std::string& text) {
  const auto length = static_cast<std::uint32_t>(text.size());
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>((length >> shift) & 0xFF);
  return bytes + text;
}

ScriptedRequest ScriptedRuntime::parse(const std::string& message) {
  ScriptedRequest request;
  std::size_t position = 0;
  if (message.compare(0, 1, "#") == 0) {
    request.id = nextToken(message, &position) + " ";
    // The id ends with a blank of its own, and another one follows.
    if (position < message.size() && message[position] == ' ') ++position;
  }
  request.text = message.substr(position);
  nextToken(message, &position);
  request.classToken = nextToken(message, &position);
  request.method = nextToken(message, &position);
  while (position < message.size()) {
    const std::size_t equals = message.find("=\"", position);
    if (equals == std::string::npos) break;
    const std::string key = message.substr(position, equals - position);
    position = equals + 1;
    request.arguments[key] = quotedValue(message, &position);
    if (position < message.size() && message[position] == ' ') ++position;
  }
  return request;
}

void ScriptedRuntime::run() {
  for (;;) {
    bool wantsToWrite = false;
    bool listening = false;
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      if (m_stop) return;
      wantsToWrite = m_closing || !m_outgoing.empty();
      listening = m_listening;
    }
    if (!listening && m_listener != -1) close(std::exchange(m_listener, -1));
    const bool connected = m_connection != -1;
    const short wanted = connected && wantsToWrite ? POLLIN | POLLOUT : POLLIN;
    pollfd watched[2] = {{m_wakePipe[0], POLLIN, 0}, {connected ? m_connection : m_listener, wanted, 0}};
    poll(watched, 2, -1);
    char drained[64];
    while (read(m_wakePipe[0], drained, sizeof(drained)) > 0) {
    }
    const short events = watched[1].revents;
    if (!connected) {
      if (events != 0) m_connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
      continue;
    }
    if ((events & ~POLLOUT) != 0) readSome();
    if ((events & POLLOUT) != 0 && m_connection != -1) writeSome();
  }
}

void ScriptedRuntime::writeSome() {
  std::unique_lock<std::mutex> lock(m_mutex);
  const ssize_t written = send(m_connection, m_outgoing.data(), m_outgoing.size(), MSG_NOSIGNAL);
  if (written < 0 && (errno == EAGAIN || errno == EINTR)) return;
  m_outgoing.erase(0, written < 0 ? std::string::npos : static_cast<std::size_t>(written));
  if (!m_closing || !m_outgoing.empty()) return;
  lock.unlock();
  drop();
}

void ScriptedRuntime::readSome() {
  char buffer[65536];
  const ssize_t received = read(m_connection, buffer, sizeof(buffer));
  if (received < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (received <= 0) {
    drop();
    return;
  }
  m_incoming.append(buffer, static_cast<std::size_t>(received));
  takeMessages();
}

void ScriptedRuntime::takeMessages() {
  while (m_incoming.size() >= kHeaderSize) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < kHeaderSize; ++i)
      length = length << 8 | static_cast<unsigned char>(m_incoming[i]);
    if (m_incoming.size() < kHeaderSize + length) return;
    const std::string message = m_incoming.substr(kHeaderSize, length);
    m_incoming.erase(0, kHeaderSize + length);
    handle(message);
  }
}

void ScriptedRuntime::handle(const std::string& message) {
  const ScriptedRequest request = parse(message);
  Handler handler;
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_messages.push_back(message);
    m_changed.notify_all();
    const auto rule = m_handlers.find(request.method);
    if (rule != m_handlers.end()) handler = rule->second;
  }
  if (handler) {
    handler(*this, request);
  } else {
    answer(request, "");
  }
}

void ScriptedRuntime::drop() {
  if (m_connection != -1) close(m_connection);
  m_connection = -1;
  m_incoming.clear();
  std::lock_guard<std::mutex> lock(m_mutex);
  m_outgoing.clear();
  m_closing = false;
}

#include "simulator/common/EventLoop.h"

#include <sys/epoll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace simulator {
namespace {

constexpr int kEventsAtOnce = 16;
constexpr std::int64_t kLongestWait = 60 * 1000;

}  // namespace

EventLoop::EventLoop() : m_epoll(epoll_create1(EPOLL_CLOEXEC)) {
  if (m_epoll < 0) throw std::system_error(errno, std::generic_category(), "epoll_create1");
}

EventLoop::~EventLoop() { close(m_epoll); }

void EventLoop::Watch(int descriptor, std::uint32_t events, Callback callback) {
  const auto index = static_cast<std::size_t>(descriptor);
  if (m_callbacks.size() <= index) m_callbacks.resize(index + 1);
  const int operation = m_callbacks[index] == nullptr ? EPOLL_CTL_ADD : EPOLL_CTL_MOD;
  m_callbacks[index] = std::make_shared<Callback>(std::move(callback));
  epoll_event event{};
  event.events = events;
  event.data.fd = descriptor;
  if (epoll_ctl(m_epoll, operation, descriptor, &event) != 0) {
    throw std::system_error(errno, std::generic_category(), "epoll_ctl");
  }
}

void EventLoop::Forget(int descriptor) {
  const auto index = static_cast<std::size_t>(descriptor);
  if (index >= m_callbacks.size() || m_callbacks[index] == nullptr) return;
  m_callbacks[index] = nullptr;
  epoll_ctl(m_epoll, EPOLL_CTL_DEL, descriptor, nullptr);
}

void EventLoop::Wait(std::int64_t milliseconds) {
  epoll_event events[kEventsAtOnce];
  const int timeout = milliseconds < 0 ? -1 : static_cast<int>(std::min(milliseconds, kLongestWait));
  const int count = epoll_wait(m_epoll, events, kEventsAtOnce, timeout);
  for (int i = 0; i < count; ++i) {
    const auto index = static_cast<std::size_t>(events[i].data.fd);
    const std::shared_ptr<Callback> callback = m_callbacks[index];
    if (callback != nullptr) (*callback)(events[i].events);
  }
}

}  // namespace simulator

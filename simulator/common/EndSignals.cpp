#include "simulator/common/EndSignals.h"

#include <sys/epoll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace simulator {
namespace {

sigset_t Signals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigaddset(&signals, SIGINT);
  return signals;
}

int Open() {
  const sigset_t signals = Signals();
  return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

}  // namespace

void EndSignals::Block() {
  const sigset_t signals = Signals();
  std::signal(SIGTERM, SIG_DFL);
  std::signal(SIGINT, SIG_DFL);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
}

EndSignals::EndSignals(EventLoop& loop, std::function<void()> end) : m_loop(loop), m_descriptor(Open()) {
  if (m_descriptor < 0) return;
  m_loop.Watch(m_descriptor, EPOLLIN, [end = std::move(end)](std::uint32_t) { end(); });
}

EndSignals::~EndSignals() {
  if (m_descriptor < 0) return;
  m_loop.Forget(m_descriptor);
  close(m_descriptor);
}

}  // namespace simulator

#include "simulator/runtime/media/MediaThread.h"

#include <string>
#include <system_error>
#include <utility>

#include "Common/Platform.h"
#include "simulator/runtime/Log.h"

namespace simulator {

bool MediaThread::Start(const char* name, bool urgent, std::function<void()> body) {
  if (m_thread.joinable()) return true;
  try {
    m_thread = std::thread([urgent, body = std::move(body)] {
      if (urgent) zelto::System().RaiseThreadPriority();
      body();
    });
  } catch (const std::system_error& failure) {
    Log(std::string(name) + ": " + failure.what());
    return false;
  }
  return true;
}

void MediaThread::End() {
  if (m_thread.joinable()) m_thread.join();
}

}  // namespace simulator

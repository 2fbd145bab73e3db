#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

namespace television {

// Does work on items one after the other on a thread of its own, so that whoever hands them over is not held
// up. What does not fit any more is turned away.
// Threads: any may hand items over.
template <class Item>
class Worker {
 public:
  Worker(std::size_t mostWaiting, std::function<void(Item&)> work)
      : m_mostWaiting(mostWaiting), m_work(std::move(work)), m_thread([this] { Run(); }) {}
  // Finishes what waits.
  ~Worker() {
    {
      const std::lock_guard<std::mutex> lock(m_mutex);
      m_ending = true;
    }
    m_changed.notify_all();
    m_thread.join();
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  // False when too much waits already.
  bool Add(Item item) {
    {
      const std::lock_guard<std::mutex> lock(m_mutex);
      if (m_waiting.size() >= m_mostWaiting) return false;
      m_waiting.push_back(std::move(item));
    }
    m_changed.notify_all();
    return true;
  }

 private:
  void Run() {
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true) {
      m_changed.wait(lock, [this] { return m_ending || !m_waiting.empty(); });
      if (m_waiting.empty()) return;
      Item item = std::move(m_waiting.front());
      m_waiting.pop_front();
      lock.unlock();
      m_work(item);
      lock.lock();
    }
  }

  const std::size_t m_mostWaiting;
  const std::function<void(Item&)> m_work;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::deque<Item> m_waiting;
  bool m_ending = false;
  std::thread m_thread;
};

}  // namespace television

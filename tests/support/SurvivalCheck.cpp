#include "tests/support/SurvivalCheck.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <thread>
#include <utility>

namespace test {

namespace {

namespace fs = std::filesystem;

std::string FirstLine(const fs::path& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

// Calls the function with each entry of a folder that may change while it is read.
template <typename Function>
void ForEachEntry(const fs::path& folder, Function function) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    function(entry->path());
  }
}

void CountThreads(Census& census) {
  ForEachEntry("/proc/self/task",
               [&](const fs::path& task) { ++census["thread " + FirstLine(task / "comm")]; });
}

void CountDescriptors(Census& census) {
  const std::string own = "/proc/" + std::to_string(getpid()) + "/fd";
  ForEachEntry("/proc/self/fd", [&](const fs::path& descriptor) {
    std::error_code error;
    const std::string target = fs::read_symlink(descriptor, error).string();
    if (!error && target != own) ++census["descriptor " + target];
  });
}

// "pid (name) state parent ...": the name may hold blanks and brackets.
void CountChild(Census& census, const std::string& status) {
  const std::size_t close = status.rfind(')');
  if (close == std::string::npos) return;
  int parent = 0;
  if (std::sscanf(status.c_str() + close + 1, " %*c %d", &parent) == 1 && parent == getpid()) {
    ++census["child " + status.substr(0, close + 1)];
  }
}

void CountChildren(Census& census) {
  ForEachEntry("/proc", [&](const fs::path& entry) {
    if (std::isdigit(static_cast<unsigned char>(entry.filename().string().front()))) {
      CountChild(census, FirstLine(entry / "stat"));
    }
  });
}

void CountSegments(Census& census) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    const std::size_t name = line.find("/SYSV");
    if (name != std::string::npos) ++census["segment attached " + line.substr(name)];
  }
  std::ifstream table("/proc/sysvipc/shm");
  for (std::string line; std::getline(table, line);) {
    int id = 0;
    int creator = 0;
    const int found = std::sscanf(line.c_str(), "%*d %d %*o %*u %d", &id, &creator);  // 0: the columns' names
    if (found == 2 && creator == getpid()) ++census["segment created " + std::to_string(id)];
  }
}

void CountFiles(Census& census, const std::string& folder) {
  std::error_code error;
  for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    ++census["file " + entry->path().string()];
  }
}

Census Take(const std::vector<std::string>& folders) {
  Census census;
  CountThreads(census);
  CountDescriptors(census);
  CountChildren(census);
  CountSegments(census);
  for (const std::string& folder : folders) CountFiles(census, folder);
  return census;
}

// Some sanitizers start a thread of their own with the program's first. A joined thread is listed a little
// longer than it lives.
Census TakeFirst(const std::vector<std::string>& folders) {
  fs::path task;
  std::thread([&] { task = "/proc/self/task/" + std::to_string(gettid()); }).join();
  while (fs::exists(task)) std::this_thread::yield();
  return Take(folders);
}

std::string Compare(const Census& before, const Census& now) {
  Census change = now;
  for (const auto& [name, count] : before) change[name] -= count;
  std::string text;
  for (const auto& [name, count] : change) {
    // Threads of the time before may well have been on their way out.
    const bool isGone = count < 0 && name.rfind("thread ", 0) == 0;
    if (count != 0 && !isGone) text += (count > 0 ? "  +" : "  ") + std::to_string(count) + " " + name + "\n";
  }
  return text;
}

}  // namespace

SurvivalCheck::SurvivalCheck(std::vector<std::string> folders, int limitMilliseconds)
    : m_folders(std::move(folders)), m_limit(limitMilliseconds), m_before(TakeFirst(m_folders)) {}

SurvivalCheck::~SurvivalCheck() {
  const std::string differences = Differences();
  if (!differences.empty()) ADD_FAILURE() << "left behind or gone:\n" << differences;
}

std::string SurvivalCheck::Differences() const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(m_limit);
  for (;;) {
    const std::string differences = Compare(m_before, Take(m_folders));
    if (differences.empty() || std::chrono::steady_clock::now() >= end) return differences;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

}  // namespace test

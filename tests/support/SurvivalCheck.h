// What a test must leave as it found it.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace test {

// Counts by the name of what is counted ("thread ...", "descriptor ...", "child ...", "segment ...",
// "file ...").
using Census = std::map<std::string, int>;

// Counts this process's threads, open descriptors, children (dead ones not yet reaped included), System V
// segments that it is attached to or has created, and the files below some folders; at its end it waits
// until everything is back at what it was (threads may be fewer), and otherwise fails the test with a list of
// what is more or less. Threads: one.
class SurvivalCheck {
 public:
  explicit SurvivalCheck(std::vector<std::string> folders = {}, int limitMilliseconds = 5000);
  SurvivalCheck(const SurvivalCheck&) = delete;
  SurvivalCheck& operator=(const SurvivalCheck&) = delete;
  ~SurvivalCheck();

  // Waits at most the limit; one line for each difference, empty when there is none.
  std::string Differences() const;

 private:
  const std::vector<std::string> m_folders;
  const int m_limit;
  const Census m_before;
};

}  // namespace test

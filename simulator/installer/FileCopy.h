// One file that becomes another, a piece at a time.
#pragma once

#include <cstdint>
#include <string>

#include "simulator/installer/Errors.h"

namespace installer {

// Writes beside the target and moves there at the end, so that the target is whole or what it was. What was
// written of a copy that is not finished goes with the object.
// Threads: none.
class FileCopy {
 public:
  FileCopy() = default;
  FileCopy(const FileCopy&) = delete;
  FileCopy& operator=(const FileCopy&) = delete;
  ~FileCopy();

  // Null when it has begun, else why it has not. Only regular files, of a size that an int holds. The folder
  // of the target is made.
  const Error* Begin(const std::string& source, const std::string& target);
  // Copies at most so many bytes, and finishes with the last one. Null when that worked.
  const Error* Go(std::int64_t bytes);
  bool IsFinished() const { return m_finished; }

  std::int64_t Copied() const { return m_copied; }
  std::int64_t Total() const { return m_total; }

 private:
  const Error* OpenSource(const std::string& source);
  const Error* Finish();

  std::string m_target;
  std::string m_partial;  // empty: there is none
  int m_from = -1;
  int m_to = -1;
  std::int64_t m_copied = 0;
  std::int64_t m_total = 0;
  bool m_finished = false;
};

}  // namespace installer

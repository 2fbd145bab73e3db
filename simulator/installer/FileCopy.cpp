#include "simulator/installer/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <vector>

namespace installer {
namespace {

constexpr std::int64_t kPiece = 64 * 1024;
constexpr char kPartialSuffix[] = ".part";

bool WriteAll(int descriptor, const char* bytes, std::int64_t size) {
  while (size > 0) {
    const ssize_t written = write(descriptor, bytes, static_cast<std::size_t>(size));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= written;
  }
  return true;
}

}  // namespace

FileCopy::~FileCopy() {
  if (m_from >= 0) close(m_from);
  if (m_to >= 0) close(m_to);
  if (!m_partial.empty()) unlink(m_partial.c_str());
}

const Error* FileCopy::OpenSource(const std::string& source) {
  // A pipe must not keep the service waiting for who writes into it.
  m_from = open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  struct stat status {};
  if (m_from < 0 || fstat(m_from, &status) != 0 || !S_ISREG(status.st_mode)) return &kNoFile;
  if (status.st_size > std::numeric_limits<int>::max()) return &kTooLarge;
  m_total = status.st_size;
  return nullptr;
}

const Error* FileCopy::Begin(const std::string& source, const std::string& target) {
  if (const Error* error = OpenSource(source)) return error;
  m_target = target;
  std::error_code failure;
  std::filesystem::create_directories(std::filesystem::path(target).parent_path(), failure);
  const std::string partial = target + kPartialSuffix;
  m_to = open(partial.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0644);
  if (m_to < 0) return &kUnwritable;
  m_partial = partial;
  return nullptr;
}

const Error* FileCopy::Go(std::int64_t bytes) {
  std::vector<char> piece(static_cast<std::size_t>(kPiece));
  const std::int64_t end = std::min(m_total, m_copied + bytes);
  while (m_copied < end) {
    const auto wanted = static_cast<std::size_t>(std::min(kPiece, end - m_copied));
    const ssize_t size = read(m_from, piece.data(), wanted);
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) return &kUnreadable;
    if (!WriteAll(m_to, piece.data(), size)) return &kUnwritable;
    m_copied += size;
  }
  return m_copied == m_total ? Finish() : nullptr;
}

const Error* FileCopy::Finish() {
  if (m_finished) return nullptr;
  struct stat status {};
  // A program stays one.
  const bool kept = fstat(m_from, &status) == 0 && fchmod(m_to, status.st_mode & 0777) == 0;
  if (!kept || fsync(m_to) != 0 || std::rename(m_partial.c_str(), m_target.c_str()) != 0) return &kUnwritable;
  m_partial.clear();
  m_finished = true;
  return nullptr;
}

}  // namespace installer

#include "Common/Log.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

namespace zelto {

std::atomic<int> g_debugLevel{1};

namespace {

constexpr std::size_t kUsualLine = 512;

const char* Tag(LogLevel level) {
  switch (level) {
    case LogLevel::Fatal:
      return "[ZELTO_FATAL]";
    case LogLevel::Warning:
      return "[ZELTO_WARNING]";
    case LogLevel::Debug:
      return "[ZELTO_DEBUG]";
    case LogLevel::Info:
      return "[ZELTO_INFO]";
  }
  return "";
}

// `size` bytes of a line in a buffer that has room for two more.
void Finish(char* line, std::size_t size) {
  if (size == 0 || line[size - 1] != '\n') line[size++] = '\n';
  std::fwrite(line, 1, size, stdout);
}

// One write per line keeps the lines of different threads apart; most lines fit the buffer. A line that
// is too long for the memory left is cut.
void WriteLine(const char* tag, const char* format, va_list arguments) {
  const int error = errno;
  char usual[kUsualLine];
  const std::size_t tagSize = std::strlen(tag);
  std::memcpy(usual, tag, tagSize);
  va_list again;
  va_copy(again, arguments);
  const int formatted = std::vsnprintf(usual + tagSize, kUsualLine - tagSize - 1, format, arguments);
  const std::size_t size = tagSize + (formatted > 0 ? static_cast<std::size_t>(formatted) : 0);
  if (size + 2 <= kUsualLine) {
    Finish(usual, size);
  } else if (const std::unique_ptr<char[]> large{new (std::nothrow) char[size + 2]}) {
    std::memcpy(large.get(), tag, tagSize);
    std::vsnprintf(large.get() + tagSize, size + 1 - tagSize, format, again);
    Finish(large.get(), size);
  } else {
    Finish(usual, kUsualLine - 2);
  }
  va_end(again);
  errno = error;
}

}  // namespace

void Log(LogLevel level, const char* format, ...) {
  if (!LogEnabled(level)) return;
  va_list arguments;
  va_start(arguments, format);
  WriteLine(Tag(level), format, arguments);
  va_end(arguments);
}

void Print(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteLine("", format, arguments);
  va_end(arguments);
}

}  // namespace zelto

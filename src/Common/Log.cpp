#include "Common/Log.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>

namespace zelto {

std::atomic<int> g_debugLevel{1};

namespace {

const char* Tag(LogLevel level) {
  switch (level) {
    case LogLevel::Fatal: return "[ZELTO_FATAL]";
    case LogLevel::Warning: return "[ZELTO_WARNING]";
    case LogLevel::Debug: return "[ZELTO_DEBUG]";
    case LogLevel::Info: return "[ZELTO_INFO]";
  }
  return "";
}

// One write per line keeps the lines of different threads apart; most lines fit the buffer.
void WriteLine(const char* tag, const char* format, va_list arguments) {
  char buffer[512];
  va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
  std::string line(tag);
  if (length >= 0 && static_cast<std::size_t>(length) < sizeof buffer) {
    line.append(buffer, static_cast<std::size_t>(length));
  } else if (length >= 0) {
    std::string large(static_cast<std::size_t>(length) + 1, '\0');
    std::vsnprintf(large.data(), large.size(), format, again);
    large.pop_back();
    line += large;
  }
  va_end(again);
  if (line.empty() || line.back() != '\n') line += '\n';
  std::fwrite(line.data(), 1, line.size(), stdout);
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

// The one log gate: a level tag and a printf-formatted message on standard output.
#pragma once

#include <atomic>

namespace zelto {

// A message is printed when the debug level is at least its level.
enum class LogLevel { Fatal = 1, Warning = 3, Debug = 4, Info = 5 };

// The global debug level: 1 at start, set by the command "SetDebugLevel". Any thread.
extern std::atomic<int> g_debugLevel;

inline bool LogEnabled(LogLevel level) {
  return g_debugLevel.load(std::memory_order_relaxed) >= static_cast<int>(level);
}

// Prints the level's tag ("[ZELTO_FATAL]", "[ZELTO_WARNING]", "[ZELTO_DEBUG]", "[ZELTO_INFO]") and the
// message in one piece. The message carries its own line feed or gets one. Text from outside the
// engine is always an argument, never the format. Any thread; never fails and leaves errno alone.
__attribute__((format(printf, 2, 3))) void Log(LogLevel level, const char* format, ...);

// The same line without tag and at every level, for what is printed unconditionally.
__attribute__((format(printf, 1, 2))) void Print(const char* format, ...);

}  // namespace zelto

// Arguments are evaluated only when the level is on: these stand on hot paths.
#define ZELTO_LOG(level, ...)                                         \
  do {                                                                \
    if (::zelto::LogEnabled(level)) ::zelto::Log(level, __VA_ARGS__); \
  } while (false)
#define ZELTO_FATAL(...) ZELTO_LOG(::zelto::LogLevel::Fatal, __VA_ARGS__)
#define ZELTO_WARNING(...) ZELTO_LOG(::zelto::LogLevel::Warning, __VA_ARGS__)
#define ZELTO_DEBUG(...) ZELTO_LOG(::zelto::LogLevel::Debug, __VA_ARGS__)
#define ZELTO_INFO(...) ZELTO_LOG(::zelto::LogLevel::Info, __VA_ARGS__)

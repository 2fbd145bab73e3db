// How long the service host waits for its runtime. Milliseconds where nothing else is said.
#pragma once

namespace zelhost {

inline constexpr int kStep = 10;             // between two looks at the stop flag
inline constexpr int kStartUpTime = 6'000;   // a runtime listens on its socket by then
inline constexpr int kConnectAttempts = 17;  // 8 s more for a slow one
inline constexpr int kBetweenAttempts = 500;
inline constexpr int kBetweenPolls = 30;              // events wait no longer; few wake-ups while idle
inline constexpr int kPatienceWhenUnloading = 3'000;  // leaves time within the 8 s of engine_destroy

}  // namespace zelhost

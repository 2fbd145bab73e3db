// What calls work with.
#pragma once

#include <cstdint>
#include <functional>

#include "simulator/runtime/media/MediaPort.h"
#include "simulator/runtime/world/Contacts.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// The references must outlive the calls.
struct CallContext {
  World& world;
  Contacts& contacts;
  Scheduler& scheduler;
  Outbox& outbox;
  MediaPort* media;                        // null: calls without sound and pictures
  std::int64_t clockDifference;            // seconds that the television's clock is ahead
  std::function<void(int signal)> strike;  // sends the process a signal
};

}  // namespace simulator

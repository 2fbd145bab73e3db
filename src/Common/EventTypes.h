// The numbers of all events that reach the host and their names. Header only and free of the engine, so
// that programs beside it can print names.
#pragma once

#include <cstddef>

// Base of CZeltoManager, which lends it the enumeration's names.
struct EngineEventTypes {
  // Engine events: 256 to 199111.
  enum EVENT_TYPE : int {
#define ZELTO_EVENT(name, first, count) name = first,
#define PUBLIC_EVENT(name, number)
#include "Common/EventTypes.def"
  };

  // Public events, which a host understands without knowing the service: below 256.
  enum PUBLIC_EVENT_TYPE : int {
#define ZELTO_EVENT(name, first, count)
#define PUBLIC_EVENT(name, number) name = number,
#include "Common/EventTypes.def"
  };
};

namespace zelto {

inline constexpr int kFirstEventType = 256;
inline constexpr int kLastEventType = 199111;
inline constexpr std::size_t kEventTypes = std::size_t{kLastEventType} + 1;  // entries of a table by type

constexpr bool IsEngineEvent(int type) { return type >= kFirstEventType && type <= kLastEventType; }

struct EventFamily {
  int first;
  int count;
  const char* name;
};

inline constexpr EventFamily kEventFamilies[] = {
#define ZELTO_EVENT(name, first, count) {first, count, #name},
#define PUBLIC_EVENT(name, number) {number, 1, #name},
#include "Common/EventTypes.def"
};

// The name of an event's type, of its family for a member of one; null for a number without a name.
constexpr const char* EventName(int type) {
  for (const EventFamily& family : kEventFamilies) {
    if (type >= family.first && type - family.first < family.count) return family.name;
  }
  return nullptr;
}

}  // namespace zelto

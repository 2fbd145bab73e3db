// Engine events and whoever reacts to them.
#pragma once

// An event on the engine's queue; the types are EVENT_TYPE's (Common/EventTypes.h).
struct CZeltoEvent {
  int type;
  int param;
  int delay;  // milliseconds still to wait; 0 for an immediate event
};

// Base of the five facades. Handlers run on the engine event thread, one event at a time, and are never
// owned by the event pipeline.
class CZeltoEventHandler {
 public:
  virtual ~CZeltoEventHandler() = default;
  // True lets the event through to the host.
  virtual bool OnEvent(const CZeltoEvent* event) = 0;
  // Runs after the delivery to the host; the answer is ignored.
  virtual bool AfterEvent(const CZeltoEvent* event) = 0;
};

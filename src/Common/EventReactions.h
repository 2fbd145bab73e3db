// What the engine itself does after an event has been delivered to the host.
#pragma once

#include "Common/ZeltoEvent.h"

namespace zelto {

// Kept from one reaction to the next. Only the event thread touches it.
struct ReactionState {
  int savedSpeakerVolume = 0;  // while the connecting screen silences the speaker; 0: nothing saved
};

// Runs the reactions to the event's type in the order of their table; types without any do nothing.
// Threads: the event thread. It must hold neither the callback mutex nor the queue mutex.
void ReactToEvent(const CZeltoEvent& event, ReactionState& state);

}  // namespace zelto

#pragma once

#include "simulator/television/Session.h"

namespace television {

// The prompt: reads lines with editing, history and completion and runs them until "quit" or the end of
// the input.
// Threads: one.
void RunConsole(Session& session, Screen& screen);

}  // namespace television

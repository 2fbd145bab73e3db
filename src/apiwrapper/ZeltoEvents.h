// The runtime's events as the root object dispatches them: one row per event number (ZeltoEventTable.cpp),
// each with its handler (ZeltoEventHandlers.h).
#pragma once

#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/ZEStringDict.h"

class Zelto;

// An event as it came, its target already checked.
struct ZeltoEvent {
  const ZEEvent* shape = nullptr;  // never null for a handler
  int type = -1;                   // number in ZELTO_OBJECTTYPE_MAP, -1 for an unknown class
  unsigned int oid = 0;            // 0 for events of the root and of the application-to-application class
  ZEStringDict payload;
};

struct ZeltoEventRow {
  // Runs one callback at most, as the last thing it does: any proxy may be gone afterwards.
  using Handler = void (*)(Zelto& root, const ZeltoEvent& event);

  int number;  // in ZELTO_CALLBACK_MAP
  Handler handle;
};

// Null for a number that no event has.
const ZeltoEventRow* findZeltoEvent(int number);

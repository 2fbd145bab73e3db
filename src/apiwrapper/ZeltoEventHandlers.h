// What an event does to the root and its proxies. The templates are the shapes that several events share;
// the table's rows name the class, the callback and the payload.
#pragma once

#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/Zelto.h"
#include "apiwrapper/ZeltoEvents.h"

namespace zelto_events {

// Nothing to do.
inline void Ignore(Zelto&, const ZeltoEvent&) {}

// A callback without arguments.
template <void (Zelto::*callback)()>
void Notify(Zelto& root, const ZeltoEvent&) {
  (root.*callback)();
}

// A callback with an enumerator of the root, the event's first field.
template <class Enum, void (Zelto::*callback)(Enum)>
void NotifyStatus(Zelto& root, const ZeltoEvent& event) {
  const ZEField& status = event.shape->fields[0];
  (root.*callback)(static_cast<Enum>(ZEPMap(status.table).map(event.payload.find(status.key))));
}

// A callback with the event's object, which is made when it is new.
template <class T, T* (Zelto::*get)(unsigned int), void (Zelto::*callback)(T*)>
void NotifyObject(Zelto& root, const ZeltoEvent& event) {
  if (T* object = (root.*get)(event.oid)) (root.*callback)(object);
}

void PropertyChanged(Zelto& root, const ZeltoEvent& event);
void ObjectDeleted(Zelto& root, const ZeltoEvent& event);
void GroupChanged(Zelto& root, const ZeltoEvent& event);
void ContactGoneOffline(Zelto& root, const ZeltoEvent& event);
void IncomingDTMF(Zelto& root, const ZeltoEvent& event);
void ChatMessageArrived(Zelto& root, const ZeltoEvent& event);
void UpgradeInfo(Zelto& root, const ZeltoEvent& event);
void NewSearchResult(Zelto& root, const ZeltoEvent& event);
void Datagram(Zelto& root, const ZeltoEvent& event);
void UICRequest(Zelto& root, const ZeltoEvent& event);
void LastFrameCaptured(Zelto& root, const ZeltoEvent& event);

}  // namespace zelto_events

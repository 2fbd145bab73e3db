#include "apiwrapper/ZeltoEventHandlers.h"

#include "apiwrapper/App2App.h"
#include "apiwrapper/CallMember.h"
#include "apiwrapper/Chat.h"
#include "apiwrapper/ChatMessage.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/ContactSearch.h"
#include "apiwrapper/Video.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/PropertyMaps.h"

namespace zelto_events {

void PropertyChanged(Zelto& root, const ZeltoEvent& event) {
  const ZEString property = event.payload.find(ZEKey::Property);
  const ZEString value = event.payload.find(ZEKey::Value);
  if (event.type == Zelto::TYPE_APP2APP) {
    if (App2App* app2App = root.findApp2App()) {
      const int id = ZEPMap(APP2APP_PROPERTY_MAP).map(property);
      app2App->OnChange(static_cast<App2App::PROPERTY>(id), ZEStringList::split(value, ',', '\\'));
    }
  } else if (ZEObject* object = root.getObject(event.oid)) {
    const int id = ZEPMap(object->getPMap()).map(property);
    object->OnChange(id, object->parseValue(id, value));
  }
}

void ObjectDeleted(Zelto& root, const ZeltoEvent& event) {
  if (ZEObject* object = root.getObject(event.oid)) object->OnDelete();
}

void GroupChanged(Zelto& root, const ZeltoEvent& event) {
  ContactGroup* group = root.findObject<ContactGroup>(event.oid);
  if (group == nullptr) return;
  Contact* contact = root.getContact(event.payload.find(ZEKey::Contact).toUInt());
  group->OnGroupChanged(contact, contact != nullptr && event.payload.find(ZEKey::Added).toBool());
}

void ContactGoneOffline(Zelto& root, const ZeltoEvent& event) {
  if (Contact* contact = root.findObject<Contact>(event.oid)) contact->OnContactGoneOffline();
}

void IncomingDTMF(Zelto& root, const ZeltoEvent& event) {
  CallMember* member = root.findObject<CallMember>(event.oid);
  if (member == nullptr) return;
  const int tone = ZEPMap(CALLMEMBER_DTMF_MAP).map(event.payload.find(ZEKey::Dtmf));
  member->OnIncomingDTMF(static_cast<CallMember::DTMF>(tone));
}

void ChatMessageArrived(Zelto& root, const ZeltoEvent& event) {
  ChatMessage* message = root.getChatMessage(event.oid);
  Chat* chat = root.getChat(event.payload.find(ZEKey::Chat).toUInt());
  if (message != nullptr && chat != nullptr) root.OnChatMessage(chat, message);
}

void UpgradeInfo(Zelto& root, const ZeltoEvent& event) {
  const int availability = ZEPMap(ZELTO_UPGRADEAVAILABILITY_MAP).map(event.payload.find(ZEKey::Availability));
  root.OnUpgradeInfo(static_cast<Zelto::UPGRADEAVAILABILITY>(availability),
                     event.payload.find(ZEKey::Version));
}

void NewSearchResult(Zelto& root, const ZeltoEvent& event) {
  ContactSearch* search = root.findObject<ContactSearch>(event.oid);
  if (search == nullptr) return;
  if (Contact* contact = root.getContact(event.payload.find(ZEKey::Contact).toUInt())) {
    search->OnNewResult(contact);
  }
}

void Datagram(Zelto& root, const ZeltoEvent& event) {
  if (event.type != Zelto::TYPE_APP2APP) return;
  if (App2App* app2App = root.findApp2App()) {
    app2App->OnDatagram(event.payload.find(ZEKey::DatagramStream), event.payload.find(ZEKey::DatagramData));
  }
}

void UICRequest(Zelto& root, const ZeltoEvent& event) { root.OnUICRequest(event.payload.find(ZEKey::Blob)); }

void LastFrameCaptured(Zelto& root, const ZeltoEvent& event) {
  Video* video = root.findObject<Video>(event.oid);
  if (video == nullptr) return;
  ZEString image = event.payload.find(ZEKey::Image);
  video->OnLastFrameCapture(image, event.payload.find(ZEKey::Width).toUInt(),
                            event.payload.find(ZEKey::Height).toUInt());
}

}  // namespace zelto_events

// The root's registry of proxies, its factories, and its callbacks, which do nothing here.
#include "apiwrapper/Account.h"
#include "apiwrapper/Alert.h"
#include "apiwrapper/App2App.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/CallMember.h"
#include "apiwrapper/Chat.h"
#include "apiwrapper/ChatMember.h"
#include "apiwrapper/ChatMessage.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/ContactSearch.h"
#include "apiwrapper/PriceQuote.h"
#include "apiwrapper/Search.h"
#include "apiwrapper/Sms.h"
#include "apiwrapper/Transfer.h"
#include "apiwrapper/Video.h"
#include "apiwrapper/Voicemail.h"
#include "apiwrapper/Zelto.h"

namespace {

// The line that names a proxy, for people.
ZEString describe(ZEObject* object, unsigned int oid) {
  ZEString line = object->getNamespace().deepCopy();
  line += " object, OID: ";
  line += ZEString::from(oid, 10);
  return line;
}

}  // namespace

ZEObject* Zelto::getObject(unsigned int oid) const {
  assertLockHeld("getObject");
  ZEObject* object = m_registry[oid % kBuckets];
  while (object != nullptr && object->m_oid != oid) object = object->m_nextInBucket;
  return object;
}

void Zelto::insertObject(ZEObject* object) {
  if (object == nullptr || object->m_oid == 0 || getObject(object->m_oid) != nullptr) return;
  ZEObject** link = &m_registry[object->m_oid % kBuckets];
  while (*link != nullptr) link = &(*link)->m_nextInBucket;
  *link = object;
  object->m_nextInBucket = nullptr;
}

void Zelto::removeObject(unsigned int oid) {
  assertLockHeld("removeObject");
  ZEObject** link = &m_registry[oid % kBuckets];
  while (*link != nullptr && (*link)->m_oid != oid) link = &(*link)->m_nextInBucket;
  if (*link == nullptr) return;
  ZEObject* object = *link;
  *link = object->m_nextInBucket;
  object->m_nextInBucket = nullptr;
}

void Zelto::dumpObjectList() {
  log("ZELTO - Objects currently created in wrapper:");
  for (ZEObject* bucket : m_registry) {
    for (ZEObject* object = bucket; object != nullptr; object = object->m_nextInBucket) {
      log(describe(object, object->m_oid));
    }
  }
}

void Zelto::deleteProxies(bool report) {
  bool first = true;
  for (ZEObject*& head : m_registry) {
    // A destructor may delete other proxies, so that the chain is read anew every time.
    while (head != nullptr) {
      if (report && first) {
        log("ZELTO - Exiting, following objects haven't been deleted, check if you have no memory leaks:");
      }
      first = false;
      if (report) log(describe(head, head->m_oid));
      delete head;
    }
  }
  delete m_app2App;
  m_app2App = nullptr;
}

void Zelto::logWrongClass(ZEObject* object) {
  ZEString line("ZELTO ERROR - Object of another class expected: ");
  line += describe(object, object->m_oid);
  log(line);
}

template <class T>
T* Zelto::findOrMake(unsigned int oid, T* (Zelto::*factory)(int)) {
  if (oid == 0) return nullptr;
  if (ZEObject* known = getObject(oid)) return checkedCast<T>(known);
  T* made = (this->*factory)(static_cast<int>(oid));
  insertObject(made);
  return made;
}

App2App* Zelto::getApp2App(const ZEString& name) {
  if (m_app2App == nullptr) m_app2App = newApp2App(name);
  return m_app2App;
}

// clang-format off
Account*       Zelto::getAccount(unsigned int oid)       { return findOrMake(oid, &Zelto::newAccount); }
Contact*       Zelto::getContact(unsigned int oid)       { return findOrMake(oid, &Zelto::newContact); }
ContactGroup*  Zelto::getContactGroup(unsigned int oid)  { return findOrMake(oid, &Zelto::newContactGroup); }
CallMember*    Zelto::getCallMember(unsigned int oid)    { return findOrMake(oid, &Zelto::newCallMember); }
Call*          Zelto::getCall(unsigned int oid)          { return findOrMake(oid, &Zelto::newCall); }
Video*         Zelto::getVideo(unsigned int oid)         { return findOrMake(oid, &Zelto::newVideo); }
Transfer*      Zelto::getTransfer(unsigned int oid)      { return findOrMake(oid, &Zelto::newTransfer); }
Voicemail*     Zelto::getVoicemail(unsigned int oid)     { return findOrMake(oid, &Zelto::newVoicemail); }
Sms*           Zelto::getSms(unsigned int oid)           { return findOrMake(oid, &Zelto::newSms); }
Chat*          Zelto::getChat(unsigned int oid)          { return findOrMake(oid, &Zelto::newChat); }
ChatMember*    Zelto::getChatMember(unsigned int oid)    { return findOrMake(oid, &Zelto::newChatMember); }
ChatMessage*   Zelto::getChatMessage(unsigned int oid)   { return findOrMake(oid, &Zelto::newChatMessage); }
Search*        Zelto::getSearch(unsigned int oid)        { return findOrMake(oid, &Zelto::newSearch); }
ContactSearch* Zelto::getContactSearch(unsigned int oid) { return findOrMake(oid, &Zelto::newContactSearch); }
PriceQuote*    Zelto::getPriceQuote(unsigned int oid)    { return findOrMake(oid, &Zelto::newPriceQuote); }
Alert*         Zelto::getAlert(unsigned int oid)         { return findOrMake(oid, &Zelto::newAlert); }

Account*       Zelto::newAccount(int oid)                { return new Account(oid, this); }
Contact*       Zelto::newContact(int oid)                { return new Contact(oid, this); }
ContactGroup*  Zelto::newContactGroup(int oid)           { return new ContactGroup(oid, this); }
CallMember*    Zelto::newCallMember(int oid)             { return new CallMember(oid, this); }
Call*          Zelto::newCall(int oid)                   { return new Call(oid, this); }
Video*         Zelto::newVideo(int oid)                  { return new Video(oid, this); }
Transfer*      Zelto::newTransfer(int oid)               { return new Transfer(oid, this); }
Voicemail*     Zelto::newVoicemail(int oid)              { return new Voicemail(oid, this); }
Sms*           Zelto::newSms(int oid)                    { return new Sms(oid, this); }
Chat*          Zelto::newChat(int oid)                   { return new Chat(oid, this); }
ChatMember*    Zelto::newChatMember(int oid)             { return new ChatMember(oid, this); }
ChatMessage*   Zelto::newChatMessage(int oid)            { return new ChatMessage(oid, this); }
Search*        Zelto::newSearch(int oid)                 { return new Search(oid, this); }
ContactSearch* Zelto::newContactSearch(int oid)          { return new ContactSearch(oid, this); }
App2App*       Zelto::newApp2App(const ZEString& name)   { return new App2App(name, this); }
PriceQuote*    Zelto::newPriceQuote(int oid)             { return new PriceQuote(oid, this); }
Alert*         Zelto::newAlert(int oid)                  { return new Alert(oid, this); }
// clang-format on

void Zelto::onEventReady(unsigned int) {}
void Zelto::OnLibStatusChange(LIBSTATUS) {}
void Zelto::OnConnStatusChange(CONNSTATUS) {}
void Zelto::OnFileError(FILEERROR) {}
void Zelto::OnProxyAuthenticationFailure(PROXYTYPE) {}
void Zelto::OnUpgradeInfo(UPGRADEAVAILABILITY, const ZEString&) {}
void Zelto::OnUICRequest(const ZEString&) {}
void Zelto::OnRConnectionStatusChange(RCONNECTION_STATUS) {}
void Zelto::OnAvailableDeviceListChange() {}
void Zelto::OnNrgLevelsChange() {}
void Zelto::OnNewCall(Call*) {}
void Zelto::OnIncomingTransfer(Transfer*) {}
void Zelto::OnIncomingVoicemail(Voicemail*) {}
void Zelto::OnChatMessage(Chat*, ChatMessage*) {}
void Zelto::OnNewCustomContactGroup(ContactGroup*) {}
void Zelto::OnContactOnlineAppearance(Contact*) {}
void Zelto::OnIncomingPriceQuote(PriceQuote*) {}
void Zelto::OnIncomingAlert(Alert*) {}

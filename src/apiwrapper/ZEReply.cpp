#include "apiwrapper/ZEReply.h"

#include <algorithm>

#include "apiwrapper/Account.h"
#include "apiwrapper/Alert.h"
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

// clang-format off
template <> ZEObject* zeResolve<ZEObject>(Zelto* root, unsigned int oid) { return root->getObject(oid); }
template <> ZEObject* zeResolve<Account>(Zelto* root, unsigned int oid) { return root->getAccount(oid); }
template <> ZEObject* zeResolve<Alert>(Zelto* root, unsigned int oid) { return root->getAlert(oid); }
template <> ZEObject* zeResolve<Call>(Zelto* root, unsigned int oid) { return root->getCall(oid); }
template <> ZEObject* zeResolve<CallMember>(Zelto* root, unsigned int oid) { return root->getCallMember(oid); }
template <> ZEObject* zeResolve<Chat>(Zelto* root, unsigned int oid) { return root->getChat(oid); }
template <> ZEObject* zeResolve<ChatMember>(Zelto* root, unsigned int oid) { return root->getChatMember(oid); }
template <> ZEObject* zeResolve<ChatMessage>(Zelto* root, unsigned int oid) { return root->getChatMessage(oid); }
template <> ZEObject* zeResolve<Contact>(Zelto* root, unsigned int oid) { return root->getContact(oid); }
template <> ZEObject* zeResolve<ContactGroup>(Zelto* root, unsigned int oid) { return root->getContactGroup(oid); }
template <> ZEObject* zeResolve<ContactSearch>(Zelto* root, unsigned int oid) { return root->getContactSearch(oid); }
template <> ZEObject* zeResolve<PriceQuote>(Zelto* root, unsigned int oid) { return root->getPriceQuote(oid); }
template <> ZEObject* zeResolve<Search>(Zelto* root, unsigned int oid) { return root->getSearch(oid); }
template <> ZEObject* zeResolve<Sms>(Zelto* root, unsigned int oid) { return root->getSms(oid); }
template <> ZEObject* zeResolve<Transfer>(Zelto* root, unsigned int oid) { return root->getTransfer(oid); }
template <> ZEObject* zeResolve<Video>(Zelto* root, unsigned int oid) { return root->getVideo(oid); }
template <> ZEObject* zeResolve<Voicemail>(Zelto* root, unsigned int oid) { return root->getVoicemail(oid); }
// clang-format on

ZEReply::ZEReply(const ZEMethod& method, Zelto* root, const ZEStringDict& values)
    : m_method(method), m_root(root), m_values(values) {}

ZEString ZEReply::text(std::size_t result) const { return m_values.find(m_method.results[result].key); }

bool ZEReply::flag(std::size_t result) const { return text(result).toBool(); }

int ZEReply::number(std::size_t result) const { return text(result).toInt(); }

unsigned int ZEReply::unsignedNumber(std::size_t result) const { return text(result).toUInt(); }

ZEStringList ZEReply::texts(std::size_t result) const { return ZEStringList::split(text(result), ',', '\\'); }

int ZEReply::tokenValue(std::size_t result) const {
  return ZEProtocol::ValueOf(m_method.results[result].table, text(result));
}

ZEPtrVector ZEReply::objects(std::size_t result, Resolver resolve) const {
  ZEStringList ids = texts(result);
  if (ids.size() > kMaxObjectsInReply) {
    ZEString line("ZELTO ERROR - Object list too long in the reply to ");
    line += m_method.name;
    Zelto::log(line);
  }
  ZEPtrVector found(std::min(ids.size(), kMaxObjectsInReply));
  for (unsigned int i = 0; i < found.size(); ++i) found[i] = resolve(m_root, ids.peek().toUInt());
  return found;
}

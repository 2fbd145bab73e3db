// One proxy of every class over a transport that answers each blocking request with the same results.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <tuple>

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
#include "apiwrapper/ContactSearchTerm.h"
#include "apiwrapper/PriceQuote.h"
#include "apiwrapper/Search.h"
#include "apiwrapper/SearchTerm.h"
#include "apiwrapper/Sms.h"
#include "apiwrapper/Transfer.h"
#include "apiwrapper/Video.h"
#include "apiwrapper/Voicemail.h"
#include "apiwrapper/Zelto.h"
#include "tests/apiwrapper/MemoryTransport.h"

struct Proxies {
  Proxies() {
    transport.onPush = [this](const std::string& text) {
      if (text.front() == '#')
        transport.incoming.push_back(text.substr(0, text.find(' ') + 1) + "b " + results);
    };
  }

  // The last message without the id of a blocking request.
  std::string written() const {
    const std::string& text = transport.written.back();
    return text.front() == '#' ? text.substr(text.find(' ') + 2) : text;
  }
  bool waited() const { return transport.written.back().front() == '#'; }

  std::string results;
  MemoryTransport transport;
  Zelto root{&transport};
  Account& account = *root.getAccount(5);
  Alert& alert = *root.getAlert(6);
  Call& call = *root.getCall(7);
  CallMember& callMember = *root.getCallMember(8);
  Chat& chat = *root.getChat(9);
  ChatMember& chatMember = *root.getChatMember(10);
  ChatMessage& chatMessage = *root.getChatMessage(11);
  Contact& contact = *root.getContact(12);
  ContactGroup& contactGroup = *root.getContactGroup(13);
  ContactSearch& contactSearch = *root.getContactSearch(14);
  PriceQuote& priceQuote = *root.getPriceQuote(15);
  Search& search = *root.getSearch(16);
  Sms& sms = *root.getSms(17);
  Transfer& transfer = *root.getTransfer(18);
  Video& video = *root.getVideo(19);
  Voicemail& voicemail = *root.getVoicemail(20);
  App2App& app2App = *root.getApp2App("text0");
  std::tuple<App2App&, Account&, Alert&, Call&, CallMember&, Chat&, ChatMember&, ChatMessage&, Contact&,
             ContactGroup&, ContactSearch&, PriceQuote&, Search&, Sms&, Transfer&, Video&, Voicemail&>
      all{app2App,    account,     alert,    call,         callMember,    chat,
          chatMember, chatMessage, contact,  contactGroup, contactSearch, priceQuote,
          search,     sms,         transfer, video,        voicemail};
};

class WithProxies : public testing::Test, protected Proxies {};

inline ZEStringList textsOf(std::initializer_list<const char*> texts) {
  ZEStringList list;
  for (const char* text : texts) list.append(text);
  return list;
}

inline ZEPtrVector objectsOf(std::initializer_list<ZEObject*> objects) {
  ZEPtrVector vector(static_cast<unsigned int>(objects.size()));
  unsigned int slot = 0;
  for (ZEObject* object : objects) vector[slot++] = object;
  return vector;
}

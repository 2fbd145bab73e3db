// Event dispatch of the root object: each line of the input is a message from the runtime. Contacts delete
// themselves and others when they hear of something, so that stale pointers would show.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "../tests/apiwrapper/MemoryTransport.h"
#include "apiwrapper/App2App.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactSearch.h"
#include "apiwrapper/Zelto.h"

namespace {

class FuzzedContact : public Contact {
 public:
  using Contact::Contact;
  void OnChange(int property, const ZEString& value) override {
    if (property == 1) delete getRoot()->getObject(value.toUInt());
  }
  void OnDelete() override { delete this; }
  void OnContactGoneOffline() override { delete this; }
};

class FuzzedRoot : public Zelto {
 public:
  using Zelto::Zelto;
  Contact* newContact(int oid) override { return new FuzzedContact(oid, this); }
  void onEventReady(unsigned int count) override {
    if (count != eventsWaitingCount()) abort();
  }
  void OnContactOnlineAppearance(Contact* contact) override { delete contact; }
  void OnUpgradeInfo(UPGRADEAVAILABILITY, const ZEString&) override { Ping(); }
  void OnNrgLevelsChange() override { Stop(false); }
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  stderr = std::fopen("/dev/null", "w");  // the protocol's error lines; the fuzzer keeps its own handle
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4096) return 0;
  MemoryTransport transport;
  FuzzedRoot root(&transport);
  transport.incoming = {"#0 b 0=\"1211\""};
  root.Start(true, "");
  root.getApp2App("game");
  root.getContactSearch(3);

  const std::string input(reinterpret_cast<const char*>(data), size);
  for (std::size_t begin = 0; begin < input.size();) {
    const std::size_t end = std::min(input.find('\n', begin), input.size());
    transport.incoming.push_back(input.substr(begin, end - begin));
    begin = end + 1;
  }
  root.pollEvents(0);
  while (root.eventsWaitingCount() > 0) root.runQueue();
  root.Stop(false);
  return 0;
}

// Reply parsing: the input is what the runtime answers to requests that read properties, objects and lists of
// objects, on one object and on many.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "../tests/apiwrapper/MemoryTransport.h"
#include "apiwrapper/Account.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/Zelto.h"

namespace {

ZEIntList someIds() {
  ZEIntList ids;
  for (const int id : {1, 3, 20, 21, 23}) ids.append(id);
  return ids;
}

void askEverything(Zelto& root) {
  // Made before the answers can give their ids to other classes.
  Account* account = root.getAccount(1);
  Call* call = root.getCall(2);
  ContactGroup* group = root.getContactGroup(3);
  ZEPtrVector two(2);
  two[0] = static_cast<ZEObject*>(root.getContact(4));
  two[1] = static_cast<ZEObject*>(root.getContact(5));

  const ZEIntList ids = someIds();
  account->SetProps(account->GetProps(ids));
  call->GetMembers();
  root.GetUnseenMissedCalls();
  root.GetExistingAccounts();
  root.GetISOCountryNameDict("en");
  root.GetContact("somebody");
  root.GetMultipleObjectsProps(group->GetContacts(), ids);
  root.GetMultipleObjectsProps(two, ids);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  stderr = std::fopen("/dev/null", "w");  // the protocol's error lines; the fuzzer keeps its own handle
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4096) return 0;
  const std::string answer(reinterpret_cast<const char*>(data), size);
  MemoryTransport transport;
  transport.onPush = [&](const std::string& message) {
    if (message[0] == '#') transport.incoming.push_back(message.substr(0, message.find(' ') + 1) + answer);
  };
  Zelto root(&transport);
  root.m_reportLeaks = false;
  root.Start(true, "");
  askEverything(root);
  root.Stop(true);
  return 0;
}

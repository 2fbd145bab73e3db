#pragma once

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

// A message of a chat.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class ChatMessage : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_1 = 1, P_TIMESTAMP = 2, P_3 = 3, P_AUTHOR = 4, P_AUTHOR_DISPLAY_NAME = 5, P_TYPE = 6, P_7 = 7,
    P_LEAVEREASON = 8, P_9 = 9, P_10 = 10, P_11 = 11, P_BODY = 12, P_13 = 13, P_STATUS = 14, P_15 = 15,
    P_16 = 16, P_17 = 17
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TYPE : int { TYPE_TEXT = 3, TYPE_TEXT_TOO = 7, TYPE_POSTED_CONTACTS = 8 };
  enum STATUS : int { STATUS_NOT_READ = 3 };

  ChatMessage(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  bool IsEditable();
  bool Edit(const ZEString& text, bool flag);
  bool MarkRead();
  // The contacts that the message posted, as slots of Contact.
  bool GetContacts(ZEPtrVector& contacts);
};

#pragma once

#include "apiwrapper/ZEObject.h"

// A person in a chat.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class ChatMember : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_1 = 1, P_2 = 2, P_ROLE = 3, P_4 = 4, P_ACTIVITY = 5
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum ROLE : int {};
  enum ACTIVITY : int {};

  ChatMember(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  bool CanSetRoleTo(ROLE role);
  bool SetRoleTo(ROLE role);
};

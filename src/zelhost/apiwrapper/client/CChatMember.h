#pragma once

#include "apiwrapper/ChatMember.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// One person of a chat; traced with who it is.
// Threads: the caller holds the service-host mutex.
class CChatMember : public ClientObject<ChatMember, kTraceChatMember> {
 public:
  using ClientObject::ClientObject;

  void OnChange(int property, const ZEString& value) override;
};

#pragma once

#include "apiwrapper/ChatMessage.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// One message of a chat.
// Threads: the caller holds the service-host mutex.
class CChatMessage : public ClientObject<ChatMessage, kTraceChatMessage> {
 public:
  using ClientObject::ClientObject;
};

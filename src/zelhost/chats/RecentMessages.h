// The messages that the runtime has at hand of a chat.
#pragma once

#include "apiwrapper/ZEPtrVector.h"
#include "apiwrapper/ZEReply.h"
#include "zelhost/apiwrapper/client/CChatMessage.h"

class Chat;

namespace zelhost {

// Slots of CChatMessage, oldest first, each message once, with the values of these properties fetched, in one
// request for all. False, with a line about it, when the runtime does not tell.
bool GetRecentMessages(Chat* chat, const ZEIntList& properties, ZEPtrVector& messages);

inline CChatMessage* MessageAt(const ZEPtrVector& messages, unsigned index) {
  return zeObjectAt<CChatMessage>(messages, index);
}

}  // namespace zelhost

#include "zelhost/chats/RecentMessages.h"

#include <unordered_set>
#include <vector>

#include "Common/Log.h"
#include "apiwrapper/Chat.h"

namespace zelhost {

// What the runtime counts as the context of the others is part of the conversation too.
bool GetRecentMessages(Chat* chat, const ZEIntList& properties, ZEPtrVector& messages) {
  ZEPtrVector context;
  ZEPtrVector recent;
  if (!chat->GetRecentMessages(context, recent)) {
    ZELTO_DEBUG("cannot get recent messages");
    return false;
  }
  std::vector<void*> found;
  found.reserve(context.size() + recent.size());
  std::unordered_set<void*> known;
  for (const ZEPtrVector* list : {&context, &recent}) {
    for (unsigned i = 0; i < list->size(); ++i) {
      void* message = (*list)[i];
      if (message != nullptr && known.insert(message).second) found.push_back(message);
    }
  }
  messages = ZEPtrVector(static_cast<unsigned>(found.size()));
  for (unsigned i = 0; i < messages.size(); ++i) messages[i] = found[i];
  chat->getRoot()->GetMultipleObjectsProps(messages, properties);
  return true;
}

}  // namespace zelhost

#pragma once

#include "apiwrapper/Chat.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

class CChatInfo;

// A conversation in writing; leaves the root's chat list and the chat manager's when it goes.
// Threads: the caller holds the service-host mutex.
class CChat : public ClientObject<Chat, kTraceChat> {
 public:
  using ClientObject::ClientObject;
  ~CChat() override;

  // Its entry in the chat manager's list; null when it is not listed.
  CChatInfo* GetInfo() const { return m_info; }

  // A dialog that ends because its partner is blocked is deleted.
  void OnChange(int property, const ZEString& value) override;
  void OnDelete() override;

 private:
  friend class CChatInfo;

  CChatInfo* m_info = nullptr;
};

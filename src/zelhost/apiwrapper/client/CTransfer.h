#pragma once

#include "apiwrapper/Transfer.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A file on its way; deletes itself once it has come to an end, and leaves the root's transfer list.
// Threads: the caller holds the service-host mutex.
class CTransfer : public ClientObject<Transfer, kTraceTransfer> {
 public:
  using ClientObject::ClientObject;
  ~CTransfer() override;

  void OnChange(int property, const ZEString& value) override;
};

#include "zelhost/apiwrapper/client/CContactGroup.h"

void CContactGroup::OnGroupChanged(Contact* contact, bool added) {
  client::Trace(*this, kTraceContactGroup, ":OnGroupChanged = %s (%s)",
                contact == nullptr ? "multiple contacts" : "one contact", added ? "ADDED" : "DELETED");
}

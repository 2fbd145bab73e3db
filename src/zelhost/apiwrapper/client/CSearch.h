#pragma once

#include "apiwrapper/Search.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A search of the runtime's own objects. Hands its results to the history manager and ends itself.
// Threads: the caller holds the service-host mutex.
class CSearch : public ClientObject<Search, kTraceSearch> {
 public:
  using ClientObject::ClientObject;
  // Starts a search for all objects of a kind, which becomes its type. Null when the runtime gives none; the
  // registry owns it.
  static CSearch* Start(Zelto& root, TARGET kind);
  // Ends a search whose results nobody wants any more, and forgets it. Nothing for null.
  static void GiveUp(CSearch*& search);
  // The managers forget it.
  ~CSearch() override;

  // What is searched for, a Search::TARGET; the receiver of the results is told.
  void SetSearchType(int type) { m_type = type; }
  int GetSearchType() const { return m_type; }

  void OnChange(int property, const ZEString& value) override;
  void OnDelete() override;

 private:
  void DeliverResults();
  void ReportFailure();

  int m_type = 0;
};

#pragma once

#include "apiwrapper/App2App.h"

class CZelto;

// The channel between applications of different machines.
// Threads: the caller holds the service-host mutex.
class CAppToApp : public App2App {
 public:
  CAppToApp(const ZEString& name, CZelto* root);

  void OnChange(App2App::PROPERTY property, const ZEStringList& streams) override;
  void OnDatagram(const ZEString& stream, const ZEString& data) override;

  // Sends a file's content; prints a line when it can't.
  void WriteBinary(const ZEString& file, const ZEString& stream);
  // Stores what was received as a file; prints a line when there is nothing to be had.
  void ReadBinary(const ZEString& file, const ZEString& stream);

 private:
  CZelto* const m_root;
};

#pragma once

#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringList.h"

class Zelto;

// The runtime's exchange of data between two applications. Not a proxy: it is known by its name, and the root
// holds the only one.
// Threads: as Zelto.
class App2App {
 public:
  enum PROPERTY : int { P_1 = 1, P_2 = 2, P_3 = 3, P_4 = 4, P_5 = 5 };

  // The root outlives it.
  App2App(const ZEString& name, Zelto* root);
  App2App(const App2App&) = delete;
  App2App& operator=(const App2App&) = delete;

  virtual ~App2App();
  // The streams that the property now holds.
  virtual void OnChange(PROPERTY property, const ZEStringList& streams);
  virtual void OnDatagram(const ZEString& stream, const ZEString& data);

  const ZEString& getName() const { return m_name; }

  // Each waits for the runtime and answers whether it agreed. Data is a binary string.
  bool Delete();
  bool Connect(const ZEString& identity);
  bool Disconnect(const ZEString& stream);
  bool Write(const ZEString& stream, const ZEString& data);
  bool Datagram(const ZEString& stream, const ZEString& data);
  bool Read(const ZEString& stream, ZEString& data);

 private:
  const ZEString m_name;
  Zelto* const m_root;
};

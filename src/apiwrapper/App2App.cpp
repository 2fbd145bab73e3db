#include "apiwrapper/App2App.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

App2App::App2App(const ZEString& name, Zelto* root) : m_name(name), m_root(root) {}

App2App::~App2App() = default;

void App2App::OnChange(PROPERTY, const ZEStringList&) {}

void App2App::OnDatagram(const ZEString&, const ZEString&) {}

bool App2App::Delete() { return ZERequest(App2AppMethod::Delete, m_name).ask(m_root).flag(); }

bool App2App::Connect(const ZEString& identity) {
  return ZERequest(App2AppMethod::Connect, m_name, identity).ask(m_root).flag();
}

bool App2App::Disconnect(const ZEString& stream) {
  return ZERequest(App2AppMethod::Disconnect, m_name, stream).ask(m_root).flag();
}

bool App2App::Write(const ZEString& stream, const ZEString& data) {
  return ZERequest(App2AppMethod::Write, m_name, stream, data).ask(m_root).flag();
}

bool App2App::Datagram(const ZEString& stream, const ZEString& data) {
  return ZERequest(App2AppMethod::Datagram, m_name, stream, data).ask(m_root).flag();
}

bool App2App::Read(const ZEString& stream, ZEString& data) {
  const ZEReply reply = ZERequest(App2AppMethod::Read, m_name, stream).ask(m_root);
  data = reply.text(1);
  return reply.flag();
}

#include "zelhost/apiwrapper/client/CAppToApp.h"

#include "Common/Log.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/apiwrapper/client/FileBinary.h"

CAppToApp::CAppToApp(const ZEString& name, CZelto* root) : App2App(name, root), m_root(root) {}

void CAppToApp::OnChange(App2App::PROPERTY property, const ZEStringList& streams) {
  if (!m_root->IsTraced(kTraceApp2App)) return;
  m_root->trace(kTraceApp2App, ":OnChange %d = %s", static_cast<int>(property),
                static_cast<const char*>(streams.join(",", false)));
}

void CAppToApp::OnDatagram(const ZEString& stream, const ZEString& data) {
  m_root->trace(kTraceApp2App, ":OnDatagram %s, %u bytes", static_cast<const char*>(stream), data.length());
}

void CAppToApp::WriteBinary(const ZEString& file, const ZEString& stream) {
  if (!Write(stream, C_FileToBin(file))) zelto::Print("Cannot write!");
}

void CAppToApp::ReadBinary(const ZEString& file, const ZEString& stream) {
  ZEString data;
  if (Read(stream, data)) {
    C_BinToFile(data, file, false);
  } else {
    zelto::Print("Couldn't read!");
  }
}

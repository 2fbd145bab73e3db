#include "zelhost/apiwrapper/client/CZelto.h"

#include <fcntl.h>
#include <unistd.h>

#include <ctime>
#include <string>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "zelhost/apiwrapper/client/CAccount.h"
#include "zelhost/apiwrapper/client/CAppToApp.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CCallMember.h"
#include "zelhost/apiwrapper/client/CChat.h"
#include "zelhost/apiwrapper/client/CChatMember.h"
#include "zelhost/apiwrapper/client/CChatMessage.h"
#include "zelhost/apiwrapper/client/CContact.h"
#include "zelhost/apiwrapper/client/CContactGroup.h"
#include "zelhost/apiwrapper/client/CSearch.h"
#include "zelhost/apiwrapper/client/CSms.h"
#include "zelhost/apiwrapper/client/CTransfer.h"
#include "zelhost/apiwrapper/client/CVoicemail.h"
#include "zelhost/apiwrapper/client/CZeltoVideo.h"
#include "zelhost/calls/ZelhostCallManager.h"

CZelto* g_lpZelto = nullptr;

namespace {

constexpr int kEventsFromTwoThreads = 1;  // exit status

const char* LabelOf(unsigned category) {
  for (const TraceLabel& label : kTraceLabels) {
    if ((category & label.bit) != 0) return label.label;
  }
  return "";
}

// "12345 # Tue Nov 24 20:00:00 2026 "
std::string TimeStamp() {
  const std::time_t now = zelto::System().WallClock() / 1'000'000;
  std::tm parts{};
  localtime_r(&now, &parts);
  char text[64];
  const std::size_t length = std::strftime(text, sizeof text, " # %a %b %e %H:%M:%S %Y ", &parts);
  char process[16];
  std::snprintf(process, sizeof process, "%5d", static_cast<int>(getpid()));
  return std::string(process) + std::string(text, length);
}

std::FILE* OpenRecord(const ZEString& path) {
  if (path.isEmpty()) return nullptr;
  std::FILE* record = std::fopen(zelto::DevicePath(static_cast<const char*>(path)).c_str(), "w+e");
  if (record == nullptr) zelto::Print("Can't open file for recording!");
  return record;
}

}  // namespace

// The flag is the console's: nothing in the engine asks for it.
CZelto::CZelto(ZETransport* transport, bool, const ZEString& recordFile)
    : Zelto(transport), m_record(OpenRecord(recordFile)) {}

// The lists go first: their elements trace through this object.
CZelto::~CZelto() {
  FlushQuickLists();
  trace(kTraceZelto | kTraceLifetime, ":delete:%p", static_cast<void*>(this));
  if (m_record != nullptr) std::fclose(m_record);
}

void CZelto::SetLogLevel(unsigned mask) { m_traceMask = mask == 0 ? 0 : m_traceMask | mask; }

bool CZelto::IsTraced(unsigned category) const {
  if ((category & m_traceMask) == 0) return false;
  return (category & kTraceLifetime) == 0 || (m_traceMask & kTraceLifetime) != 0;
}

void CZelto::trace(unsigned category, const char* format, ...) const {
  va_list arguments;
  va_start(arguments, format);
  traceList(category, format, arguments);
  va_end(arguments);
}

// One write for each line keeps the lines of different threads apart.
void CZelto::traceList(unsigned category, const char* format, va_list arguments) const {
  if (!IsTraced(category)) return;
  va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, again);
  va_end(again);
  if (length < 0) return;
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::vsnprintf(text.data(), text.size(), format, arguments);
  text.back() = '\n';
  std::string line = (m_traceMask & kTraceTimeStamp) != 0 ? TimeStamp() : std::string();
  line += LabelOf(category);
  line += text;
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void CZelto::trace_do(const ZEString& text) {
  if (m_record == nullptr) return;
  std::fprintf(m_record, "> %s \n", static_cast<const char*>(text));
  std::fflush(m_record);
}

void CZelto::FlushQuickLists() {
  if (CCall* call = m_calls.At(0)) CZelhostCallManager::GetInstance()->NoteCallDropped(call);
  m_calls.Clear();
  m_chats.Clear();
  m_transfers.Clear();
  m_voicemails.Clear();
}

void CZelto::RemoveCall(CCall* call) {
  if (m_calls.Remove(call) && lastCallIndex != 0) lastCallIndex = m_calls.Count() - 1;
}

// Two threads queueing at once would have broken the queue: going on would only hide where.
void CZelto::onEventReady(unsigned int count) {
  if (count == eventsWaitingCount()) return;
  zelto::Print("eventsWaitingCount() != events_count... BIG ISSUE");
  std::fflush(stdout);
  _exit(kEventsFromTwoThreads);
}

Account* CZelto::newAccount(int oid) { return new CAccount(oid, this); }
Contact* CZelto::newContact(int oid) { return new CContact(oid, this); }
ContactGroup* CZelto::newContactGroup(int oid) { return new CContactGroup(oid, this); }
CallMember* CZelto::newCallMember(int oid) { return new CCallMember(oid, this); }
Call* CZelto::newCall(int oid) { return new CCall(oid, this); }
Video* CZelto::newVideo(int oid) { return new CZeltoVideo(oid, this); }
Transfer* CZelto::newTransfer(int oid) { return new CTransfer(oid, this); }
Voicemail* CZelto::newVoicemail(int oid) { return new CVoicemail(oid, this); }
Sms* CZelto::newSms(int oid) { return new CSms(oid, this); }
Chat* CZelto::newChat(int oid) { return new CChat(oid, this); }
ChatMember* CZelto::newChatMember(int oid) { return new CChatMember(oid, this); }
ChatMessage* CZelto::newChatMessage(int oid) { return new CChatMessage(oid, this); }
Search* CZelto::newSearch(int oid) { return new CSearch(oid, this); }
ContactSearch* CZelto::newContactSearch(int oid) { return new CContactSearch(oid, this); }
App2App* CZelto::newApp2App(const ZEString& name) { return new CAppToApp(name, this); }

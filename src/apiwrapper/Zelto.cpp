#include "apiwrapper/Zelto.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/ZeltoEvents.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/RootMethods.h"
#include "apiwrapper/tables/Words.h"

namespace {

constexpr char kWrapperVersion[] = "1.10";

// Commands wait for the mutex while events run: a burst must leave gaps for them.
constexpr int kEventsPerPass = 10;

// What one poll reads at most, so that a runtime that never stops talking can't hold its caller for good.
constexpr int kMessagesPerPoll = 65536;

constexpr char kNoResult[] = "b ";

void logLine(const char* text, const ZEString& message) {
  ZEString line(text);
  line += message;
  Zelto::log(line);
}

// A request of the root itself, without the leading "a ".
ZEString rootRequest(const ZEMethod& method, const ZEStringDict& arguments) {
  ZEString text(method.owner->token);
  text += " ";
  text += method.token;
  text += " ";
  text += arguments.format(true);
  return text;
}

}  // namespace

bool (*Zelto::s_lockIsHeld)() = nullptr;

void Zelto::assertLockHeld([[maybe_unused]] const char* entry) {
#ifdef ZELTO_DEBUG_LOCKS
  if (s_lockIsHeld == nullptr || s_lockIsHeld()) return;
  std::fprintf(stderr, "Zelto::%s called without the service-host mutex\n", entry);
  std::abort();
#endif
}

Zelto::Zelto(ZETransport* transport) : m_transport(transport) {
  if (m_transport->logFunction == nullptr) m_transport->logFunction = &Zelto::log;
}

Zelto::~Zelto() { deleteProxies(false); }

void Zelto::log(const ZEString& text) { std::fprintf(stderr, "%s\n", static_cast<const char*>(text)); }

bool Zelto::init() {
  if (m_transport->connect()) return true;
  log("ZELTO ERROR - Have you properly started ZelHost?");
  return false;
}

void Zelto::cleanup() { m_transport->disconnect(); }

int Zelto::Start(bool flag, const ZEString& uiVersion) {
  assertLockHeld("Start");
  if (std::strcmp(ZEWord::WrapperVersion, kWrapperVersion) != 0) {
    log("zelto-def and zelto-embedded don't match, please update the wrapper");
    std::exit(-1);
  }
  m_events = ZEStringList();
  m_eventsWaiting = 0;
  deleteProxies(false);
  m_started = true;

  ZEStringDict arguments;
  arguments.insert(ZEKey::Wait, ZEString::from(flag));
  arguments.insert(ZEKey::WrapperVersion, kWrapperVersion);
  arguments.insert(ZEKey::UiVersion, uiVersion);
  const ZEStringDict reply = sendBlockParse(rootRequest(RootMethod::Start, arguments));
  return ZEPMap(ZELTO_STARTRESULT_MAP).map(reply.find(ZEKey::Result));
}

void Zelto::Stop(bool wait) {
  assertLockHeld("Stop");
  ZEStringDict arguments;
  arguments.insert(ZEKey::Wait, ZEString::from(wait));
  ZEString text("a ");
  text += rootRequest(RootMethod::Stop, arguments);
  if (wait) {
    sendAndBlock(text);
  } else {
    send(text);
  }
  runQueue();
  deleteProxies(m_reportLeaks);
  m_started = false;
}

bool Zelto::pollEvents(int milliseconds) {
  assertLockHeld("pollEvents");
  runQueue();
  if (!m_transport->isConnected()) return false;
  runPoll(milliseconds);
  runQueue();
  return true;
}

void Zelto::runQueue() {
  assertLockHeld("runQueue");
  for (int dispatched = 0; dispatched < kEventsPerPass;) {
    const ZEString message = m_events.peek();
    if (message.isNull()) return;
    --m_eventsWaiting;
    switch (dispatchMessage(message)) {
      case Dispatched::Counts:
        ++dispatched;
        break;
      case Dispatched::Dropped:
        break;
      case Dispatched::EndsPass:
        return;
    }
  }
}

Zelto::Dispatched Zelto::dispatchMessage(const ZEString& message) {
  ZEStringList tokens = ZEStringList::split(message, ' ', '\\');
  const ZEString kind = tokens.peek();
  if (kind.equals(ZEWord::Reply)) return Dispatched::Dropped;  // a reply nobody waits for any more
  if (kind.equals(ZEWord::Error)) {
    logLine("ZELTO ERROR - From ZelHost: ", message);
    return Dispatched::Dropped;
  }

  ZeltoEvent event;
  event.type = ZEPMap(ZELTO_OBJECTTYPE_MAP).map(tokens.peek());
  const ZEString name = tokens.peek();
  event.payload = ZEStringDict::parse(tokens);
  if (!m_started && event.type != TYPE_ROOT) return Dispatched::Dropped;

  if (event.type != TYPE_ROOT) {
    const ZEString target =
        event.payload.find(event.type == TYPE_APP2APP ? ZEKey::App2AppName : ZEKey::ObjectId);
    if (target.isNull()) {
      logLine("ZELTO ERROR - Error parsing event: ", message);
      return Dispatched::Dropped;
    }
    if (event.type != TYPE_APP2APP) {
      event.oid = target.toUInt();
      if (event.oid == 0) return Dispatched::EndsPass;
    }
  }

  event.shape = ZEProtocol::EventByToken(name);
  if (event.shape == nullptr) {
    logLine("ZELTO ERROR - Unknown event: ", name);
  } else {
    findZeltoEvent(event.shape->number)->handle(*this, event);
  }
  return Dispatched::Counts;
}

void Zelto::send(const ZEString& text) {
  assertLockHeld("send");
  m_transport->push(text);
}

ZEString Zelto::sendAndBlock(const ZEString& text) {
  assertLockHeld("sendAndBlock");
  const ZEString id = makeId();
  ZEString message(id.length() + 1 + text.length());
  message += id;
  message += " ";
  message += text;
  m_transport->push(message);
  // The transport refuses such a message, so that no reply would ever come.
  if (message.length() >= kFrameLengthLimit) return kNoResult;

  const ZEString reply = runPoll(id);
  const ZEString rest = reply.trim(id);
  if (!rest.startWith(ZEWord::Error)) return rest;
  logLine("ZELTO ERROR - From ZelHost: ", reply);
  return kNoResult;
}

ZEStringDict Zelto::sendBlockParse(const ZEString& text) {
  ZEString request("a ");
  request += text;
  return ZEStringDict::parse(sendAndBlock(request).trim(kNoResult));
}

ZEString Zelto::makeId() {
  char id[16];
  const int length = std::snprintf(id, sizeof(id), "#%X ", m_requestCounter++);
  return ZEString(id, static_cast<unsigned int>(length));
}

void Zelto::queueEvent(const ZEString& text) {
  if (text.isEmpty()) return;
  m_events.append(text);
  ++m_eventsWaiting;
  onEventReady(m_eventsWaiting);
}

ZEString Zelto::runPoll(const ZEString& id) {
  for (;;) {
    const ZEString message = m_transport->pull(true);
    if (message.isNull() || message.startWith(id)) return message;
    queueEvent(message);
  }
}

void Zelto::runPoll(int milliseconds) {
  if (milliseconds >= 0) {
    if (!m_transport->hasMore(milliseconds)) return;
  } else {
    queueEvent(m_transport->pull(true));
    if (!m_transport->hasMore(0)) return;
  }
  int read = 0;
  do {
    queueEvent(m_transport->pull(false));
  } while (++read < kMessagesPerPoll && m_transport->hasMore(0));
}

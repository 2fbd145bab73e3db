#include <ctime>

#include "apiwrapper/tables/Events.h"
#include "apiwrapper/tables/RootMethods.h"
#include "apiwrapper/tables/Words.h"
#include "simulator/common/Version.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

enum StartResult : int { kStarted = 1, kOtherProtocol = 2, kUnknownUiVersion = 3 };
enum LibStatus : int { kStarting = 2, kRunning = 3, kStopping = 4 };
enum ConnStatus : int { kOffline = 1, kConnecting = 2, kOnline = 4 };
constexpr int kNoUpgrade = 1;

// Television without and with a camera of its own.
constexpr const char* kUiVersions[] = {"10070/1.0.0.0/", "10071/1.0.0.0/"};

void StatusEvent(Session& session, int event, const char* key, const PMAP* table, int status) {
  std::string pairs;
  PairWriter(pairs).Text(key, ZEProtocol::TokenOf(table, status));
  session.world.ClassEvent(ROOT_CLASS, event, pairs);
}

void LibStatusEvent(Session& session, int status) {
  StatusEvent(session, ZEEventNumber::LibStatusChange, ZEKey::LibStatus, ZELTO_LIBSTATUS_MAP, status);
}

void ConnStatusEvent(Session& session, int status) {
  StatusEvent(session, ZEEventNumber::ConnStatusChange, ZEKey::ConnStatus, ZELTO_CONNSTATUS_MAP, status);
}

int JudgeStart(const Exchange& exchange) {
  if (exchange.Text(ZEKey::WrapperVersion) != ZEWord::WrapperVersion) return kOtherProtocol;
  const std::string ui = exchange.Text(ZEKey::UiVersion);
  for (const char* known : kUiVersions) {
    if (ui == known) return kStarted;
  }
  return kUnknownUiVersion;
}

void Start(Session& session, Exchange& exchange) {
  const int result = JudgeStart(exchange);
  exchange.Answer(ZEKey::Result, result);
  if (result != kStarted || session.started) return;
  session.started = true;
  LibStatusEvent(session, kStarting);
  LibStatusEvent(session, kRunning);
  ConnStatusEvent(session, kConnecting);
  ConnStatusEvent(session, kOnline);
  if (session.surroundings.started) session.surroundings.started();
}

void Stop(Session& session, Exchange&) {
  if (session.started) LibStatusEvent(session, kStopping);
  session.started = false;
  if (session.surroundings.stopped) session.surroundings.stopped();
}

void Ping(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, 1); }
void GetVersion(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, kVersion); }
void GetPlatform(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, "simulated"); }
void GetUsedPort(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, 0LL); }
void GetFatalErrorMessage(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, ""); }

void GetUnixTimestamp(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result,
                  static_cast<long long>(std::time(nullptr)) + session.surroundings.clockDifference);
}

void GetDefaultDBPath(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.device.Folder());
}

void GetLibStatus(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.started ? kRunning : kStarting);
}

void GetConnStatus(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.started ? kOnline : kOffline);
}

// The service itself and whoever is signed in here.
void GetTotalOnlineUserCount(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.signIn.Name().empty() ? 1 : 2);
}

void GetUpgradeInfo(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Availability, kNoUpgrade);
  exchange.Answer(ZEKey::Version, kVersion);
}

void WriteLog(Session&, Exchange& exchange) {
  Log("engine: " + exchange.Text(ZEKey::LogSource) + ": " + exchange.Text(ZEKey::Text));
}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::Start,                   Start},
    {&RootMethod::Stop,                    Stop},
    {&RootMethod::Ping,                    Ping},
    {&RootMethod::GetVersion,              GetVersion},
    {&RootMethod::GetPlatform,             GetPlatform},
    {&RootMethod::GetUsedPort,             GetUsedPort},
    {&RootMethod::GetUnixTimestamp,        GetUnixTimestamp},
    {&RootMethod::GetDefaultDBPath,        GetDefaultDBPath},
    {&RootMethod::GetLibStatus,            GetLibStatus},
    {&RootMethod::GetConnStatus,           GetConnStatus},
    {&RootMethod::GetFatalErrorMessage,    GetFatalErrorMessage},
    {&RootMethod::GetTotalOnlineUserCount, GetTotalOnlineUserCount},
    {&RootMethod::GetUpgradeInfo,          GetUpgradeInfo},
    {&RootMethod::Log,                     WriteLog},
};
// clang-format on

}  // namespace

HandlerRows RootHandlers() { return RowsOf(kRows); }

}  // namespace simulator

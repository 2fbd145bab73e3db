#include "simulator/television/Errands.h"

#include <thread>
#include <utility>

namespace television {

namespace {

using std::chrono::milliseconds;

constexpr std::size_t kMostWaiting = 100;
constexpr milliseconds kWidgetLoads{300};
constexpr milliseconds kSourceChanges{100};
constexpr milliseconds kPictureComes{200};

// States of the widget.
constexpr char kFullScreen[] = "1";
constexpr char kBesideProgramme[] = "2";

constexpr char kBesideProgrammeParameter[] = "TVModeAudio";
constexpr char kVideoCall[] = "Videocall\x03\x02";
constexpr char kVoiceCall[] = "Voicecall\x03\x02";

// What follows the beginning; empty for a text that begins otherwise.
std::string After(const std::string& text, const std::string& beginning) {
  return text.compare(0, beginning.size(), beginning) == 0 ? text.substr(beginning.size()) : std::string();
}

}  // namespace

Errands::Errands(std::function<void(const std::string& line, const std::string& answer)> done)
    : m_done(std::move(done)), m_worker(kMostWaiting, [this](Errand& errand) { Run(errand); }) {}

void Errands::Attach(IMoIPEngine& engine) {
  const std::lock_guard<std::mutex> lock(m_engineMutex);
  m_engine = &engine;
}

void Errands::Detach() {
  const std::lock_guard<std::mutex> lock(m_engineMutex);
  m_engine = nullptr;
}

void Errands::Take(const Report& report) {
  if (report.kind != Report::Kind::Control) return;
  const std::string parameter = report.parameters.empty() ? std::string() : report.parameters.front();
  if (report.command == "StartWidgetWithParam") return StartWidget(parameter);
  // The call is on the screen: the widget takes the connecting screen away.
  if (report.command == "StartCall" || report.command == "StartCallWithTV")
    m_worker.Add({kPictureComes, {"HideConnectingWnd"}});
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (report.command == "RegisterAfterSourceChangeCallback") m_afterSourceChange = parameter;
  const bool sourceChanges = report.command == "StartPIGMode" || report.command == "StopPIGMode";
  if (!sourceChanges || m_afterSourceChange.empty()) return;
  m_worker.Add({kSourceChanges, {std::exchange(m_afterSourceChange, std::string())}});
}

void Errands::StartWidget(const std::string& parameter) {
  const bool beside = parameter == kBesideProgrammeParameter;
  m_worker.Add({kWidgetLoads, {"SetZeltoWidgetState", beside ? kBesideProgramme : kFullScreen}});
  const std::string video = After(parameter, kVideoCall);
  const std::string voice = After(parameter, kVoiceCall);
  if (!video.empty()) m_worker.Add({milliseconds(0), {"CreateCall", video, "1"}});
  if (!voice.empty()) m_worker.Add({milliseconds(0), {"CreateCall", voice, "0"}});
}

void Errands::Run(const Errand& errand) {
  std::this_thread::sleep_for(errand.after);
  const std::lock_guard<std::mutex> lock(m_engineMutex);
  if (m_engine == nullptr) return;
  std::string line;
  const char* words[5] = {};
  for (std::size_t i = 0; i < errand.command.size(); ++i) {
    words[i] = errand.command[i].c_str();
    line += (i == 0 ? "" : " ") + errand.command[i];
  }
  m_done(line, m_engine->Execute(words[0], words[1], words[2], words[3], words[4]));
}

}  // namespace television

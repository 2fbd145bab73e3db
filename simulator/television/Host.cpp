#include "simulator/television/Host.h"

#include <algorithm>

namespace television {

namespace {

// The public event whose parameter is no text but a notice record.
constexpr int kShowNotice = 17;

// A television keeps the recent past only; a script that never waits must not collect for ever.
constexpr std::size_t kMostReports = 10000;

std::vector<std::string> Texts(std::initializer_list<const char*> texts) {
  std::vector<std::string> given;
  for (const char* text : texts) given.emplace_back(text == nullptr ? "" : text);
  while (!given.empty() && given.back().empty()) given.pop_back();
  return given;
}

const char* OrEmpty(const char* text) { return text == nullptr ? "" : text; }

}  // namespace

void Host::Attach(IMoIPEngine& engine) {
  engine.RegisterEventCallback(&Host::OnEvent, this);
  engine.RegisterCommonCtrlFunc(&Host::OnControl, this);
}

void Host::StartService(IMoIPEngine& engine) { engine.RegisterDataCallback(&Host::OnData, this); }

void Host::SetObserver(std::function<void(const Report&)> observer) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_observer = std::move(observer);
}

void Host::SetMediaSink(std::function<void(const CAVData& record, unsigned int* waiting)> sink) {
  m_mediaSink = std::move(sink);
}

bool Host::WaitFor(const std::function<bool(const Report&)>& condition, std::chrono::milliseconds limit) {
  std::unique_lock<std::mutex> lock(m_mutex);
  return m_arrived.wait_for(lock, limit, [&] {
    const auto found = std::find_if(m_reports.begin(), m_reports.end(), condition);
    if (found == m_reports.end()) return false;
    m_reports.erase(m_reports.begin(), found + 1);
    return true;
  });
}

void Host::Mark() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_reports.clear();
}

void Host::WithState(const std::function<void(TelevisionState&)>& action) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  action(m_state);
}

void Host::Add(Report report) {
  std::function<void(const Report&)> observer;
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    observer = m_observer;
  }
  // Before whoever waits for the report can act on it, so that what is printed keeps its order.
  if (observer) observer(report);
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_reports.push_back(std::move(report));
    if (m_reports.size() > kMostReports) m_reports.pop_front();
  }
  m_arrived.notify_all();
}

bool Host::OnEvent(const CEngineEvent* event, void* user) {
  auto* self = static_cast<Host*>(user);
  Report report;
  report.kind = Report::Kind::Event;
  report.type = event->type;
  if (event->type == kShowNotice && event->param1 != nullptr) {
    const auto* record = reinterpret_cast<const CEngineGlobalNoticeInfo*>(event->param1);
    report.notice = std::make_shared<const Notice>(CopyNotice(*record));
  } else {
    report.parameters = Texts({event->param1, event->param2});
  }
  {
    const std::lock_guard<std::mutex> lock(self->m_mutex);
    self->m_state.Event(event->type);
  }
  self->Add(std::move(report));
  return true;
}

bool Host::OnData(const CAVData* data, void* user, void* extra) {
  auto* self = static_cast<Host*>(user);
  if (self->m_mediaSink) self->m_mediaSink(*data, static_cast<unsigned int*>(extra));
  return true;
}

const char* Host::OnControl(const char* command, const char* p1, const char* p2, const char* p3,
                            const char* p4, void* user) {
  auto* self = static_cast<Host*>(user);
  Report report;
  report.kind = Report::Kind::Control;
  report.command = OrEmpty(command);
  report.parameters = Texts({p1, p2, p3, p4});
  {
    const std::lock_guard<std::mutex> lock(self->m_mutex);
    self->m_answer =
        self->m_state.Control(report.command, OrEmpty(p1), OrEmpty(p2), OrEmpty(p3), OrEmpty(p4));
    report.answer = self->m_answer;
  }
  self->Add(std::move(report));
  return self->m_answer.c_str();
}

}  // namespace television

#include "simulator/installer/Installation.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "simulator/installer/Checksum.h"

namespace installer {
namespace {

constexpr char kFileScheme[] = "file://";
constexpr std::int64_t kSecond = 1000;
// Long enough for a client that polls to see it.
constexpr std::int64_t kConnectTime = kSecond / 2;
constexpr std::int64_t kDefaultConnectTimeout = 3 * kSecond;
constexpr std::size_t kTimeoutDigits = 4;
// A copy with a rate goes on so often; one without does that much before it looks after its clients.
constexpr std::int64_t kTick = 20;
constexpr std::int64_t kPiece = 1024 * 1024;

// Where a download lies, under whatever name it came.
constexpr char kPackage[] = "/.zelto-installer/package";

}  // namespace

Installation::Installation(std::string folder, std::int64_t bytesPerSecond)
    : m_folder(std::move(folder)), m_rate(bytesPerSecond), m_connectTimeout(kDefaultConnectTimeout) {}

bool Installation::IsBusy() const { return m_state != m_resting; }

std::string Installation::Downloaded() const { return m_folder + kPackage; }

const Error* Installation::Download(const std::string& url, std::int64_t now) {
  if (url.find("://") == std::string::npos) return &kBadArgument;
  if (IsBusy()) return &kBusy;
  const bool reachable = url.rfind(kFileScheme, 0) == 0;
  m_source = reachable ? url.substr(sizeof kFileScheme - 1) : url;
  m_reachable = reachable;
  m_connected = now + (reachable ? std::min(kConnectTime, m_connectTimeout) : m_connectTimeout);
  m_failure.reset();
  m_done = m_total = m_speed = 0;
  m_state = State::Connecting;
  return nullptr;
}

const Error* Installation::DownloadFromFile(const std::string& path, std::int64_t now) {
  if (path.empty()) return &kBadArgument;
  if (IsBusy()) return &kBusy;
  m_source = path;
  return StartDownload(now);
}

const Error* Installation::StartDownload(std::int64_t now) {
  return StartCopy(State::Downloading, m_source, Downloaded(), now);
}

const Error* Installation::Check() {
  if (IsBusy()) return &kBusy;
  if (m_name.empty()) return &kNothingHere;
  if (!m_expected) return &kNoChecksum;
  const std::optional<std::uint32_t> sum = Checksum(Downloaded());
  if (!sum) return &kUnreadable;
  m_checked = *sum == *m_expected;
  return m_checked ? nullptr : &kWrongChecksum;
}

const Error* Installation::Install(std::int64_t now) {
  if (IsBusy()) return &kBusy;
  if (m_name.empty()) return &kNothingHere;
  if (!m_checked) return &kNotChecked;
  return StartCopy(State::Installing, Downloaded(), m_folder + m_installPath + '/' + m_name, now);
}

const Error* Installation::SetConnectTimeout(const std::string& seconds) {
  const bool digits =
      std::all_of(seconds.begin(), seconds.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
  if (!digits || seconds.empty() || seconds.size() > kTimeoutDigits) return &kBadArgument;
  m_connectTimeout = std::atoi(seconds.c_str()) * kSecond;
  return nullptr;
}

const Error* Installation::SetInstallPath(const std::string& path) {
  const std::filesystem::path wanted(path);
  const bool leadsOut = std::find(wanted.begin(), wanted.end(), "..") != wanted.end();
  if (path.empty() || leadsOut) return &kBadArgument;
  m_installPath = '/' + path;
  return nullptr;
}

const Error* Installation::StartCopy(State state, const std::string& from, const std::string& to,
                                     std::int64_t now) {
  m_copy.emplace();
  if (const Error* error = m_copy->Begin(from, to)) {
    m_copy.reset();
    return error;
  }
  m_failure.reset();
  m_done = m_speed = 0;
  m_total = m_copy->Total();
  m_begun = now;
  m_state = state;
  return nullptr;
}

void Installation::Work(std::int64_t now) {
  if (m_state == State::Connecting && now >= m_connected) {
    const Error* error = m_reachable ? StartDownload(now) : &kNoConnection;
    if (error != nullptr) Fail(*error);
  } else if (m_copy) {
    Copy(now);
  }
}

void Installation::Copy(std::int64_t now) {
  const std::int64_t elapsed = std::max<std::int64_t>(now - m_begun, 1);
  const std::int64_t due =
      m_rate > 0 ? std::max<std::int64_t>(m_rate * elapsed / kSecond - m_done, 0) : kPiece;
  if (const std::optional<Error> asked = TakeBreak(m_done + due)) return Fail(*asked);
  if (const Error* error = m_copy->Go(due)) return Fail(*error);
  m_done = m_copy->Copied();
  m_speed = m_done * kSecond / elapsed;
  if (m_copy->IsFinished()) Finish();
}

std::optional<Error> Installation::TakeBreak(std::int64_t place) {
  const auto found = m_breaks.find(m_state);
  if (found == m_breaks.end() || place < m_total / 2) return std::nullopt;
  const Error error = found->second;
  m_breaks.erase(found);
  return error;
}

void Installation::Finish() {
  m_copy.reset();
  const bool downloaded = m_state == State::Downloading;
  m_resting = m_state = downloaded ? State::DownloadFinished : State::InstallFinished;
  if (!downloaded) return;
  m_name = std::filesystem::path(m_source).filename();
  m_expected = ExpectedChecksum(m_source);
  m_checked = false;
}

void Installation::Fail(const Error& error) {
  m_copy.reset();
  m_failure = error;
  m_state = m_resting;
}

std::int64_t Installation::UntilNext(std::int64_t now) const {
  if (m_state == State::Connecting) return std::max<std::int64_t>(m_connected - now, 0);
  if (!m_copy) return -1;
  return m_rate > 0 ? kTick : 0;
}

}  // namespace installer

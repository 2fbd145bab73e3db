#include "simulator/installer/Requests.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace installer {
namespace {

constexpr std::size_t kLongestRequest = 8192;
constexpr char kEnd[] = "EXIT";
constexpr char kStatus[] = "STATUS";
constexpr char kNoName[] = "REQUEST";  // the name in replies to what is none

struct StateRow {
  State state;
  const char* words;
  int numbers;
};

struct VariableRow {
  const char* name;
  const Error* (*set)(Installation& installation, const std::string& value);
};

// Files need no proxy, and nothing else is reached.
const Error* IgnoreProxy(Installation&, const std::string&) { return nullptr; }
const Error* SetTimeout(Installation& installation, const std::string& seconds) {
  return installation.SetConnectTimeout(seconds);
}
const Error* SetPath(Installation& installation, const std::string& path) {
  return installation.SetInstallPath(path);
}

// clang-format off
constexpr StateRow kStateRows[] = {
    {State::Ready,            "READY",             0},
    {State::Connecting,       "CONNECTING",        0},
    {State::Downloading,      "DOWNLOADING",       3},
    {State::DownloadFinished, "DOWNLOAD FINISHED", 3},
    {State::Installing,       "INSTALLING",        2},
    {State::InstallFinished,  "INSTALL FINISHED",  2},
};
static_assert(std::size(kStateRows) == kStates);

constexpr VariableRow kVariables[] = {
    {"CONNECTTIMEOUT", &SetTimeout},
    {"HTTPPROXY",      &IgnoreProxy},
    {"INSTALLPATH",    &SetPath},
};
// clang-format on

struct Split {
  std::string name;
  std::string rest;  // behind the first separator
};

Split SplitAt(std::string_view text, char separator) {
  const std::size_t place = std::min(text.find(separator), text.size());
  return {std::string(text.substr(0, place)), std::string(text.substr(std::min(place + 1, text.size())))};
}

// Five characters and a code of two digits stand behind the first blank: clients rely on that.
std::string Refusal(const std::string& name, const Error& error) {
  const std::string code = std::to_string(error.code);
  return name + " ERROR" + (code.size() < 2 ? "0" : "") + code + ' ' + error.text;
}

}  // namespace

struct Requests::Row {
  const char* name;
  bool hasArgument;
  const Error* (Requests::*serve)(const std::string& argument, std::int64_t now);
};

// clang-format off
const Requests::Row Requests::kRows[] = {
    {"CRCCHECK",         false, &Requests::Check},
    {"DOWNLOAD",         true,  &Requests::Download},
    {"DOWNLOADFROMFILE", true,  &Requests::DownloadFromFile},
    {"INSTALL",          false, &Requests::Install},
    {"SET",              true,  &Requests::Set},
    {kStatus,            false, &Requests::TellFailure},
    {"FAIL",             true,  &Requests::Fail},
};
// clang-format on

std::optional<std::string> Requests::Answer(std::string_view text, std::int64_t now) {
  if (text == kEnd) return std::nullopt;
  if (text.size() > kLongestRequest) return Refusal(kNoName, kTooLong);
  const Split request = SplitAt(text, ' ');
  const auto row = std::find_if(std::begin(kRows), std::end(kRows),
                                [&](const Row& candidate) { return request.name == candidate.name; });
  if (row == std::end(kRows)) return Refusal(kNoName, kUnknownRequest);
  // A path ends at its first NUL byte; nobody means that.
  const bool fits = row->hasArgument ? text.find('\0') == std::string_view::npos : text == row->name;
  if (!fits) return Refusal(request.name, kBadArgument);
  if (const auto asked = m_failures.find(request.name); asked != m_failures.end()) {
    const Error error = asked->second;
    m_failures.erase(asked);
    return Refusal(request.name, error);
  }
  if (const Error* error = (this->*row->serve)(request.rest, now)) return Refusal(request.name, *error);
  return request.name + " OK" + (row->name == kStatus ? StateWords() : "");
}

const Error* Requests::FailNext(const std::string& order) {
  const Split split = SplitAt(order, '=');
  Error error = kAsAsked;
  if (split.name.size() != order.size()) {
    const bool digits = std::all_of(split.rest.begin(), split.rest.end(),
                                    [](unsigned char c) { return std::isdigit(c) != 0; });
    if (!digits || split.rest.empty() || split.rest.size() > 2) return &kBadArgument;
    error.code = std::stoi(split.rest);
  }
  for (const State state : {State::Downloading, State::Installing}) {
    if (split.name != kStateRows[static_cast<std::size_t>(state)].words) continue;
    m_installation.BreakNext(state, error);
    return nullptr;
  }
  const bool known =
      std::any_of(std::begin(kRows), std::end(kRows), [&](const Row& row) { return split.name == row.name; });
  if (!known) return &kBadArgument;
  m_failures[split.name] = error;
  return nullptr;
}

const Error* Requests::Check(const std::string&, std::int64_t) { return m_installation.Check(); }

const Error* Requests::Download(const std::string& url, std::int64_t now) {
  return m_installation.Download(url, now);
}

const Error* Requests::DownloadFromFile(const std::string& path, std::int64_t now) {
  return m_installation.DownloadFromFile(path, now);
}

const Error* Requests::Install(const std::string&, std::int64_t now) { return m_installation.Install(now); }

const Error* Requests::Set(const std::string& assignment, std::int64_t) {
  const Split split = SplitAt(assignment, ' ');
  for (const VariableRow& variable : kVariables)
    if (split.name == variable.name) return variable.set(m_installation, split.rest);
  return &kUnknownVariable;
}

const Error* Requests::TellFailure(const std::string&, std::int64_t) {
  const std::optional<Error>& failure = m_installation.Failure();
  return failure ? &*failure : nullptr;
}

const Error* Requests::Fail(const std::string& order, std::int64_t) { return FailNext(order); }

std::string Requests::StateWords() const {
  const StateRow& row = kStateRows[static_cast<std::size_t>(m_installation.CurrentState())];
  const std::int64_t numbers[] = {m_installation.Done(), m_installation.Total(),
                                  m_installation.BytesPerSecond()};
  std::string words = std::string(" ") + row.words;
  for (int i = 0; i < row.numbers; ++i) words += ' ' + std::to_string(numbers[i]);
  return words;
}

}  // namespace installer

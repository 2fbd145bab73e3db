#include "apiwrapper/ZelInstall.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <string_view>

#include "apiwrapper/ZETokenizer.h"

namespace {

struct Command {
  const char* request;  // up to its argument
  const char* success;
  bool mayGoOn;  // a success may be followed by further text
};

// clang-format off
// By ZelInstall's Request.
constexpr Command kCommands[] = {
    {"CRCCHECK",          "CRCCHECK OK",         false},
    {"DOWNLOAD ",         "DOWNLOAD OK",         false},
    {"DOWNLOADFROMFILE ", "DOWNLOADFROMFILE OK", false},
    {"INSTALL",           "INSTALL OK",          false},
    {"SET ",              "SET OK",              true},
};

// By ZelInstall::SETVAR, from 1.
constexpr const char* kVariables[] = {
    "CONNECTTIMEOUT ",
    "HTTPPROXY ",
    "INSTALLPATH ",
};
// clang-format on
static_assert(std::size(kVariables) == ZelInstall::INSTALLPATH);

// An error reply: whatever stands before the first blank, then the code and the text behind it.
constexpr std::size_t kBlankToCode = 6;
constexpr std::size_t kCodeLength = 2;

constexpr char kStatusSuccess[] = "STATUS OK ";
// The tokens of a status reply that mean something: two of success, at most two of a state, three numbers.
constexpr std::size_t kStateToken = 2;
constexpr std::size_t kNumbers = 3;
constexpr std::size_t kTokens = kStateToken + 2 + kNumbers;

struct State {
  const char* words[2];
  std::size_t wordCount;
  std::size_t numbers;  // that follow the words
  ZelInstall::STATUS status;
};

// clang-format off
constexpr State kStates[] = {
    {{"READY",       nullptr},    1, 0, ZelInstall::STATUS_READY},
    {{"CONNECTING",  nullptr},    1, 0, ZelInstall::STATUS_CONNECTING},
    {{"DOWNLOADING", nullptr},    1, 3, ZelInstall::STATUS_DOWNLOADING},
    {{"DOWNLOAD",    "FINISHED"}, 2, 3, ZelInstall::STATUS_DOWNLOAD_FINISHED},
    {{"INSTALLING",  nullptr},    1, 2, ZelInstall::STATUS_INSTALLING},
    {{"INSTALL",     "FINISHED"}, 2, 2, ZelInstall::STATUS_INSTALL_FINISHED},
};
// clang-format on

// Of a reply of any length only these are kept.
using Tokens = std::array<std::string_view, kTokens>;

Tokens firstTokens(std::string_view reply) {
  Tokens tokens;
  std::size_t count = 0;
  ZETokenizer(reply, ' ', 0, ZETokenizer::Quotes::Ignore).forEach([&](std::string_view token, bool) {
    if (count < tokens.size()) tokens[count++] = token;
  });
  return tokens;
}

const State* findState(const Tokens& tokens) {
  for (const State& state : kStates) {
    std::size_t same = 0;
    while (same < state.wordCount && tokens[kStateToken + same] == state.words[same]) ++same;
    if (same == state.wordCount) return &state;
  }
  return nullptr;
}

int toNumber(std::string_view token) { return static_cast<int>(ZEString(token).toUInt()); }

}  // namespace

ZelInstall::ZelInstall(ZETransport* transport) : m_transport(transport) {
  m_transport->logFunction = &ZelInstall::log;
}

ZelInstall::~ZelInstall() = default;

void ZelInstall::log(const ZEString& text) { std::fprintf(stderr, "%s\n", static_cast<const char*>(text)); }

bool ZelInstall::init() {
  if (m_transport->connect()) return true;
  log("ZELTO ERROR - Have you properly started ZelInstall?");
  return false;
}

void ZelInstall::cleanup() { m_transport->disconnect(); }

void ZelInstall::send(const ZEString& text) { m_transport->push(text); }

ZEString ZelInstall::sendAndBlock(const ZEString& text) {
  m_transport->push(text);
  return m_transport->pull(true);
}

void ZelInstall::setError(const ZEString& reply) {
  const std::string_view text = reply.view();
  // Without a blank everything lies behind the end.
  const std::size_t blank = std::min(text.find(' '), text.size());
  const std::string_view rest = text.substr(std::min(blank + kBlankToCode, text.size()));
  m_errorCode = ZEString(rest.substr(0, kCodeLength)).toUInt();
  m_errorText = ZEString(rest.substr(std::min(rest.size(), kCodeLength)));
}

bool ZelInstall::perform(Request request, const ZEString& argument) {
  const Command& command = kCommands[static_cast<std::size_t>(request)];
  ZEString text(command.request);
  text += argument;
  const ZEString reply = sendAndBlock(text);
  const bool done = command.mayGoOn ? reply.startWith(command.success) : reply.equals(command.success);
  if (!done) setError(reply);
  return done;
}

bool ZelInstall::CRCCheck() { return perform(Request::CRCCheck); }
bool ZelInstall::Download(const ZEString& url) { return perform(Request::Download, url); }
bool ZelInstall::DownloadFromFile(const ZEString& path) { return perform(Request::DownloadFromFile, path); }
bool ZelInstall::Install() { return perform(Request::Install); }

bool ZelInstall::Set(SETVAR variable, const ZEString& value) {
  const std::size_t row = static_cast<std::size_t>(variable) - CONNECTTIMEOUT;
  if (row >= std::size(kVariables)) {
    setError(ZEString());
    return false;
  }
  ZEString assignment(kVariables[row]);
  assignment += value;
  return perform(Request::Set, assignment);
}

int ZelInstall::Status(int& first, int& second, int& third) {
  first = second = third = 0;
  const ZEString reply = sendAndBlock("STATUS");
  const Tokens tokens = reply.startWith(kStatusSuccess) ? firstTokens(reply.view()) : Tokens();
  const State* state = findState(tokens);
  if (state == nullptr) {
    setError(reply);
    return STATUS_ERROR;
  }
  int* const numbers[kNumbers] = {&first, &second, &third};
  for (std::size_t i = 0; i < state->numbers; ++i)
    *numbers[i] = toNumber(tokens[kStateToken + state->wordCount + i]);
  return state->status;
}

void ZelInstall::Exit() { send("EXIT"); }

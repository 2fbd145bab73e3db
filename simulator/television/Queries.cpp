#include "simulator/television/Queries.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>

namespace television {

namespace {

using Parameters = const std::vector<std::string>&;

std::string Text(Parameters parameters, std::size_t index) {
  return index < parameters.size() ? parameters[index] : std::string();
}

int Number(Parameters parameters, std::size_t index) {
  return static_cast<int>(std::strtol(Text(parameters, index).c_str(), nullptr, 10));
}

std::string Answer(bool found, std::initializer_list<std::string> values) {
  if (!found) return "no";
  std::string answer = "yes";
  for (const std::string& value : values) answer += " | " + value;
  return answer;
}

// Most queries name somebody and answer one text.
template <bool (IMoIPEngine::*Operation)(const std::string&, std::string&)>
std::string TextOf(IMoIPEngine& engine, Parameters parameters) {
  std::string text;
  const bool found = (engine.*Operation)(Text(parameters, 0), text);
  return Answer(found, {text});
}

std::string IsLoggedIn(IMoIPEngine& engine, Parameters) {
  std::string id;
  const bool found = engine.IsLoggedIn(id);
  return Answer(found, {id});
}

std::string GetRecentCall(IMoIPEngine& engine, Parameters parameters) {
  int kind = 0;
  int timestamp = 0;
  std::string id;
  std::string displayName;
  const bool found = engine.GetRecentCall(Number(parameters, 0), kind, id, displayName, timestamp);
  return Answer(found, {std::to_string(kind), id, displayName, std::to_string(timestamp)});
}

std::string GetContactInfo(IMoIPEngine& engine, Parameters parameters) {
  std::string id;
  std::string displayName;
  int status = 0;
  std::string avatar;
  const bool found = engine.GetContactInfo(Number(parameters, 0), id, displayName, status, avatar);
  return Answer(found, {id, displayName, std::to_string(status), avatar});
}

std::string GetContactStatus(IMoIPEngine& engine, Parameters parameters) {
  int status = 0;
  const bool found = engine.GetContactStatus(Text(parameters, 0), status);
  return Answer(found, {std::to_string(status)});
}

std::string PlaceCall(IMoIPEngine& engine, Parameters parameters) {
  return Answer(engine.PlaceCall(Text(parameters, 0), Number(parameters, 1)), {});
}

std::string PlayMail(IMoIPEngine& engine, Parameters parameters) {
  return Answer(engine.PlayMail(Number(parameters, 0)), {});
}

}  // namespace

const std::vector<Query>& Queries() {
  // clang-format off
  static const std::vector<Query> queries = {
      {"IsInMyContact",        "email",      &TextOf<&IMoIPEngine::IsInMyContact>},
      {"IsLoggedIn",           "",           &IsLoggedIn},
      {"GetRecentCall",        "index",      &GetRecentCall},
      {"GetContactInfo",       "index",      &GetContactInfo},
      {"GetContactImage",      "identity",   &TextOf<&IMoIPEngine::GetContactImage>},
      {"GetContactStatus",     "identity",   &GetContactStatus},
      {"PlaceCall",            "who type",   &PlaceCall},
      {"PlayMail",             "timestamp",  &PlayMail},
      {"GetMobilePhoneNumber", "identity",   &TextOf<&IMoIPEngine::GetMobilePhoneNumber>},
      {"GetHomePhoneNumber",   "identity",   &TextOf<&IMoIPEngine::GetHomePhoneNumber>},
      {"GetOfficePhoneNumber", "identity",   &TextOf<&IMoIPEngine::GetOfficePhoneNumber>},
  };
  // clang-format on
  return queries;
}

const Query* FindQuery(std::string_view name) {
  const auto found = std::find_if(Queries().begin(), Queries().end(),
                                  [&](const Query& query) { return name == query.name; });
  return found == Queries().end() ? nullptr : &*found;
}

}  // namespace television

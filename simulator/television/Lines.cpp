#include "simulator/television/Lines.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "simulator/television/Words.h"

namespace television {

namespace {

enum ChatField { kChatKey, kChatType, kChatMembers, kChatTitle, kChatTime, kChatUnread };
enum MessageField { kAuthor, kAuthorName, kMessageTime, kText, kStatus };
enum HistoryField {
  kIsVoicemail,
  kPartner,
  kPartnerName,
  kTime,
  kIsNew,
  kIsConference,
  kIsIncoming,
  kIsPhone,
  kDuration
};
enum FoundField { kIdentity, kName, kCountry, kCity };
enum BlockedField { kBlocked, kBlockedName };
enum CountryField { kCountryName, kCallingCode, kISOCode };

constexpr char kSeveralPersons[] = "3";

struct StatusWord {
  const char* status;
  const char* word;
};

// clang-format off
constexpr StatusWord kStatusWords[] = {
    {"1", "being sent"},
    {"2", "sent"},
    {"3", "new"},
    {"4", ""},
};
// clang-format on

bool Is(const std::string& flag) { return flag == "1"; }

std::string Named(const std::string& name, const std::string& identity) {
  return Readable(name.empty() ? identity : name);
}

std::string MinutesAndSeconds(const std::string& seconds) {
  const long all = std::max(0L, std::strtol(seconds.c_str(), nullptr, 10));
  char text[32];
  std::snprintf(text, sizeof text, "%ld:%02ld", all / 60, all % 60);
  return text;
}

std::string What(const Record& entry, bool missed) {
  if (Is(entry[kIsVoicemail])) return "voicemail from";
  if (missed) return "missed call from";
  return Is(entry[kIsIncoming]) ? "call from" : "call to";
}

std::string WithoutBlanksAtTheEnd(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

}  // namespace

std::string ChatLine(const Record& chat) {
  const std::string unread = chat[kChatUnread] == "0" ? "" : chat[kChatUnread] + " unread";
  const std::string members =
      chat[kChatType] == kSeveralPersons ? "with " + Readable(chat[kChatMembers]) : "";
  return WithoutBlanksAtTheEnd(Column(Readable(chat[kChatTitle]), 24) + Column(unread, 12) +
                               Column(Readable(chat[kChatTime]), 24) + Column(Readable(chat[kChatKey]), 10) +
                               members);
}

std::string MessageLine(const Record& message) {
  const auto* row = std::find_if(std::begin(kStatusWords), std::end(kStatusWords),
                                 [&](const StatusWord& known) { return message[kStatus] == known.status; });
  const std::string word = row == std::end(kStatusWords) ? "status " + message[kStatus] : row->word;
  return Column(Readable(message[kMessageTime]), 24) + Named(message[kAuthorName], message[kAuthor]) + ": " +
         Readable(message[kText]) + (word.empty() ? "" : "  (" + word + ')');
}

std::string HistoryLine(const Record& entry, bool missed) {
  return WithoutBlanksAtTheEnd(
      Column(What(entry, missed), 18) +
      Column(Named(entry[kPartnerName], entry[kPartner]) + (Is(entry[kIsConference]) ? " and others" : ""),
             24) +
      Column(Readable(entry[kTime]), 24) +
      Column(Is(entry[kIsVoicemail]) ? MinutesAndSeconds(entry[kDuration]) : "", 6) +
      (Is(entry[kIsNew]) ? "new" : ""));
}

std::string FoundContactLine(const Record& contact) {
  const bool both = !contact[kCity].empty() && !contact[kCountry].empty();
  return WithoutBlanksAtTheEnd(Column(Named(contact[kName], contact[kIdentity]), 24) +
                               Column(Readable(contact[kIdentity]), 20) + Readable(contact[kCity]) +
                               (both ? ", " : "") + Readable(contact[kCountry]));
}

std::string BlockedContactLine(const Record& contact) {
  return WithoutBlanksAtTheEnd(Column(Named(contact[kBlockedName], contact[kBlocked]), 24) +
                               Readable(contact[kBlocked]));
}

std::string CountryLine(const Record& country) {
  return Column(Readable(country[kCountryName]), 40) + Column('+' + Readable(country[kCallingCode]), 6) +
         Readable(country[kISOCode]);
}

}  // namespace television

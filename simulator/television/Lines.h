#pragma once

#include <string>

#include "simulator/television/Records.h"

namespace television {

// How many fields the records below have.
inline constexpr std::size_t kChatFields = 6;
inline constexpr std::size_t kMessageFields = 5;
inline constexpr std::size_t kHistoryFields = 10;
inline constexpr std::size_t kFoundContactFields = 4;
inline constexpr std::size_t kBlockedContactFields = 2;
inline constexpr std::size_t kCountryFields = 3;

// Records of the engine as a viewer reads them, in one line each.
std::string ChatLine(const Record& chat);
std::string MessageLine(const Record& message);
// Missed: nobody took that call. The engine's history has no duration of a call, only of a voicemail.
std::string HistoryLine(const Record& entry, bool missed);
std::string FoundContactLine(const Record& contact);
std::string BlockedContactLine(const Record& contact);
std::string CountryLine(const Record& country);

}  // namespace television

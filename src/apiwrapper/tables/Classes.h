// The classes of the protocol, each with its tables.
#pragma once

#include <iterator>

#include "apiwrapper/tables/EnumTables.h"
#include "apiwrapper/tables/PropertyMaps.h"

// clang-format off
inline constexpr ZEClass ACCOUNT_CLASS       = {"Account",       "2046",  5, ACCOUNT_PROPERTY_MAP,       ACCOUNT_EMAP};
inline constexpr ZEClass ALERT_CLASS         = {"Alert",         "1131",  0, ALERT_PROPERTY_MAP,         ALERT_EMAP};
inline constexpr ZEClass APP2APP_CLASS       = {"App2App",       "2097",  4, APP2APP_PROPERTY_MAP,       nullptr};
inline constexpr ZEClass CALL_CLASS          = {"Call",          "1133",  6, CALL_PROPERTY_MAP,          CALL_EMAP};
inline constexpr ZEClass CALLMEMBER_CLASS    = {"CallMember",    "1988",  7, CALLMEMBER_PROPERTY_MAP,    CALLMEMBER_EMAP};
inline constexpr ZEClass CHAT_CLASS          = {"Chat",          "1764", 11, CHAT_PROPERTY_MAP,          CHAT_EMAP};
inline constexpr ZEClass CHATMEMBER_CLASS    = {"ChatMember",    "2085", 12, CHATMEMBER_PROPERTY_MAP,    CHATMEMBER_EMAP};
inline constexpr ZEClass CHATMESSAGE_CLASS   = {"ChatMessage",   "1459", 13, CHATMESSAGE_PROPERTY_MAP,   CHATMESSAGE_EMAP};
inline constexpr ZEClass CONTACT_CLASS       = {"Contact",       "1799", 16, CONTACT_PROPERTY_MAP,       CONTACT_EMAP};
inline constexpr ZEClass CONTACTGROUP_CLASS  = {"ContactGroup",  "1221", 15, CONTACTGROUP_PROPERTY_MAP,  CONTACTGROUP_EMAP};
inline constexpr ZEClass CONTACTSEARCH_CLASS = {"ContactSearch", "2036", 18, CONTACTSEARCH_PROPERTY_MAP, CONTACTSEARCH_EMAP};
inline constexpr ZEClass PRICEQUOTE_CLASS    = {"PriceQuote",    "1826",  0, PRICEQUOTE_PROPERTY_MAP,    PRICEQUOTE_EMAP};
inline constexpr ZEClass SEARCH_CLASS        = {"Search",        "1305", 17, SEARCH_PROPERTY_MAP,        SEARCH_EMAP};
inline constexpr ZEClass SMS_CLASS           = {"Sms",           "1609", 10, SMS_PROPERTY_MAP,           SMS_EMAP};
inline constexpr ZEClass TRANSFER_CLASS      = {"Transfer",      "1974",  8, TRANSFER_PROPERTY_MAP,      TRANSFER_EMAP};
inline constexpr ZEClass VIDEO_CLASS         = {"Video",         "1311",  0, VIDEO_PROPERTY_MAP,         VIDEO_EMAP};
inline constexpr ZEClass VOICEMAIL_CLASS     = {"Voicemail",     "1684",  9, VOICEMAIL_PROPERTY_MAP,     VOICEMAIL_EMAP};

// Tokens that only group service-wide requests, and the root itself.
inline constexpr ZEClass SETUP_CLASS         = {"Setup",         "1165",  1, nullptr,                    nullptr};
inline constexpr ZEClass ROOT_CLASS          = {"Zelto",         "1465",  2, nullptr,                    nullptr};
inline constexpr ZEClass AUDIO_CLASS         = {"Audio",         "1885",  3, nullptr,                    nullptr};

inline constexpr const ZEClass* ALL_CLASSES[] = {
    &ACCOUNT_CLASS, &ALERT_CLASS, &APP2APP_CLASS, &CALL_CLASS, &CALLMEMBER_CLASS, &CHAT_CLASS,
    &CHATMEMBER_CLASS, &CHATMESSAGE_CLASS, &CONTACT_CLASS, &CONTACTGROUP_CLASS, &CONTACTSEARCH_CLASS, &PRICEQUOTE_CLASS,
    &SEARCH_CLASS, &SMS_CLASS, &TRANSFER_CLASS, &VIDEO_CLASS, &VOICEMAIL_CLASS, &SETUP_CLASS,
    &ROOT_CLASS, &AUDIO_CLASS,
};
static_assert(std::size(ALL_CLASSES) == 20);
// clang-format on

// The enumerated properties of every class, by property id, and the tables of their values.
#pragma once

#include "apiwrapper/tables/EnumMaps.h"

// clang-format off
inline constexpr EMAP ACCOUNT_EMAP[] = {
    {21, ACCOUNT_STATUS_MAP},
    {23, ACCOUNT_LOGOUTREASON_MAP},
    {22, ACCOUNT_PWDCHANGESTATUS_MAP},
    {24, ACCOUNT_COMMITSTATUS_MAP},
    {19, CONTACT_CAPABILITY_MAP},
    {20, ACCOUNT_AVAILABILITY_MAP},
    {30, ACCOUNT_CBLSYNCSTATUS_MAP},
    {35, ACCOUNT_CHATPOLICY_MAP},
    {36, ACCOUNT_ZELTOCALLPOLICY_MAP},
    {37, ACCOUNT_PSTNCALLPOLICY_MAP},
    {38, ACCOUNT_AVATARPOLICY_MAP},
    {39, ACCOUNT_BUDDYCOUNTPOLICY_MAP},
    {40, ACCOUNT_TIMEZONEPOLICY_MAP},
    {41, ACCOUNT_WEBPRESENCEPOLICY_MAP},
    {42, ACCOUNT_PHONENUMBERSPOLICY_MAP},
    {43, ACCOUNT_VOICEMAILPOLICY_MAP},
    {0, nullptr}};
static_assert(entriesOf(ACCOUNT_EMAP) == 16);
inline constexpr EMAP ALERT_EMAP[] = {
    {0, nullptr}};
static_assert(entriesOf(ALERT_EMAP) == 0);
inline constexpr EMAP CALLMEMBER_EMAP[] = {
    { 8, CALLMEMBER_TYPE_MAP},
    { 9, CALLMEMBER_STATUS_MAP},
    {10, CALLMEMBER_FAILUREREASON_MAP},
    {20, CALLMEMBER_MIKESTATUS_MAP},
    {22, CALLMEMBER_QUALITYSTATUS_MAP},
    {18, CALLMEMBER_VIDEOSTATUS_MAP},
    {38, VOICEMAIL_FAILUREREASON_MAP},
    {0, nullptr}};
static_assert(entriesOf(CALLMEMBER_EMAP) == 7);
inline constexpr EMAP CALL_EMAP[] = {
    {6, CALLMEMBER_MIKESTATUS_MAP},
    {0, nullptr}};
static_assert(entriesOf(CALL_EMAP) == 1);
inline constexpr EMAP CHATMEMBER_EMAP[] = {
    {3, CHATMEMBER_ROLE_MAP},
    {5, CHATMEMBER_ACTIVITY_MAP},
    {0, nullptr}};
static_assert(entriesOf(CHATMEMBER_EMAP) == 2);
inline constexpr EMAP CHATMESSAGE_EMAP[] = {
    { 6, CHATMESSAGE_TYPE_MAP},
    { 8, CHATMESSAGE_LEAVEREASON_MAP},
    {14, CHATMESSAGE_STATUS_MAP},
    {0, nullptr}};
static_assert(entriesOf(CHATMESSAGE_EMAP) == 3);
inline constexpr EMAP CHAT_EMAP[] = {
    {7, CHAT_TYPE_MAP},
    {8, CHAT_MYSTATUS_MAP},
    {9, CHATMEMBER_ROLE_MAP},
    {0, nullptr}};
static_assert(entriesOf(CHAT_EMAP) == 3);
inline constexpr EMAP CONTACTGROUP_EMAP[] = {
    {1, CONTACTGROUP_TYPE_MAP},
    {0, nullptr}};
static_assert(entriesOf(CONTACTGROUP_EMAP) == 1);
inline constexpr EMAP CONTACTSEARCH_EMAP[] = {
    {1, CONTACTSEARCH_STATUS_MAP},
    {0, nullptr}};
static_assert(entriesOf(CONTACTSEARCH_EMAP) == 1);
inline constexpr EMAP CONTACT_EMAP[] = {
    { 3, CONTACT_TYPE_MAP},
    {20, CONTACT_AVAILABILITY_MAP},
    {23, CONTACT_AUTHLEVEL_MAP},
    {0, nullptr}};
static_assert(entriesOf(CONTACT_EMAP) == 3);
inline constexpr EMAP PRICEQUOTE_EMAP[] = {
    { 9, PRICEQUOTE_STATUS_MAP},
    { 3, PRICEQUOTE_TYPE_MAP},
    {10, PRICEQUOTE_FAILUREREASON_MAP},
    {0, nullptr}};
static_assert(entriesOf(PRICEQUOTE_EMAP) == 3);
inline constexpr EMAP SEARCH_EMAP[] = {
    {1, SEARCH_STATUS_MAP},
    {0, nullptr}};
static_assert(entriesOf(SEARCH_EMAP) == 1);
inline constexpr EMAP SMS_EMAP[] = {
    {2, SMS_STATUS_MAP},
    {1, SMS_TYPE_MAP},
    {3, SMS_FAILUREREASON_MAP},
    {0, nullptr}};
static_assert(entriesOf(SMS_EMAP) == 3);
inline constexpr EMAP TRANSFER_EMAP[] = {
    {4, TRANSFER_STATUS_MAP},
    {1, TRANSFER_TYPE_MAP},
    {5, TRANSFER_FAILUREREASON_MAP},
    {0, nullptr}};
static_assert(entriesOf(TRANSFER_EMAP) == 3);
inline constexpr EMAP VIDEO_EMAP[] = {
    {1, VIDEO_STATUS_MAP},
    {0, nullptr}};
static_assert(entriesOf(VIDEO_EMAP) == 1);
inline constexpr EMAP VOICEMAIL_EMAP[] = {
    {1, VOICEMAIL_TYPE_MAP},
    {4, VOICEMAIL_STATUS_MAP},
    {5, VOICEMAIL_FAILUREREASON_MAP},
    {0, nullptr}};
static_assert(entriesOf(VOICEMAIL_EMAP) == 3);
// clang-format on

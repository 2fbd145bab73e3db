// The service-wide requests of the root, grouped by the class token that precedes the method's.
#pragma once

#include <iterator>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/MethodRow.h"

// clang-format off
namespace RootMethod {
using namespace ZERow;
inline constexpr ZEMethod Start                          = {&ROOT_CLASS, "Start",                          "1986", Service, Reply,  {Flag(ZEKey::Wait), Text(ZEKey::WrapperVersion), Text(ZEKey::UiVersion)}, {Token(ZEKey::Result, ZELTO_STARTRESULT_MAP)}};
inline constexpr ZEMethod Stop                           = {&ROOT_CLASS, "Stop",                           "1386", Service, Either, {Flag(ZEKey::Wait)}, {}};
inline constexpr ZEMethod GetLastFileError               = {&ROOT_CLASS, "GetLastFileError",               "1744", Service, Reply,  {}, {Token(ZEKey::FileError, ZELTO_FILEERROR_MAP), Text(ZEKey::FileName), Number(ZEKey::ErrorCode)}};
inline constexpr ZEMethod GetConnStatus                  = {&ROOT_CLASS, "GetConnStatus",                  "1675", Service, Reply,  {}, {Token(ZEKey::Result, ZELTO_CONNSTATUS_MAP)}};
inline constexpr ZEMethod GetRConnectionStatus           = {&ROOT_CLASS, "GetRConnectionStatus",           "1853", Service, Reply,  {}, {Token(ZEKey::Result, ZELTO_RCONNECTION_MAP)}};
inline constexpr ZEMethod StartRConnection               = {&ROOT_CLASS, "StartRConnection",               "2063", Service, Reply,  {Flag(ZEKey::Wait), Text(ZEKey::RConnectionText)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod StartRConnectionSnap           = {&ROOT_CLASS, "StartRConnectionSnap",           "1636", Service, Reply,  {Flag(ZEKey::Wait), Text(ZEKey::RConnectionSnap)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod StartRConnectionAlwaysAsk      = {&ROOT_CLASS, "StartRConnectionAlwaysAsk",      "1226", Service, Reply,  {Flag(ZEKey::Wait)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod StopRConnection                = {&ROOT_CLASS, "StopRConnection",                "1208", Service, Reply,  {}, {}};
inline constexpr ZEMethod GetRConnectionIAP              = {&ROOT_CLASS, "GetRConnectionIAP",              "1478", Service, Reply,  {}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod GetUsedPort                    = {&ROOT_CLASS, "GetUsedPort",                    "2065", Service, Reply,  {}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod GetDebugInfo                   = {&ROOT_CLASS, "GetDebugInfo",                   "1404", Service, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod Log                            = {&ROOT_CLASS, "Log",                            "1899", Service, OneWay, {Text(ZEKey::LogSource), Text(ZEKey::Text)}, {}};
inline constexpr ZEMethod GetTotalOnlineUserCount        = {&ROOT_CLASS, "GetTotalOnlineUserCount",        "1872", Service, Reply,  {}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod Ping                           = {&ROOT_CLASS, "Ping",                           "1594", Service, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod DeclareClientProp              = {&ROOT_CLASS, "DeclareClientProp",              "1733", Service, OneWay, {Token(ZEKey::Property, ZELTO_CLIENTPROP_MAP), Text(ZEKey::Value)}, {}};
inline constexpr ZEMethod GetIntClientProp               = {&ROOT_CLASS, "GetIntClientProp",               "1248", Service, Reply,  {Token(ZEKey::Property, ZELTO_CLIENTPROP_MAP)}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod GetLibStatus                   = {&ROOT_CLASS, "GetLibStatus",                   "1450", Service, Reply,  {}, {Token(ZEKey::Result, ZELTO_LIBSTATUS_MAP)}};
inline constexpr ZEMethod GetDefaultDBPath               = {&ROOT_CLASS, "GetDefaultDBPath",               "1282", Service, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetFatalErrorMessage           = {&ROOT_CLASS, "GetFatalErrorMessage",           "1917", Service, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetISOCountryNameDict          = {&ROOT_CLASS, "GetISOCountryNameDict",          "1268", Service, Reply,  {Text(ZEKey::Language)}, {}};
inline constexpr ZEMethod GetISOLanguageNameDict         = {&ROOT_CLASS, "GetISOLanguageNameDict",         "1286", Service, Reply,  {Text(ZEKey::Language)}, {}};
inline constexpr ZEMethod GetISOCountryPrefixDict        = {&ROOT_CLASS, "GetISOCountryPrefixDict",        "1038", Service, Reply,  {}, {}};
inline constexpr ZEMethod GetISOCountryDialExampleDict   = {&ROOT_CLASS, "GetISOCountryDialExampleDict",   "1601", Service, Reply,  {}, {}};
inline constexpr ZEMethod GetISOCountryCodeList          = {&ROOT_CLASS, "GetISOCountryCodeList",          "1533", Service, Reply,  {}, {Texts(ZEKey::Result)}};
inline constexpr ZEMethod GetISOLanguageCodeList         = {&ROOT_CLASS, "GetISOLanguageCodeList",         "2000", Service, Reply,  {}, {Texts(ZEKey::Result)}};
inline constexpr ZEMethod IsISOCountryCode               = {&ROOT_CLASS, "IsISOCountryCode",               "1334", Service, Reply,  {Text(ZEKey::CountryCode)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetISOCountryName              = {&ROOT_CLASS, "GetISOCountryName",              "1666", Service, Reply,  {Text(ZEKey::CountryCode), Text(ZEKey::Language)}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetISOLanguageName             = {&ROOT_CLASS, "GetISOLanguageName",             "1778", Service, Reply,  {Text(ZEKey::LanguageCode), Text(ZEKey::Language)}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetISOCountryPrefix            = {&ROOT_CLASS, "GetISOCountryPrefix",            "1866", Service, Reply,  {Text(ZEKey::CountryCode)}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod GetISOCountryDialExample       = {&ROOT_CLASS, "GetISOCountryDialExample",       "1500", Service, Reply,  {Text(ZEKey::CountryCode)}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetISOCountryCodeByPrefix      = {&ROOT_CLASS, "GetISOCountryCodeByPrefix",      "2086", Service, Reply,  {Number(ZEKey::Prefix)}, {Texts(ZEKey::Result)}};
inline constexpr ZEMethod GetVersion                     = {&ROOT_CLASS, "GetVersion",                     "1195", Service, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetPlatform                    = {&ROOT_CLASS, "GetPlatform",                    "1030", Service, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetUnixTimestamp               = {&ROOT_CLASS, "GetUnixTimestamp",               "1935", Service, Reply,  {}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod GetUpgradeInfo                 = {&ROOT_CLASS, "GetUpgradeInfo",                 "1079", Service, Reply,  {}, {Token(ZEKey::Availability, ZELTO_UPGRADEAVAILABILITY_MAP), Text(ZEKey::Version)}};

inline constexpr ZEMethod GetExistingAccounts            = {&ACCOUNT_CLASS, "GetExistingAccounts",            "1836", Service, Reply,  {}, {Texts(ZEKey::Result)}};
inline constexpr ZEMethod GetDefaultAccount              = {&ACCOUNT_CLASS, "GetDefaultAccount",              "1037", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetAccount                     = {&ACCOUNT_CLASS, "GetAccount",                     "1825", Service, Reply,  {Text(ZEKey::Identity)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetFreeBytesLeft               = {&ACCOUNT_CLASS, "GetFreeBytesLeft",               "1701", Service, Reply,  {Token(ZEKey::MatchedProperty, ACCOUNT_PROPERTY_MAP), Text(ZEKey::Value)}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod IsValidEmail                   = {&ACCOUNT_CLASS, "IsValidEmail",                   "1035", Service, Reply,  {Text(ZEKey::Email)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetSuggestedZeltoname          = {&ACCOUNT_CLASS, "GetSuggestedZeltoname",          "1920", Service, Reply,  {Text(ZEKey::BaseName)}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod ValidatePassword               = {&ACCOUNT_CLASS, "ValidatePassword",               "1347", Service, Reply,  {Text(ZEKey::UserName), Text(ZEKey::Password)}, {Token(ZEKey::Result, ACCOUNT_VALIDATERESULT_MAP)}};

inline constexpr ZEMethod GetContact                     = {&CONTACT_CLASS, "GetContact",                     "1726", Service, Reply,  {Text(ZEKey::Identity)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod FindContactBySpeedDial         = {&CONTACT_CLASS, "FindContactBySpeedDial",         "1314", Service, Reply,  {Text(ZEKey::SpeedDial)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod FindContactByPstnNumber        = {&CONTACT_CLASS, "FindContactByPstnNumber",        "1088", Service, Reply,  {Text(ZEKey::PhoneNumber)}, {ObjectId(ZEKey::Result), Token(ZEKey::MatchedProperty, CONTACT_PROPERTY_MAP)}};
inline constexpr ZEMethod NormalizeIdentity              = {&CONTACT_CLASS, "NormalizeIdentity",              "1848", Service, Reply,  {Text(ZEKey::Identity), Flag(ZEKey::NewAccount)}, {Token(ZEKey::Result, CONTACT_NORMALIZERESULT_MAP), Text(ZEKey::NormalizedIdentity)}};
inline constexpr ZEMethod GetTypeByIdentity              = {&CONTACT_CLASS, "GetTypeByIdentity",              "1479", Service, Reply,  {Text(ZEKey::Identity)}, {Token(ZEKey::Result, CONTACT_TYPE_MAP)}};

inline constexpr ZEMethod GetStr                         = {&SETUP_CLASS, "GetStr",                         "1420", Service, Reply,  {Text(ZEKey::SettingKey)}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetInt                         = {&SETUP_CLASS, "GetInt",                         "1401", Service, Reply,  {Text(ZEKey::SettingKey)}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod SetStr                         = {&SETUP_CLASS, "SetStr",                         "1953", Service, OneWay, {Text(ZEKey::SettingKey), Text(ZEKey::Value)}, {}};
inline constexpr ZEMethod SetInt                         = {&SETUP_CLASS, "SetInt",                         "1549", Service, OneWay, {Text(ZEKey::SettingKey), Number(ZEKey::Value)}, {}};
inline constexpr ZEMethod IsDefined                      = {&SETUP_CLASS, "IsDefined",                      "1938", Service, Reply,  {Text(ZEKey::SettingKey)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Delete                         = {&SETUP_CLASS, "Delete",                         "1189", Service, OneWay, {Text(ZEKey::SettingKey)}, {}};
inline constexpr ZEMethod GetSubKeys                     = {&SETUP_CLASS, "GetSubKeys",                     "2068", Service, Reply,  {Text(ZEKey::SettingKey)}, {Texts(ZEKey::Result)}};

inline constexpr ZEMethod PlayStart                      = {&AUDIO_CLASS, "PlayStart",                      "1749", Service, Reply,  {Number(ZEKey::SoundId), Binary(ZEKey::Sound), Flag(ZEKey::Loop), Flag(ZEKey::SoundFlag)}, {Token(ZEKey::Result, ZELTO_PLAYRESULT_MAP)}};
inline constexpr ZEMethod PlayStop                       = {&AUDIO_CLASS, "PlayStop",                       "1263", Service, OneWay, {Number(ZEKey::SoundId)}, {}};
inline constexpr ZEMethod StartRecordingTest             = {&AUDIO_CLASS, "StartRecordingTest",             "1626", Service, OneWay, {}, {}};
inline constexpr ZEMethod StopRecordingTest              = {&AUDIO_CLASS, "StopRecordingTest",              "1315", Service, OneWay, {}, {}};
inline constexpr ZEMethod PlayDTMF                       = {&AUDIO_CLASS, "PlayDTMF",                       "1898", Service, OneWay, {Token(ZEKey::Dtmf, CALLMEMBER_DTMF_MAP)}, {}};
inline constexpr ZEMethod GetAvailableOutputDevices      = {&AUDIO_CLASS, "GetAvailableOutputDevices",      "1411", Service, Reply,  {}, {Flag(ZEKey::Result), Texts(ZEKey::DeviceIds), Texts(ZEKey::DeviceNames), Texts(ZEKey::DeviceTexts)}};
inline constexpr ZEMethod GetAvailableRecordingDevices   = {&AUDIO_CLASS, "GetAvailableRecordingDevices",   "1010", Service, Reply,  {}, {Flag(ZEKey::Result), Texts(ZEKey::DeviceIds), Texts(ZEKey::DeviceNames)}};
inline constexpr ZEMethod SelectSoundDevices             = {&AUDIO_CLASS, "SelectSoundDevices",             "1544", Service, Reply,  {Text(ZEKey::OutputDevice), Text(ZEKey::InputDevice), Text(ZEKey::RingDevice)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetNrgLevels                   = {&AUDIO_CLASS, "GetNrgLevels",                   "1094", Service, Reply,  {}, {Number(ZEKey::MicLevel), Number(ZEKey::PlaybackLevel)}};
inline constexpr ZEMethod GetSpeakerVolume               = {&AUDIO_CLASS, "GetSpeakerVolume",               "1275", Service, Reply,  {}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod SetSpeakerVolume               = {&AUDIO_CLASS, "SetSpeakerVolume",               "2016", Service, OneWay, {Number(ZEKey::Volume)}, {}};
inline constexpr ZEMethod GetMicVolume                   = {&AUDIO_CLASS, "GetMicVolume",                   "1921", Service, Reply,  {}, {Number(ZEKey::Result)}};
inline constexpr ZEMethod SetMicVolume                   = {&AUDIO_CLASS, "SetMicVolume",                   "1181", Service, OneWay, {Number(ZEKey::Volume)}, {}};
inline constexpr ZEMethod VoiceCommand                   = {&AUDIO_CLASS, "VoiceCommand",                   "1191", Service, Either, {Text(ZEKey::Command)}, {Text(ZEKey::Result)}};

inline constexpr ZEMethod CreateApp2App                  = {&APP2APP_CLASS, "CreateApp2App",                  "1299", Service, Reply,  {Text(ZEKey::App2AppName)}, {Flag(ZEKey::Result)}};

inline constexpr ZEMethod GetHardwiredContactGroup       = {&CONTACTGROUP_CLASS, "GetHardwiredContactGroup",       "1538", Service, Reply,  {Token(ZEKey::Type, CONTACTGROUP_TYPE_MAP)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetCustomContactGroups         = {&CONTACTGROUP_CLASS, "GetCustomContactGroups",         "1925", Service, Reply,  {}, {Objects(ZEKey::Objects)}};
inline constexpr ZEMethod CreateCustomContactGroup       = {&CONTACTGROUP_CLASS, "CreateCustomContactGroup",       "1360", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};

inline constexpr ZEMethod CreateCall                     = {&CALL_CLASS, "CreateCall",                     "1941", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod JoinExistingCall               = {&CALL_CLASS, "JoinExistingCall",               "2106", Service, Reply,  {Text(ZEKey::JoinBlob), Text(ZEKey::AccessToken)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetCall                        = {&CALL_CLASS, "GetCall",                        "1537", Service, Reply,  {Text(ZEKey::CallGuid)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetUnseenMissedCalls           = {&CALL_CLASS, "GetUnseenMissedCalls",           "1523", Service, Reply,  {}, {Objects(ZEKey::Result)}};
inline constexpr ZEMethod GetHistoricalCalls             = {&CALL_CLASS, "GetHistoricalCalls",             "1186", Service, Reply,  {}, {Objects(ZEKey::Result)}};
inline constexpr ZEMethod ClearCallHistory               = {&CALL_CLASS, "ClearCallHistory",               "1603", Service, OneWay, {Token(ZEKey::Type, CALL_CLEARCALLHISTORYTYPE_MAP), Text(ZEKey::HistoryIdentity)}, {}};

inline constexpr ZEMethod GetPreviewVideo                = {&VIDEO_CLASS, "GetPreviewVideo",                "1740", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod DisplayVideoDeviceTuningDialog = {&VIDEO_CLASS, "DisplayVideoDeviceTuningDialog", "1580", Service, OneWay, {}, {}};
inline constexpr ZEMethod GetVideoDeviceCapabilities     = {&VIDEO_CLASS, "GetVideoDeviceCapabilities",     "1597", Service, Reply,  {Text(ZEKey::DeviceName), Text(ZEKey::DevicePath)}, {Flag(ZEKey::Result), Text(ZEKey::Capabilities)}};
inline constexpr ZEMethod GetAvailableVideoDevices       = {&VIDEO_CLASS, "GetAvailableVideoDevices",       "1070", Service, Reply,  {}, {Flag(ZEKey::Result), Texts(ZEKey::VideoDevices)}};
inline constexpr ZEMethod VideoCommand                   = {&VIDEO_CLASS, "VideoCommand",                   "2042", Service, Either, {Text(ZEKey::Command)}, {Text(ZEKey::Result)}};

inline constexpr ZEMethod StartTransfer                  = {&TRANSFER_CLASS, "StartTransfer",                  "1006", Service, Reply,  {Text(ZEKey::Partner), Text(ZEKey::Path)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetActiveTransfers             = {&TRANSFER_CLASS, "GetActiveTransfers",             "1759", Service, Reply,  {}, {Objects(ZEKey::Result)}};

inline constexpr ZEMethod GetGreeting                    = {&VOICEMAIL_CLASS, "GetGreeting",                    "1947", Service, Reply,  {Text(ZEKey::Partner)}, {ObjectId(ZEKey::Result)}};

inline constexpr ZEMethod CreateConfirmationRequestSms   = {&SMS_CLASS, "CreateConfirmationRequestSms",   "2099", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod CreateConfirmationSubmitSms    = {&SMS_CLASS, "CreateConfirmationSubmitSms",    "1891", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod CreateOutgoingSms              = {&SMS_CLASS, "CreateOutgoingSms",              "1556", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetValidatedSmsNumbers         = {&SMS_CLASS, "GetValidatedSmsNumbers",         "1376", Service, Reply,  {}, {Texts(ZEKey::ValidatedNumbers)}};
inline constexpr ZEMethod GetLastConfirmationNumber      = {&SMS_CLASS, "GetLastConfirmationNumber",      "1069", Service, Reply,  {}, {Text(ZEKey::Result)}};

inline constexpr ZEMethod CreateChat                     = {&CHAT_CLASS, "CreateChat",                     "1076", Service, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetChat                        = {&CHAT_CLASS, "GetChat",                        "1874", Service, Reply,  {Text(ZEKey::ChatName)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod OpenChatTo                     = {&CHAT_CLASS, "OpenChatTo",                     "1739", Service, Reply,  {Text(ZEKey::Partner)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetPublicChat                  = {&CHAT_CLASS, "GetPublicChat",                  "1548", Service, Reply,  {Text(ZEKey::ChatBlob)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod DeleteAllMessages              = {&CHAT_CLASS, "DeleteAllMessages",              "1045", Service, OneWay, {}, {}};
inline constexpr ZEMethod GetRecentChats                 = {&CHAT_CLASS, "GetRecentChats",                 "1942", Service, Reply,  {}, {Objects(ZEKey::Result)}};
inline constexpr ZEMethod GetUnreadChats                 = {&CHAT_CLASS, "GetUnreadChats",                 "1746", Service, Reply,  {}, {Objects(ZEKey::Result)}};
inline constexpr ZEMethod GetBookmarkedChats             = {&CHAT_CLASS, "GetBookmarkedChats",             "1789", Service, Reply,  {}, {Objects(ZEKey::Result)}};
inline constexpr ZEMethod GetChatMemberCountLimit        = {&CHAT_CLASS, "GetChatMemberCountLimit",        "1160", Service, Reply,  {}, {Number(ZEKey::Result)}};

inline constexpr ZEMethod SearchObjects                  = {&SEARCH_CLASS, "SearchObjects",                  "1864", Service, Reply,  {Token(ZEKey::Target, SEARCH_TARGET_MAP), Number(ZEKey::Limit)}, {ObjectId(ZEKey::Result)}};

inline constexpr ZEMethod NewSearch                      = {&CONTACTSEARCH_CLASS, "NewSearch",                      "1183", Service, Reply,  {Flag(ZEKey::SearchFlag), Number(ZEKey::ResultLimit)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod NewBasicSearch                 = {&CONTACTSEARCH_CLASS, "NewBasicSearch",                 "1303", Service, Reply,  {Text(ZEKey::Text), Flag(ZEKey::SearchFlag), Number(ZEKey::ResultLimit)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod NewIdentitySearch              = {&CONTACTSEARCH_CLASS, "NewIdentitySearch",              "2059", Service, Reply,  {Text(ZEKey::Identity), Flag(ZEKey::SearchFlag), Number(ZEKey::ResultLimit)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetOptimalAgeRanges            = {&CONTACTSEARCH_CLASS, "GetOptimalAgeRanges",            "1843", Service, Reply,  {}, {Texts(ZEKey::Result)}};

inline constexpr ZEMethod IssuePriceQuote                = {&PRICEQUOTE_CLASS, "IssuePriceQuote",                "1914", Service, Reply,  {Text(ZEKey::QuoteSubject), Token(ZEKey::Type, PRICEQUOTE_TYPE_MAP), Text(ZEKey::QuoteDetail1), Text(ZEKey::QuoteDetail2), Text(ZEKey::QuoteDetail3), Text(ZEKey::QuoteDetail4), Text(ZEKey::QuoteDetail5)}, {ObjectId(ZEKey::Result)}};
}  // namespace RootMethod

inline constexpr const ZEMethod* ROOT_METHODS[] = {
    &RootMethod::Start, &RootMethod::Stop, &RootMethod::GetLastFileError, &RootMethod::GetConnStatus,
    &RootMethod::GetRConnectionStatus, &RootMethod::StartRConnection, &RootMethod::StartRConnectionSnap,
    &RootMethod::StartRConnectionAlwaysAsk, &RootMethod::StopRConnection, &RootMethod::GetRConnectionIAP,
    &RootMethod::GetUsedPort, &RootMethod::GetDebugInfo, &RootMethod::Log,
    &RootMethod::GetTotalOnlineUserCount, &RootMethod::Ping, &RootMethod::DeclareClientProp,
    &RootMethod::GetIntClientProp, &RootMethod::GetLibStatus, &RootMethod::GetDefaultDBPath,
    &RootMethod::GetFatalErrorMessage, &RootMethod::GetISOCountryNameDict,
    &RootMethod::GetISOLanguageNameDict, &RootMethod::GetISOCountryPrefixDict,
    &RootMethod::GetISOCountryDialExampleDict, &RootMethod::GetISOCountryCodeList,
    &RootMethod::GetISOLanguageCodeList, &RootMethod::IsISOCountryCode, &RootMethod::GetISOCountryName,
    &RootMethod::GetISOLanguageName, &RootMethod::GetISOCountryPrefix, &RootMethod::GetISOCountryDialExample,
    &RootMethod::GetISOCountryCodeByPrefix, &RootMethod::GetVersion, &RootMethod::GetPlatform,
    &RootMethod::GetUnixTimestamp, &RootMethod::GetUpgradeInfo, &RootMethod::GetExistingAccounts,
    &RootMethod::GetDefaultAccount, &RootMethod::GetAccount, &RootMethod::GetFreeBytesLeft,
    &RootMethod::IsValidEmail, &RootMethod::GetSuggestedZeltoname, &RootMethod::ValidatePassword,
    &RootMethod::GetContact, &RootMethod::FindContactBySpeedDial, &RootMethod::FindContactByPstnNumber,
    &RootMethod::NormalizeIdentity, &RootMethod::GetTypeByIdentity, &RootMethod::GetStr, &RootMethod::GetInt,
    &RootMethod::SetStr, &RootMethod::SetInt, &RootMethod::IsDefined, &RootMethod::Delete,
    &RootMethod::GetSubKeys, &RootMethod::PlayStart, &RootMethod::PlayStop, &RootMethod::StartRecordingTest,
    &RootMethod::StopRecordingTest, &RootMethod::PlayDTMF, &RootMethod::GetAvailableOutputDevices,
    &RootMethod::GetAvailableRecordingDevices, &RootMethod::SelectSoundDevices, &RootMethod::GetNrgLevels,
    &RootMethod::GetSpeakerVolume, &RootMethod::SetSpeakerVolume, &RootMethod::GetMicVolume,
    &RootMethod::SetMicVolume, &RootMethod::VoiceCommand, &RootMethod::CreateApp2App,
    &RootMethod::GetHardwiredContactGroup, &RootMethod::GetCustomContactGroups,
    &RootMethod::CreateCustomContactGroup, &RootMethod::CreateCall, &RootMethod::JoinExistingCall,
    &RootMethod::GetCall, &RootMethod::GetUnseenMissedCalls, &RootMethod::GetHistoricalCalls,
    &RootMethod::ClearCallHistory, &RootMethod::GetPreviewVideo, &RootMethod::DisplayVideoDeviceTuningDialog,
    &RootMethod::GetVideoDeviceCapabilities, &RootMethod::GetAvailableVideoDevices, &RootMethod::VideoCommand,
    &RootMethod::StartTransfer, &RootMethod::GetActiveTransfers, &RootMethod::GetGreeting,
    &RootMethod::CreateConfirmationRequestSms, &RootMethod::CreateConfirmationSubmitSms,
    &RootMethod::CreateOutgoingSms, &RootMethod::GetValidatedSmsNumbers,
    &RootMethod::GetLastConfirmationNumber, &RootMethod::CreateChat, &RootMethod::GetChat,
    &RootMethod::OpenChatTo, &RootMethod::GetPublicChat, &RootMethod::DeleteAllMessages,
    &RootMethod::GetRecentChats, &RootMethod::GetUnreadChats, &RootMethod::GetBookmarkedChats,
    &RootMethod::GetChatMemberCountLimit, &RootMethod::SearchObjects, &RootMethod::NewSearch,
    &RootMethod::NewBasicSearch, &RootMethod::NewIdentitySearch, &RootMethod::GetOptimalAgeRanges,
    &RootMethod::IssuePriceQuote,
};
static_assert(std::size(ROOT_METHODS) == 107);
// clang-format on

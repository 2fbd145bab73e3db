// The methods of every object class: token, arguments in the order of the C++ parameters, results. The main
// result comes first.
#pragma once

#include <iterator>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Keys.h"
#include "apiwrapper/tables/MethodRow.h"

// clang-format off
namespace AccountMethod {
using namespace ZERow;
inline constexpr ZEMethod Login                    = {&ACCOUNT_CLASS, "Login",                    "1252", Object, OneWay, {}, {}};
inline constexpr ZEMethod LoginWithPassword        = {&ACCOUNT_CLASS, "LoginWithPassword",        "1805", Object, OneWay, {Text(ZEKey::Password), Flag(ZEKey::SavePassword), Flag(ZEKey::LoginFlag)}, {}};
inline constexpr ZEMethod Register                 = {&ACCOUNT_CLASS, "Register",                 "1703", Object, OneWay, {Text(ZEKey::Password), Flag(ZEKey::SavePassword), Text(ZEKey::Email), Flag(ZEKey::AllowOffers)}, {}};
inline constexpr ZEMethod SubmitUICRequestResponse = {&ACCOUNT_CLASS, "SubmitUICRequestResponse", "1354", Object, OneWay, {Binary(ZEKey::Blob)}, {}};
inline constexpr ZEMethod Logout                   = {&ACCOUNT_CLASS, "Logout",                   "1911", Object, OneWay, {Flag(ZEKey::Flag)}, {}};
inline constexpr ZEMethod ChangePassword           = {&ACCOUNT_CLASS, "ChangePassword",           "1388", Object, OneWay, {Text(ZEKey::OldPassword), Text(ZEKey::NewPassword), Flag(ZEKey::SavePassword)}, {}};
inline constexpr ZEMethod CancelServerCommit       = {&ACCOUNT_CLASS, "CancelServerCommit",       "2062", Object, OneWay, {}, {}};
inline constexpr ZEMethod SetAvailability          = {&ACCOUNT_CLASS, "SetAvailability",          "1109", Object, OneWay, {Token(ZEKey::Availability, ACCOUNT_AVAILABILITY_MAP)}, {}};
inline constexpr ZEMethod GetZeltonameHash         = {&ACCOUNT_CLASS, "GetZeltonameHash",         "1313", Object, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod GetCapabilityStatus      = {&ACCOUNT_CLASS, "GetCapabilityStatus",      "1061", Object, Reply,  {Token(ZEKey::Capability, CONTACT_CAPABILITY_MAP)}, {Token(ZEKey::Result, ACCOUNT_CAPABILITYSTATUS_MAP), Number(ZEKey::Expiry)}};
inline constexpr ZEMethod GetContact               = {&ACCOUNT_CLASS, "GetContact",               "1665", Object, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod SetProps                 = {&ACCOUNT_CLASS, "SetProps",                 "2032", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetServersideProps       = {&ACCOUNT_CLASS, "SetServersideProps",       "1117", Object, OneWay, {}, {}};
inline constexpr ZEMethod CreateSignedToken        = {&ACCOUNT_CLASS, "CreateSignedToken",        "1402", Object, Reply,  {Text(ZEKey::Target)}, {Text(ZEKey::Result)}};
}  // namespace AccountMethod

namespace AlertMethod {
using namespace ZERow;
inline constexpr ZEMethod MarkSeen = {&ALERT_CLASS, "MarkSeen", "1611", Object, OneWay, {}, {}};
inline constexpr ZEMethod Delete   = {&ALERT_CLASS, "Delete",   "1189", Object, OneWay, {}, {}};
}  // namespace AlertMethod

namespace App2AppMethod {
using namespace ZERow;
inline constexpr ZEMethod Delete     = {&APP2APP_CLASS, "Delete",     "1189", Service, Reply,  {Text(ZEKey::App2AppName)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Connect    = {&APP2APP_CLASS, "Connect",    "1785", Service, Reply,  {Text(ZEKey::App2AppName), Text(ZEKey::ConnectTo)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Disconnect = {&APP2APP_CLASS, "Disconnect", "1036", Service, Reply,  {Text(ZEKey::App2AppName), Text(ZEKey::Stream)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Write      = {&APP2APP_CLASS, "Write",      "1378", Service, Reply,  {Text(ZEKey::App2AppName), Text(ZEKey::Stream), Binary(ZEKey::Data)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Datagram   = {&APP2APP_CLASS, "Datagram",   "1289", Service, Reply,  {Text(ZEKey::App2AppName), Text(ZEKey::Stream), Binary(ZEKey::Data)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Read       = {&APP2APP_CLASS, "Read",       "2088", Service, Reply,  {Text(ZEKey::App2AppName), Text(ZEKey::Stream)}, {Flag(ZEKey::Result), Binary(ZEKey::Data)}};
}  // namespace App2AppMethod

namespace CallMethod {
using namespace ZERow;
inline constexpr ZEMethod Mute            = {&CALL_CLASS, "Mute",            "1860", Object, OneWay, {Flag(ZEKey::Mute)}, {}};
inline constexpr ZEMethod SetTopic        = {&CALL_CLASS, "SetTopic",        "1114", Object, OneWay, {Text(ZEKey::Topic)}, {}};
inline constexpr ZEMethod SetAccessToken  = {&CALL_CLASS, "SetAccessToken",  "1325", Object, OneWay, {Text(ZEKey::AccessToken)}, {}};
inline constexpr ZEMethod Ring            = {&CALL_CLASS, "Ring",            "1033", Object, Reply,  {Text(ZEKey::Identity), Flag(ZEKey::Video)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod LeaveVoicemail  = {&CALL_CLASS, "LeaveVoicemail",  "1930", Object, Reply,  {Text(ZEKey::Identity)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Assimilate      = {&CALL_CLASS, "Assimilate",      "2027", Object, Reply,  {ObjectId(ZEKey::OtherCall)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod RequestMike     = {&CALL_CLASS, "RequestMike",     "1713", Object, OneWay, {Flag(ZEKey::MikeRequested)}, {}};
inline constexpr ZEMethod GrantMike       = {&CALL_CLASS, "GrantMike",       "1349", Object, OneWay, {Flag(ZEKey::MikeGranted)}, {}};
inline constexpr ZEMethod GetMembers      = {&CALL_CLASS, "GetMembers",      "1345", Object, Reply,  {}, {Objects(ZEKey::Result)}};
inline constexpr ZEMethod Delete          = {&CALL_CLASS, "Delete",          "1189", Object, OneWay, {}, {}};
inline constexpr ZEMethod End             = {&CALL_CLASS, "End",             "1163", Object, OneWay, {Token(ZEKey::EndAction, CALLMEMBER_ENDACTION_MAP)}, {}};
inline constexpr ZEMethod Hold            = {&CALL_CLASS, "Hold",            "1176", Object, OneWay, {Flag(ZEKey::Hold)}, {}};
inline constexpr ZEMethod CanHold         = {&CALL_CLASS, "CanHold",         "1312", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod CanResume       = {&CALL_CLASS, "CanResume",       "1542", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod MarkSeen        = {&CALL_CLASS, "MarkSeen",        "1611", Object, OneWay, {}, {}};
inline constexpr ZEMethod MarkUnseen      = {&CALL_CLASS, "MarkUnseen",      "1800", Object, OneWay, {}, {}};
inline constexpr ZEMethod PlayAndSendDTMF = {&CALL_CLASS, "PlayAndSendDTMF", "1574", Object, OneWay, {Token(ZEKey::Dtmf, CALLMEMBER_DTMF_MAP)}, {}};
}  // namespace CallMethod

namespace CallMemberMethod {
using namespace ZERow;
inline constexpr ZEMethod Answer                = {&CALLMEMBER_CLASS, "Answer",                "1615", Object, OneWay, {}, {}};
inline constexpr ZEMethod Hold                  = {&CALLMEMBER_CLASS, "Hold",                  "1176", Object, OneWay, {Flag(ZEKey::Hold)}, {}};
inline constexpr ZEMethod GrantMike             = {&CALLMEMBER_CLASS, "GrantMike",             "1349", Object, OneWay, {Flag(ZEKey::MikeGranted)}, {}};
inline constexpr ZEMethod SkipVoicemailGreeting = {&CALLMEMBER_CLASS, "SkipVoicemailGreeting", "1054", Object, OneWay, {}, {}};
inline constexpr ZEMethod SetVoicemailOrigin    = {&CALLMEMBER_CLASS, "SetVoicemailOrigin",    "1072", Object, Reply,  {Text(ZEKey::Identity)}, {}};
inline constexpr ZEMethod End                   = {&CALLMEMBER_CLASS, "End",                   "1163", Object, OneWay, {Token(ZEKey::EndAction, CALLMEMBER_ENDACTION_MAP)}, {}};
inline constexpr ZEMethod Transfer              = {&CALLMEMBER_CLASS, "Transfer",              "1936", Object, Reply,  {Text(ZEKey::TransferTarget), Text(ZEKey::Topic)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod CanTransfer           = {&CALLMEMBER_CLASS, "CanTransfer",           "2056", Object, Reply,  {Text(ZEKey::TransferIdentity)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetSendVideo          = {&CALLMEMBER_CLASS, "GetSendVideo",          "1513", Object, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod GetRecvVideo          = {&CALLMEMBER_CLASS, "GetRecvVideo",          "1781", Object, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod Redial                = {&CALLMEMBER_CLASS, "Redial",                "1406", Object, Reply,  {Flag(ZEKey::WithVideo), Text(ZEKey::RedialIdentity)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetMissed             = {&CALLMEMBER_CLASS, "SetMissed",             "1416", Object, OneWay, {}, {}};
}  // namespace CallMemberMethod

namespace ChatMethod {
using namespace ZERow;
inline constexpr ZEMethod GetJoinBlob         = {&CHAT_CLASS, "GetJoinBlob",         "1850", Object, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod Join                = {&CHAT_CLASS, "Join",                "1179", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetPassword         = {&CHAT_CLASS, "SetPassword",         "1686", Object, Reply,  {Text(ZEKey::Password), Text(ZEKey::Hint)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod EnterPassword       = {&CHAT_CLASS, "EnterPassword",       "1267", Object, Reply,  {Text(ZEKey::Password)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod AcceptAdd           = {&CHAT_CLASS, "AcceptAdd",           "1867", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod AddMembers          = {&CHAT_CLASS, "AddMembers",          "1466", Object, Reply,  {Texts(ZEKey::Members)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetPicture          = {&CHAT_CLASS, "SetPicture",          "1124", Object, Reply,  {Binary(ZEKey::Picture)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetPicture          = {&CHAT_CLASS, "GetPicture",          "1706", Object, Reply,  {}, {Binary(ZEKey::Result)}};
inline constexpr ZEMethod GetRecentMessages   = {&CHAT_CLASS, "GetRecentMessages",   "1673", Object, Reply,  {}, {Flag(ZEKey::Result), Objects(ZEKey::EarlierMessages), Objects(ZEKey::Objects)}};
inline constexpr ZEMethod ClearRecentMessages = {&CHAT_CLASS, "ClearRecentMessages", "2092", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetUnsentMessages   = {&CHAT_CLASS, "GetUnsentMessages",   "1451", Object, Reply,  {}, {Flag(ZEKey::Result), Objects(ZEKey::Objects)}};
inline constexpr ZEMethod SetOptions          = {&CHAT_CLASS, "SetOptions",          "1031", Object, Reply,  {Number(ZEKey::Options)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Say                 = {&CHAT_CLASS, "Say",                 "1718", Object, Reply,  {Text(ZEKey::Text), Flag(ZEKey::TextFlag)}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod SetTopic            = {&CHAT_CLASS, "SetTopic",            "1114", Object, Reply,  {Text(ZEKey::Topic), Flag(ZEKey::TextFlag)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetGuidelines       = {&CHAT_CLASS, "SetGuidelines",       "1486", Object, Reply,  {Text(ZEKey::Guidelines), Flag(ZEKey::TextFlag)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod KickMember          = {&CHAT_CLASS, "KickMember",          "2060", Object, Reply,  {Text(ZEKey::Partner), Text(ZEKey::Reason)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod PostContacts        = {&CHAT_CLASS, "PostContacts",        "1671", Object, Reply,  {Objects(ZEKey::Objects)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod PostFiles           = {&CHAT_CLASS, "PostFiles",           "1847", Object, Reply,  {Texts(ZEKey::Files), Text(ZEKey::Body)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod ReportMyActivities  = {&CHAT_CLASS, "ReportMyActivities",  "1444", Object, OneWay, {Token(ZEKey::Activity, CHATMEMBER_ACTIVITY_MAP)}, {}};
inline constexpr ZEMethod Leave               = {&CHAT_CLASS, "Leave",               "1288", Object, Reply,  {Token(ZEKey::LeaveReason, CHAT_LEAVEREASON_MAP)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Disband             = {&CHAT_CLASS, "Disband",             "1022", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetBookmark         = {&CHAT_CLASS, "SetBookmark",         "1009", Object, Reply,  {Flag(ZEKey::Bookmark)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetAlertString      = {&CHAT_CLASS, "SetAlertString",      "1571", Object, Reply,  {Text(ZEKey::AlertString)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Delete              = {&CHAT_CLASS, "Delete",              "1189", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetMembers          = {&CHAT_CLASS, "GetMembers",          "1345", Object, Reply,  {}, {Objects(ZEKey::Result)}};
}  // namespace ChatMethod

namespace ChatMemberMethod {
using namespace ZERow;
inline constexpr ZEMethod CanSetRoleTo = {&CHATMEMBER_CLASS, "CanSetRoleTo", "1429", Object, Reply,  {Token(ZEKey::Role, CHATMEMBER_ROLE_MAP)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetRoleTo    = {&CHATMEMBER_CLASS, "SetRoleTo",    "1526", Object, Reply,  {Token(ZEKey::Role, CHATMEMBER_ROLE_MAP)}, {Flag(ZEKey::Result)}};
}  // namespace ChatMemberMethod

namespace ChatMessageMethod {
using namespace ZERow;
inline constexpr ZEMethod IsEditable  = {&CHATMESSAGE_CLASS, "IsEditable",  "1596", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Edit        = {&CHATMESSAGE_CLASS, "Edit",        "1535", Object, Reply,  {Text(ZEKey::NewText), Flag(ZEKey::TextFlag)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod MarkRead    = {&CHATMESSAGE_CLASS, "MarkRead",    "1969", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetContacts = {&CHATMESSAGE_CLASS, "GetContacts", "1249", Object, Reply,  {}, {Flag(ZEKey::Result), Objects(ZEKey::Objects)}};
}  // namespace ChatMessageMethod

namespace ContactMethod {
using namespace ZERow;
inline constexpr ZEMethod IsMemberOf      = {&CONTACT_CLASS, "IsMemberOf",      "1649", Object, Reply,  {ObjectId(ZEKey::Group)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GiveAuthLevel   = {&CONTACT_CLASS, "GiveAuthLevel",   "1012", Object, Reply,  {Token(ZEKey::AuthLevel, CONTACT_AUTHLEVEL_MAP)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GiveDisplayName = {&CONTACT_CLASS, "GiveDisplayName", "1545", Object, Reply,  {Text(ZEKey::DisplayName)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod AssignSpeedDial = {&CONTACT_CLASS, "AssignSpeedDial", "1693", Object, Reply,  {Text(ZEKey::SpeedDial)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetBuddyStatus  = {&CONTACT_CLASS, "SetBuddyStatus",  "1421", Object, Reply,  {Flag(ZEKey::Buddy)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SendAuthRequest = {&CONTACT_CLASS, "SendAuthRequest", "1628", Object, Reply,  {Text(ZEKey::Message)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod HasCapability   = {&CONTACT_CLASS, "HasCapability",   "1882", Object, Reply,  {Token(ZEKey::Capability, CONTACT_CAPABILITY_MAP), Flag(ZEKey::CapabilityFlag)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod RefreshProfile  = {&CONTACT_CLASS, "RefreshProfile",  "1983", Object, OneWay, {}, {}};
inline constexpr ZEMethod HasAuthorizedMe = {&CONTACT_CLASS, "HasAuthorizedMe", "2091", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetAvatar       = {&CONTACT_CLASS, "GetAvatar",       "2078", Object, Reply,  {}, {Binary(ZEKey::Result)}};
inline constexpr ZEMethod SetPhoneNumber  = {&CONTACT_CLASS, "SetPhoneNumber",  "1811", Object, Reply,  {Number(ZEKey::Slot), Text(ZEKey::Label), Text(ZEKey::Number)}, {Flag(ZEKey::Result)}};
}  // namespace ContactMethod

namespace ContactGroupMethod {
using namespace ZERow;
inline constexpr ZEMethod GetContacts      = {&CONTACTGROUP_CLASS, "GetContacts",      "1249", Object, Reply,  {}, {Objects(ZEKey::Objects)}};
inline constexpr ZEMethod GiveDisplayName  = {&CONTACTGROUP_CLASS, "GiveDisplayName",  "1545", Object, Reply,  {Text(ZEKey::DisplayName)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod CanAddContact    = {&CONTACTGROUP_CLASS, "CanAddContact",    "1967", Object, Reply,  {ObjectId(ZEKey::Contact)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod AddContact       = {&CONTACTGROUP_CLASS, "AddContact",       "1308", Object, Reply,  {ObjectId(ZEKey::Contact)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod CanRemoveContact = {&CONTACTGROUP_CLASS, "CanRemoveContact", "1559", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod RemoveContact    = {&CONTACTGROUP_CLASS, "RemoveContact",    "1972", Object, Reply,  {ObjectId(ZEKey::Contact)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Delete           = {&CONTACTGROUP_CLASS, "Delete",           "1189", Object, Reply,  {Flag(ZEKey::DeleteFlag)}, {Flag(ZEKey::Result)}};
}  // namespace ContactGroupMethod

namespace ContactSearchMethod {
using namespace ZERow;
inline constexpr ZEMethod Extend     = {&CONTACTSEARCH_CLASS, "Extend",     "1276", Object, OneWay, {}, {}};
inline constexpr ZEMethod Release    = {&CONTACTSEARCH_CLASS, "Release",    "2005", Object, OneWay, {}, {}};
inline constexpr ZEMethod GetResults = {&CONTACTSEARCH_CLASS, "GetResults", "2077", Object, Reply,  {Number(ZEKey::From), Number(ZEKey::Limit)}, {Flag(ZEKey::Result), Objects(ZEKey::Objects)}};
}  // namespace ContactSearchMethod

namespace PriceQuoteMethod {
using namespace ZERow;
inline constexpr ZEMethod GetReferredObject = {&PRICEQUOTE_CLASS, "GetReferredObject", "2041", Object, Reply,  {}, {ObjectId(ZEKey::Result)}};
inline constexpr ZEMethod Accept            = {&PRICEQUOTE_CLASS, "Accept",            "1539", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Reject            = {&PRICEQUOTE_CLASS, "Reject",            "1904", Object, Reply,  {}, {Flag(ZEKey::Result)}};
}  // namespace PriceQuoteMethod

namespace SearchMethod {
using namespace ZERow;
inline constexpr ZEMethod Extend     = {&SEARCH_CLASS, "Extend",     "1276", Object, OneWay, {}, {}};
inline constexpr ZEMethod Release    = {&SEARCH_CLASS, "Release",    "2005", Object, OneWay, {}, {}};
inline constexpr ZEMethod GetResults = {&SEARCH_CLASS, "GetResults", "2077", Object, Reply,  {Number(ZEKey::From), Number(ZEKey::Limit)}, {Flag(ZEKey::Result), Objects(ZEKey::Objects)}};
}  // namespace SearchMethod

namespace SmsMethod {
using namespace ZERow;
inline constexpr ZEMethod GetTargetStatus     = {&SMS_CLASS, "GetTargetStatus",     "1218", Object, Reply,  {Text(ZEKey::Target)}, {Token(ZEKey::Result, SMS_TARGETSTATUS_MAP)}};
inline constexpr ZEMethod SetReplyTo          = {&SMS_CLASS, "SetReplyTo",          "1774", Object, Reply,  {Text(ZEKey::Number)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetTargets          = {&SMS_CLASS, "SetTargets",          "1871", Object, Reply,  {Texts(ZEKey::Targets)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod SetBody             = {&SMS_CLASS, "SetBody",             "1964", Object, Reply,  {Text(ZEKey::Text)}, {Token(ZEKey::Result, SMS_SETBODYRESULT_MAP), Texts(ZEKey::Chunks), Number(ZEKey::CharactersLeft)}};
inline constexpr ZEMethod GetBodyChunks       = {&SMS_CLASS, "GetBodyChunks",       "1976", Object, Reply,  {}, {Flag(ZEKey::Result), Texts(ZEKey::Chunks), Number(ZEKey::CharactersLeft)}};
inline constexpr ZEMethod Send                = {&SMS_CLASS, "Send",                "1870", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod MarkSeen            = {&SMS_CLASS, "MarkSeen",            "1871", Object, OneWay, {}, {}};
inline constexpr ZEMethod Delete              = {&SMS_CLASS, "Delete",              "1189", Object, OneWay, {}, {}};
inline constexpr ZEMethod SetConfirmationType = {&SMS_CLASS, "SetConfirmationType", "1439", Object, OneWay, {Token(ZEKey::Type, SMS_CONFIRM_TYPE_MAP)}, {}};
}  // namespace SmsMethod

namespace TransferMethod {
using namespace ZERow;
inline constexpr ZEMethod Accept = {&TRANSFER_CLASS, "Accept", "1539", Object, Reply,  {Text(ZEKey::Path)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Pause  = {&TRANSFER_CLASS, "Pause",  "1758", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Resume = {&TRANSFER_CLASS, "Resume", "1694", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Cancel = {&TRANSFER_CLASS, "Cancel", "1222", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod Delete = {&TRANSFER_CLASS, "Delete", "1189", Object, Reply,  {}, {Flag(ZEKey::Result)}};
}  // namespace TransferMethod

namespace VideoMethod {
using namespace ZERow;
inline constexpr ZEMethod SetScreen    = {&VIDEO_CLASS, "SetScreen",    "1353", Object, OneWay, {Number(ZEKey::Window), Text(ZEKey::Geometry)}, {}};
inline constexpr ZEMethod Start        = {&VIDEO_CLASS, "Start",        "1761", Object, OneWay, {}, {}};
inline constexpr ZEMethod Stop         = {&VIDEO_CLASS, "Stop",         "1386", Object, OneWay, {}, {}};
inline constexpr ZEMethod CaptureImage = {&VIDEO_CLASS, "CaptureImage", "1564", Object, Reply,  {}, {Flag(ZEKey::Result), Binary(ZEKey::Image), Number(ZEKey::Width), Number(ZEKey::Height)}};
}  // namespace VideoMethod

namespace VoicemailMethod {
using namespace ZERow;
inline constexpr ZEMethod StartRecording    = {&VOICEMAIL_CLASS, "StartRecording",    "1091", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod StopRecording     = {&VOICEMAIL_CLASS, "StopRecording",     "1528", Object, OneWay, {}, {}};
inline constexpr ZEMethod StartPlayback     = {&VOICEMAIL_CLASS, "StartPlayback",     "1235", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod StopPlayback      = {&VOICEMAIL_CLASS, "StopPlayback",      "1455", Object, OneWay, {}, {}};
inline constexpr ZEMethod Delete            = {&VOICEMAIL_CLASS, "Delete",            "1189", Object, OneWay, {}, {}};
inline constexpr ZEMethod Cancel            = {&VOICEMAIL_CLASS, "Cancel",            "1222", Object, OneWay, {}, {}};
inline constexpr ZEMethod ForwardToContacts = {&VOICEMAIL_CLASS, "ForwardToContacts", "1747", Object, Reply,  {Objects(ZEKey::Objects)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod ForwardToGroups   = {&VOICEMAIL_CLASS, "ForwardToGroups",   "1172", Object, Reply,  {Objects(ZEKey::Objects)}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod GetEventId        = {&VOICEMAIL_CLASS, "GetEventId",        "1861", Object, Reply,  {}, {Text(ZEKey::Result)}};
inline constexpr ZEMethod SetOrigin         = {&VOICEMAIL_CLASS, "SetOrigin",         "1377", Object, OneWay, {Text(ZEKey::Origin)}, {}};
inline constexpr ZEMethod MarkSeen          = {&VOICEMAIL_CLASS, "MarkSeen",          "1611", Object, Reply,  {}, {Flag(ZEKey::Result)}};
inline constexpr ZEMethod CheckPermission   = {&VOICEMAIL_CLASS, "CheckPermission",   "1905", Object, Reply,  {}, {Flag(ZEKey::Result)}};
}  // namespace VoicemailMethod

// Requests that every class has, whose token is the class of the object or objects at hand.
namespace ObjectMethod {
using namespace ZERow;
inline constexpr ZEMethod GetProps                = {nullptr, "GetProps",                "1879", Object,  Reply,  {Text(ZEKey::Properties)}, {}};
inline constexpr ZEMethod SetExtProps             = {nullptr, "SetExtProps",             "1239", Object,  OneWay, {}, {}};
inline constexpr ZEMethod GetMultipleObjectsProps = {nullptr, "GetMultipleObjectsProps", "1283", Service, Reply,  {Objects(ZEKey::Objects), Text(ZEKey::Properties)}, {}};
inline constexpr ZEMethod FilterOutProps          = {nullptr, "FilterOutProps",          "1522", Service, OneWay, {Text(ZEKey::Properties)}, {}};
}  // namespace ObjectMethod

inline constexpr const ZEMethod* CLASS_METHODS[] = {
    &AccountMethod::Login, &AccountMethod::LoginWithPassword, &AccountMethod::Register,
    &AccountMethod::SubmitUICRequestResponse, &AccountMethod::Logout, &AccountMethod::ChangePassword,
    &AccountMethod::CancelServerCommit, &AccountMethod::SetAvailability, &AccountMethod::GetZeltonameHash,
    &AccountMethod::GetCapabilityStatus, &AccountMethod::GetContact, &AccountMethod::SetProps,
    &AccountMethod::SetServersideProps, &AccountMethod::CreateSignedToken, &AlertMethod::MarkSeen,
    &AlertMethod::Delete, &App2AppMethod::Delete, &App2AppMethod::Connect, &App2AppMethod::Disconnect,
    &App2AppMethod::Write, &App2AppMethod::Datagram, &App2AppMethod::Read, &CallMethod::Mute,
    &CallMethod::SetTopic, &CallMethod::SetAccessToken, &CallMethod::Ring, &CallMethod::LeaveVoicemail,
    &CallMethod::Assimilate, &CallMethod::RequestMike, &CallMethod::GrantMike, &CallMethod::GetMembers,
    &CallMethod::Delete, &CallMethod::End, &CallMethod::Hold, &CallMethod::CanHold, &CallMethod::CanResume,
    &CallMethod::MarkSeen, &CallMethod::MarkUnseen, &CallMethod::PlayAndSendDTMF, &CallMemberMethod::Answer,
    &CallMemberMethod::Hold, &CallMemberMethod::GrantMike, &CallMemberMethod::SkipVoicemailGreeting,
    &CallMemberMethod::SetVoicemailOrigin, &CallMemberMethod::End, &CallMemberMethod::Transfer,
    &CallMemberMethod::CanTransfer, &CallMemberMethod::GetSendVideo, &CallMemberMethod::GetRecvVideo,
    &CallMemberMethod::Redial, &CallMemberMethod::SetMissed, &ChatMethod::GetJoinBlob, &ChatMethod::Join,
    &ChatMethod::SetPassword, &ChatMethod::EnterPassword, &ChatMethod::AcceptAdd, &ChatMethod::AddMembers,
    &ChatMethod::SetPicture, &ChatMethod::GetPicture, &ChatMethod::GetRecentMessages,
    &ChatMethod::ClearRecentMessages, &ChatMethod::GetUnsentMessages, &ChatMethod::SetOptions,
    &ChatMethod::Say, &ChatMethod::SetTopic, &ChatMethod::SetGuidelines, &ChatMethod::KickMember,
    &ChatMethod::PostContacts, &ChatMethod::PostFiles, &ChatMethod::ReportMyActivities, &ChatMethod::Leave,
    &ChatMethod::Disband, &ChatMethod::SetBookmark, &ChatMethod::SetAlertString, &ChatMethod::Delete,
    &ChatMethod::GetMembers, &ChatMemberMethod::CanSetRoleTo, &ChatMemberMethod::SetRoleTo,
    &ChatMessageMethod::IsEditable, &ChatMessageMethod::Edit, &ChatMessageMethod::MarkRead,
    &ChatMessageMethod::GetContacts, &ContactMethod::IsMemberOf, &ContactMethod::GiveAuthLevel,
    &ContactMethod::GiveDisplayName, &ContactMethod::AssignSpeedDial, &ContactMethod::SetBuddyStatus,
    &ContactMethod::SendAuthRequest, &ContactMethod::HasCapability, &ContactMethod::RefreshProfile,
    &ContactMethod::HasAuthorizedMe, &ContactMethod::GetAvatar, &ContactMethod::SetPhoneNumber,
    &ContactGroupMethod::GetContacts, &ContactGroupMethod::GiveDisplayName,
    &ContactGroupMethod::CanAddContact, &ContactGroupMethod::AddContact,
    &ContactGroupMethod::CanRemoveContact, &ContactGroupMethod::RemoveContact, &ContactGroupMethod::Delete,
    &ContactSearchMethod::Extend, &ContactSearchMethod::Release, &ContactSearchMethod::GetResults,
    &PriceQuoteMethod::GetReferredObject, &PriceQuoteMethod::Accept, &PriceQuoteMethod::Reject,
    &SearchMethod::Extend, &SearchMethod::Release, &SearchMethod::GetResults, &SmsMethod::GetTargetStatus,
    &SmsMethod::SetReplyTo, &SmsMethod::SetTargets, &SmsMethod::SetBody, &SmsMethod::GetBodyChunks,
    &SmsMethod::Send, &SmsMethod::MarkSeen, &SmsMethod::Delete, &SmsMethod::SetConfirmationType,
    &TransferMethod::Accept, &TransferMethod::Pause, &TransferMethod::Resume, &TransferMethod::Cancel,
    &TransferMethod::Delete, &VideoMethod::SetScreen, &VideoMethod::Start, &VideoMethod::Stop,
    &VideoMethod::CaptureImage, &VoicemailMethod::StartRecording, &VoicemailMethod::StopRecording,
    &VoicemailMethod::StartPlayback, &VoicemailMethod::StopPlayback, &VoicemailMethod::Delete,
    &VoicemailMethod::Cancel, &VoicemailMethod::ForwardToContacts, &VoicemailMethod::ForwardToGroups,
    &VoicemailMethod::GetEventId, &VoicemailMethod::SetOrigin, &VoicemailMethod::MarkSeen,
    &VoicemailMethod::CheckPermission, &ObjectMethod::GetProps, &ObjectMethod::SetExtProps,
    &ObjectMethod::GetMultipleObjectsProps, &ObjectMethod::FilterOutProps,
};
static_assert(std::size(CLASS_METHODS) == 139 + 4);
// clang-format on

// Every method of every class and every service-wide request, in the order of the protocol's rows, called
// with arguments that tell their place: "text1", 1, the first enumerator, and true for even places.
#pragma once

#include <tuple>
#include <type_traits>
#include <utility>

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "tests/apiwrapper/ProxyFixture.h"

template <class Class>
Class& proxyOf(Proxies& p) {
  if constexpr (std::is_same_v<Class, Zelto>) {
    return p.root;
  } else {
    return std::get<Class&>(p.all);
  }
}

template <class Value>
Value argumentOf(Proxies& p, std::size_t place) {
  if constexpr (std::is_same_v<Value, ZEString>) {
    return ("text" + std::to_string(place)).c_str();
  } else if constexpr (std::is_same_v<Value, ZEStringList>) {
    return textsOf({"a", "b"});
  } else if constexpr (std::is_same_v<Value, ZEPtrVector>) {
    return objectsOf({&p.account});
  } else if constexpr (std::is_same_v<Value, bool>) {
    return place % 2 == 0;
  } else if constexpr (std::is_enum_v<Value>) {
    return Value(1);
  } else if constexpr (std::is_pointer_v<Value>) {
    return &proxyOf<std::remove_pointer_t<Value>>(p);
  } else {
    return static_cast<Value>(place);
  }
}

// Whether a text or list that was passed for results came back empty.
template <class Argument>
bool isEmptied([[maybe_unused]] const std::decay_t<Argument>& value) {
  if constexpr (std::is_same_v<Argument, ZEString&>) return value.isNull();
  if constexpr (std::is_same_v<Argument, ZEStringList&> || std::is_same_v<Argument, ZEPtrVector&>) {
    return value.size() == 0;
  }
  return true;
}

template <auto Method, class Result, class Class, class... Arguments, std::size_t... Places>
bool callWith(Proxies& p, Result (Class::*)(Arguments...), std::index_sequence<Places...>) {
  // The first argument of an application's requests is its name, which no caller passes.
  [[maybe_unused]] constexpr std::size_t kFirst = std::is_same_v<Class, App2App> ? 1 : 0;
  std::tuple<std::decay_t<Arguments>...> values{argumentOf<std::decay_t<Arguments>>(p, Places + kFirst)...};
  (proxyOf<Class>(p).*Method)(std::get<Places>(values)...);
  return (isEmptied<Arguments>(std::get<Places>(values)) && ...);
}

template <class Result, class Class, class... Arguments>
std::index_sequence_for<Arguments...> placesOf(Result (Class::*)(Arguments...));

template <auto Method>
bool callOne(Proxies& p) {
  return callWith<Method>(p, Method, decltype(placesOf(Method))());
}

// Answers whether every text and list for results came back empty.
using MethodCall = bool (*)(Proxies& p);

template <auto... Methods>
inline constexpr MethodCall kCalls[] = {&callOne<Methods>...};

inline constexpr auto& ALL_CALLS = kCalls<
    &Account::Login, &Account::LoginWithPassword, &Account::Register, &Account::SubmitUICRequestResponse,
    &Account::Logout, &Account::ChangePassword, &Account::CancelServerCommit, &Account::SetAvailability,
    &Account::GetZeltonameHash, &Account::GetCapabilityStatus, &Account::GetContact,
    &Account::CreateSignedToken, &Alert::MarkSeen, &Alert::Delete, &App2App::Delete, &App2App::Connect,
    &App2App::Disconnect, &App2App::Write, &App2App::Datagram, &App2App::Read, &Call::Mute, &Call::SetTopic,
    &Call::SetAccessToken, &Call::Ring, &Call::LeaveVoicemail, &Call::Assimilate, &Call::RequestMike,
    &Call::GrantMike, &Call::GetMembers, &Call::Delete, &Call::End, &Call::Hold, &Call::CanHold,
    &Call::CanResume, &Call::MarkSeen, &Call::MarkUnseen, &Call::PlayAndSendDTMF, &CallMember::Answer,
    &CallMember::Hold, &CallMember::GrantMike, &CallMember::SkipVoicemailGreeting,
    &CallMember::SetVoicemailOrigin, &CallMember::End, &CallMember::Transfer, &CallMember::CanTransfer,
    &CallMember::GetSendVideo, &CallMember::GetRecvVideo, &CallMember::Redial, &CallMember::SetMissed,
    &Chat::GetJoinBlob, &Chat::Join, &Chat::SetPassword, &Chat::EnterPassword, &Chat::AcceptAdd,
    &Chat::AddMembers, &Chat::SetPicture, &Chat::GetPicture, &Chat::GetRecentMessages,
    &Chat::ClearRecentMessages, &Chat::GetUnsentMessages, &Chat::SetOptions, &Chat::Say, &Chat::SetTopic,
    &Chat::SetGuidelines, &Chat::KickMember, &Chat::PostContacts, &Chat::PostFiles, &Chat::ReportMyActivities,
    &Chat::Leave, &Chat::Disband, &Chat::SetBookmark, &Chat::SetAlertString, &Chat::Delete, &Chat::GetMembers,
    &ChatMember::CanSetRoleTo, &ChatMember::SetRoleTo, &ChatMessage::IsEditable, &ChatMessage::Edit,
    &ChatMessage::MarkRead, &ChatMessage::GetContacts, &Contact::IsMemberOf, &Contact::GiveAuthLevel,
    &Contact::GiveDisplayName, &Contact::AssignSpeedDial, &Contact::SetBuddyStatus, &Contact::SendAuthRequest,
    &Contact::HasCapability, &Contact::RefreshProfile, &Contact::HasAuthorizedMe, &Contact::GetAvatar,
    &Contact::SetPhoneNumber, &ContactGroup::GetContacts, &ContactGroup::GiveDisplayName,
    &ContactGroup::CanAddContact, &ContactGroup::AddContact, &ContactGroup::CanRemoveContact,
    &ContactGroup::RemoveContact, &ContactGroup::Delete, &ContactSearch::Extend, &ContactSearch::Release,
    &ContactSearch::GetResults, &PriceQuote::GetReferredObject, &PriceQuote::Accept, &PriceQuote::Reject,
    &Search::Extend, &Search::Release, &Search::GetResults, &Sms::GetTargetStatus, &Sms::SetReplyTo,
    &Sms::SetTargets, &Sms::SetBody, &Sms::GetBodyChunks, &Sms::Send, &Sms::MarkSeen, &Sms::Delete,
    &Sms::SetConfirmationType, &Transfer::Accept, &Transfer::Pause, &Transfer::Resume, &Transfer::Cancel,
    &Transfer::Delete, &Video::SetScreen, &Video::Start, &Video::Stop, &Video::CaptureImage,
    &Voicemail::StartRecording, &Voicemail::StopRecording, &Voicemail::StartPlayback,
    &Voicemail::StopPlayback, &Voicemail::Delete, &Voicemail::Cancel, &Voicemail::ForwardToContacts,
    &Voicemail::ForwardToGroups, &Voicemail::GetEventId, &Voicemail::SetOrigin, &Voicemail::MarkSeen,
    &Voicemail::CheckPermission, &Zelto::GetLastFileError, &Zelto::GetConnStatus,
    &Zelto::GetRConnectionStatus, &Zelto::StartRConnection, &Zelto::StartRConnectionSnap,
    &Zelto::StartRConnectionAlwaysAsk, &Zelto::StopRConnection, &Zelto::GetRConnectionIAP,
    &Zelto::GetUsedPort, &Zelto::GetDebugInfo, &Zelto::Log, &Zelto::GetTotalOnlineUserCount, &Zelto::Ping,
    &Zelto::DeclareClientProp, &Zelto::GetIntClientProp, &Zelto::GetLibStatus, &Zelto::GetDefaultDBPath,
    &Zelto::GetFatalErrorMessage, &Zelto::GetISOCountryNameDict, &Zelto::GetISOLanguageNameDict,
    &Zelto::GetISOCountryPrefixDict, &Zelto::GetISOCountryDialExampleDict, &Zelto::GetISOCountryCodeList,
    &Zelto::GetISOLanguageCodeList, &Zelto::IsISOCountryCode, &Zelto::GetISOCountryName,
    &Zelto::GetISOLanguageName, &Zelto::GetISOCountryPrefix, &Zelto::GetISOCountryDialExample,
    &Zelto::GetISOCountryCodeByPrefix, &Zelto::GetVersion, &Zelto::GetPlatform, &Zelto::GetUnixTimestamp,
    &Zelto::GetUpgradeInfo, &Zelto::GetExistingAccounts, &Zelto::GetDefaultAccount, &Zelto::GetAccount,
    &Zelto::GetFreeBytesLeft, &Zelto::IsValidEmail, &Zelto::GetSuggestedZeltoname, &Zelto::ValidatePassword,
    &Zelto::GetContact, &Zelto::FindContactBySpeedDial, &Zelto::FindContactByPstnNumber,
    &Zelto::NormalizeIdentity, &Zelto::GetTypeByIdentity, &Zelto::GetStr, &Zelto::GetInt, &Zelto::SetStr,
    &Zelto::SetInt, &Zelto::IsDefined, &Zelto::Delete, &Zelto::GetSubKeys, &Zelto::PlayStart,
    &Zelto::PlayStop, &Zelto::StartRecordingTest, &Zelto::StopRecordingTest, &Zelto::PlayDTMF,
    &Zelto::GetAvailableOutputDevices, &Zelto::GetAvailableRecordingDevices, &Zelto::SelectSoundDevices,
    &Zelto::GetNrgLevels, &Zelto::GetSpeakerVolume, &Zelto::SetSpeakerVolume, &Zelto::GetMicVolume,
    &Zelto::SetMicVolume, &Zelto::VoiceCommand, &Zelto::CreateApp2App, &Zelto::GetHardwiredContactGroup,
    &Zelto::GetCustomContactGroups, &Zelto::CreateCustomContactGroup, &Zelto::CreateCall,
    &Zelto::JoinExistingCall, &Zelto::GetCall, &Zelto::GetUnseenMissedCalls, &Zelto::GetHistoricalCalls,
    &Zelto::ClearCallHistory, &Zelto::GetPreviewVideo, &Zelto::DisplayVideoDeviceTuningDialog,
    &Zelto::GetVideoDeviceCapabilities, &Zelto::GetAvailableVideoDevices, &Zelto::VideoCommand,
    &Zelto::StartTransfer, &Zelto::GetActiveTransfers, &Zelto::GetGreeting,
    &Zelto::CreateConfirmationRequestSms, &Zelto::CreateConfirmationSubmitSms, &Zelto::CreateOutgoingSms,
    &Zelto::GetValidatedSmsNumbers, &Zelto::GetLastConfirmationNumber, &Zelto::CreateChat, &Zelto::GetChat,
    &Zelto::OpenChatTo, &Zelto::GetPublicChat, &Zelto::DeleteAllMessages, &Zelto::GetRecentChats,
    &Zelto::GetUnreadChats, &Zelto::GetBookmarkedChats, &Zelto::GetChatMemberCountLimit,
    &Zelto::NewBasicSearch, &Zelto::NewIdentitySearch, &Zelto::GetOptimalAgeRanges, &Zelto::IssuePriceQuote>;

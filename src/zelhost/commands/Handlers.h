// What the rows of Commands.def name beside the adapters: overloads and numbers with a name of their own,
// and the handlers of the commands that do more than pass their arguments on.
#pragma once

#include <string>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ChatManager.h"
#include "Common/ContactManager.h"
#include "Common/HistoryManager.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/commands/Adapters.h"
#include "zelhost/media/ZelhostIPCManager.h"

namespace zelhost {

// Account properties that are kept at the service's side.
inline constexpr int kAccountForwardNumbers = 34;
inline constexpr int kAccountChatPolicy = 35;
inline constexpr int kAccountCallPolicy = 36;
// Whether everybody or only contacts may reach the account, in the service's words.
struct AllowPolicy {
  static const char* From(const CommandCall& call) { return call.Flag(1) ? "1" : "2"; }
};

inline constexpr int kVoicemailCapability = 1;

// Which outgoing media the media bridge dumps.
inline constexpr int kAudioDump = 2;
inline constexpr int kVideoDump = 4;

// Host controls that are asked for under another name than the command's.
inline constexpr char kStartPIGMode[] = "StartPIGMode";
inline constexpr char kStopPIGMode[] = "StopPIGMode";
inline constexpr char kDisconnectEmp[] = "DisconnectEmp";
inline constexpr char kSetAutoFocus[] = "SetAutoFocus";
inline constexpr char kSetCameraLightMode[] = "SetCameraLightMode";

// Operations of which there are several by the same name.
inline constexpr auto kContactPropertyByIndex =
    Overload<const char*(int, int)>(&CContactManager::GetContactInfo);
inline constexpr auto kContactPropertyByName =
    Overload<const char*(const char*, int)>(&CContactManager::GetContactInfo);
inline constexpr auto kContactRecords =
    Overload<const char*(const char*, int, int)>(&CContactManager::GetContactInfo);
inline constexpr auto kChatRecordsByName =
    Overload<const char*(const char*, int, int)>(&CChatManager::GetChatList);
inline constexpr auto kChatRecordsByIndex = Overload<const char*(int, int, int)>(&CChatManager::GetChatList);
inline constexpr auto kHistoryValue = Overload<const char*(int, int)>(&CHistoryManager::GetHistoryInfo);
inline constexpr auto kCallMemberProperty = Overload<const char*(int, int)>(&CCallManager::GetCallMemberInfo);

// Reads the four parameters as x, y, width and height.
template <auto Setter>
void SetRect(const CommandCall& call, std::string& answer) {
  Do<Setter, Int<1>, Int<2>, Int<3>, Int<4>>(call, answer);
}

// DomainHandlers.cpp
void Register(const CommandCall& call, std::string& answer);
void AddContact(const CommandCall& call, std::string& answer);
void AddZeltoOutContact(const CommandCall& call, std::string& answer);
void GetMessages(const CommandCall& call, std::string& answer);
void SendMessage(const CommandCall& call, std::string& answer);
void GetISOCountryPrefix(const CommandCall& call, std::string& answer);
void GetISOCountryName(const CommandCall& call, std::string& answer);
void GetCountryList(const CommandCall& call, std::string& answer);
void IsInVideoCall(const CommandCall& call, std::string& answer);
void StopSendVideo(const CommandCall& call, std::string& answer);
void Hold(const CommandCall& call, std::string& answer);

// TelevisionHandlers.cpp
void Stop(const CommandCall& call, std::string& answer);
void SetSourceMode(const CommandCall& call, std::string& answer);
void ResumeTVModeVideo(const CommandCall& call, std::string& answer);
void ResumeNormalModeVideo(const CommandCall& call, std::string& answer);
void GetLastSourceMode(const CommandCall& call, std::string& answer);
void SetMediaSource(const CommandCall& call, std::string& answer);
void SetCameraLightMode(const CommandCall& call, std::string& answer);
void SetRemoteInputType(const CommandCall& call, std::string& answer);

// WidgetHandlers.cpp
void ImgFolderExist(const CommandCall& call, std::string& answer);
void CheckMissedCall(const CommandCall& call, std::string& answer);
void OSDTimerExpired(const CommandCall& call, std::string& answer);
void SetDebugLevel(const CommandCall& call, std::string& answer);
void StartWidget(const CommandCall& call, std::string& answer);
void GetRunWidgetParam(const CommandCall& call, std::string& answer);

// VideoPolicyHandlers.cpp
void SetAutoVideoReceive(const CommandCall& call, std::string& answer);
void GetAutoVideoReceive(const CommandCall& call, std::string& answer);
void SetVideoAdvert(const CommandCall& call, std::string& answer);
void GetVideoAdvert(const CommandCall& call, std::string& answer);

}  // namespace zelhost

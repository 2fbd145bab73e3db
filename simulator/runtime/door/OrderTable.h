// The orders: their names, their main arguments and what carries them out.
#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

namespace simulator {

struct Controls;

struct OrderRow {
  const char* name;
  const char* mainArgument;  // key of a bare word; empty for none
  // Adds to the answer; throws an exception with the reason when it cannot. Null for steps that only a
  // scenario knows.
  void (*carryOut)(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
};

// Null for an unknown name.
const OrderRow* FindOrder(std::string_view name);

namespace orders {

// What happens in the runtime's world.
void Status(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Describe(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SetProperty(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SignOut(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void FailCommit(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SendEvent(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);

// What happens to sound and pictures.
void MediaStatus(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SetMicVolume(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SendPacket(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Stall(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SetHeaderWord(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);

// What other people do, and how many there are.
void ChangeContact(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void ChangePresence(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void InventContacts(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void RequestAuthorization(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void AnswerAuthorization(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);

// What is said in chats, what has been, and how much of both there is.
void OpenChat(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Say(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void InventChats(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void InventMessages(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void LeaveVoicemail(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void InventHistory(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void DeleteElsewhere(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void HoldSearches(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);

// What the far end of a call does.
void Call(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void ActInCall(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void ChangeMembers(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Speak(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SendTone(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);

// What happens on the way to the engine, and to the process.
void SpoilReply(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Clear(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SendFrame(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void SendRaw(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Silence(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Split(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void Freeze(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void End(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);
void At(Controls& controls, const nlohmann::json& order, nlohmann::json& answer);

}  // namespace orders
}  // namespace simulator

// A service that lives in a file.
#pragma once

#include <cstdint>
#include <string>

#include "simulator/runtime/service/Database.h"
#include "simulator/runtime/service/Service.h"

namespace simulator {

// Keeps its accounts in one database file, which starts with the demonstration accounts. Passwords stand
// in it readable: these are toy accounts on a developer's machine. What an operation has stored is there
// after a sudden death. Throws DatabaseError when nothing can be kept.
// Threads: none of its own.
class SimulatedService : public Service {
 public:
  // The folder must exist.
  explicit SimulatedService(const std::string& folder);

  bool Exists(std::string_view name) override;
  LogoutReason SignIn(std::string_view name, std::string_view password) override;
  LogoutReason Register(const Registration& registration) override;
  bool ChangePassword(std::string_view name, std::string_view before, std::string_view now) override;
  std::vector<std::string> SuggestNames(std::string_view name) override;
  Trait TraitOf(std::string_view name) override;
  Properties Profile(std::string_view name) override;
  bool StoreProfile(std::string_view name, const Properties& values) override;
  Capability CapabilityOf(std::string_view name, int capability) override;
  std::vector<std::string> Contacts(std::string_view name) override;
  bool AddContact(std::string_view name, std::string_view contact) override;
  bool RemoveContact(std::string_view name, std::string_view contact) override;
  std::vector<std::string> AddInventedContacts(std::string_view name, int count, unsigned seed) override;
  int PresenceOf(std::string_view name) override;
  std::map<std::string, Properties> Notes(std::string_view name) override;
  void Note(std::string_view name, std::string_view contact, int property, std::string_view value) override;
  std::vector<Group> Groups(std::string_view name) override;
  std::int64_t CreateGroup(std::string_view name) override;
  bool RenameGroup(std::string_view name, std::int64_t group, std::string_view to) override;
  bool DeleteGroup(std::string_view name, std::int64_t group) override;
  void SetGroupMember(std::int64_t group, std::string_view contact, bool member) override;
  std::vector<std::string> FindPeople(const Query& query, std::size_t most) override;
  void Together(const std::function<void()>& changes) override;

  std::vector<ChatRecord> Chats(std::string_view account) override;
  std::int64_t AddChat(std::string_view account, const ChatRecord& chat) override;
  void ChangeChat(const ChatRecord& chat) override;
  void ChangeChatPerson(std::int64_t chat, const ChatPerson& person) override;
  void DeleteChat(std::int64_t chat) override;
  std::vector<MessageRecord> Messages(std::int64_t chat, std::size_t most) override;
  std::int64_t AddMessage(std::int64_t chat, const MessageRecord& message) override;
  void ChangeMessageStatus(std::int64_t message, int status) override;
  void ChangeMessageBody(std::int64_t message, std::string_view body) override;
  void DeleteMessages(std::int64_t chat) override;

  std::vector<CallRecord> PastCalls(std::string_view account) override;
  std::int64_t AddPastCall(std::string_view account, const CallRecord& call) override;
  void SetPastCallUnseen(std::int64_t call, bool unseen) override;
  void DeletePastCall(std::int64_t call) override;
  std::vector<VoicemailRecord> Voicemails(std::string_view account) override;
  std::int64_t AddVoicemail(std::string_view account, const VoicemailRecord& voicemail) override;
  void ChangeVoicemailStatus(std::int64_t voicemail, int status) override;
  void DeleteVoicemail(std::int64_t voicemail) override;

 private:
  void AddDemoAccounts();
  void AddDemoContacts();
  void GiveDemoContacts(std::string_view name);
  void Create(const Registration& registration, const Properties& profile);
  void StoreValues(std::string_view name, const Properties& values);
  std::string PasswordOf(std::string_view name);
  std::int64_t LastNumber();

  Database m_database;
};

}  // namespace simulator

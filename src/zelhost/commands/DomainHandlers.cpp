// Commands about the account, contacts, chats, numbers and calls whose arguments decide what is called.
#include <cstring>

#include "zelhost/commands/Handlers.h"

namespace zelhost {

void Register(const CommandCall& call, std::string& answer) {
  const char* flags = call.Parameter(4);
  const bool both = std::strcmp(flags, "11") == 0;
  const bool savePassword = both || std::strcmp(flags, "10") == 0;
  const bool allowOffers = both || std::strcmp(flags, "01") == 0;
  Answer(answer, CAccountManager::GetInstance()->Register(call.Parameter(1), call.Parameter(2),
                                                          call.Parameter(3), savePassword, allowOffers));
}

void AddContact(const CommandCall& call, std::string& answer) {
  const char* message = call.IsEmpty(1) ? nullptr : TextOrNull<2>::From(call);
  Answer(answer, CContactManager::GetInstance()->AddContact(call.Parameter(1), message));
}

void AddZeltoOutContact(const CommandCall& call, std::string& answer) {
  Answer(answer, !call.IsEmpty(1) && CContactManager::GetInstance()->AddZeltoOutContact(
                                         call.Parameter(1), TextOrNull<2>::From(call)));
}

void GetMessages(const CommandCall& call, std::string& answer) {
  const bool given[] = {!call.IsEmpty(1), !call.IsEmpty(2), !call.IsEmpty(3)};
  CChatManager* chats = CChatManager::GetInstance();
  const char* messages = nullptr;
  if (given[0] && given[1]) {
    messages = chats->GetMessages(call.Int(1), call.Int(2), TextOrNull<3>::From(call));
  } else if (!given[1] && !given[2]) {
    messages = chats->GetMessages(TextOrNull<1>::From(call));
  }
  Answer(answer, messages);
}

void SendMessage(const CommandCall& call, std::string& answer) {
  if (call.IsEmpty(1)) return answer.clear();
  CChatManager* chats = CChatManager::GetInstance();
  Answer(answer, call.IsEmpty(2) ? chats->SendMessage(call.Parameter(1))
                                 : chats->SendMessage(call.Parameter(1), call.Parameter(2)));
}

void GetISOCountryPrefix(const CommandCall& call, std::string& answer) {
  const int prefix = CZelhostZeltoManager::GetInstance()->GetISOCountryPrefix(call.Parameter(1));
  Answer(answer, static_cast<unsigned>(prefix));
}

void GetISOCountryName(const CommandCall& call, std::string& answer) {
  if (call.IsEmpty(1)) return answer.clear();
  const char* language = call.IsEmpty(2) ? "en" : call.Parameter(2);
  Answer(answer, CZelhostZeltoManager::GetInstance()->GetISOCountryName(call.Parameter(1), language));
}

void GetCountryList(const CommandCall& call, std::string& answer) {
  CZelhostZeltoManager* host = CZelhostZeltoManager::GetInstance();
  Answer(answer, call.IsEmpty(1) ? host->GetCountryList() : host->GetCountryList(call.Parameter(1)));
}

void IsInVideoCall(const CommandCall&, std::string& answer) {
  constexpr int kVideoCall = 1;
  CCallManager* calls = CCallManager::GetInstance();
  Answer(answer, calls->IsInCall() && calls->GetCallType() == kVideoCall);
}

void StopSendVideo(const CommandCall&, std::string& answer) {
  Answer(answer, CCallManager::GetInstance()->StopSendVideo());
  // Nobody needs to hear any more that the far end refuses the picture.
  CZeltoManager::DeleteLazyEvent(CZeltoManager::CALLMEMBER_REFUSE_RECEIVE_VIDEO);
}

void Hold(const CommandCall& call, std::string& answer) {
  CCallManager* calls = CCallManager::GetInstance();
  Answer(answer, call.Flag(1) ? calls->Hold() : calls->Resume());
}

}  // namespace zelhost

// Settings that the store keeps as words and the widget knows as numbers.
#include <cstring>

#include "zelhost/commands/Handlers.h"

namespace zelhost {

namespace {

constexpr char kNobody[] = "noone";
constexpr char kContacts[] = "contacts";
constexpr char kCallPolicy[] = "callpolicy";

void Store(int setting, const char* policy, std::string& answer) {
  CZelhostLocalSetting::SetStrValue(setting, ZEString(policy));
  AnswerDone(answer);
}

bool Is(const ZEString& value, const char* policy) {
  const char* text = value;
  return text != nullptr && std::strcmp(text, policy) == 0;
}

}  // namespace

void SetAutoVideoReceive(const CommandCall& call, std::string& answer) {
  const char* fromSomebody = call.Flag(2) ? kCallPolicy : kContacts;
  Store(kSettingVideoReceivePolicy, call.Flag(1) ? fromSomebody : kNobody, answer);
}

void GetAutoVideoReceive(const CommandCall&, std::string& answer) {
  const ZEString policy = CZelhostLocalSetting::GetStrValue(kSettingVideoReceivePolicy);
  const int others = Is(policy, kContacts) ? 1 : 2;
  Answer(answer, Is(policy, kNobody) ? 0 : others);
}

void SetVideoAdvert(const CommandCall& call, std::string& answer) {
  Store(kSettingVideoAdvertPolicy, call.Flag(1) ? kContacts : kNobody, answer);
}

void GetVideoAdvert(const CommandCall&, std::string& answer) {
  const ZEString policy = CZelhostLocalSetting::GetStrValue(kSettingVideoAdvertPolicy);
  Answer(answer, Is(policy, kContacts) ? 1 : 0);
}

}  // namespace zelhost

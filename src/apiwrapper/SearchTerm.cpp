#include "apiwrapper/SearchTerm.h"

#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/tables/Classes.h"

namespace {

// In the order of Search::TARGET.
constexpr const ZEClass* kTargetClasses[] = {
    &CHAT_CLASS,     &CHATMEMBER_CLASS, &CHATMESSAGE_CLASS, &CALL_CLASS,       &CALLMEMBER_CLASS,
    &TRANSFER_CLASS, &VOICEMAIL_CLASS,  &SMS_CLASS,         &PRICEQUOTE_CLASS, &ALERT_CLASS};

const ZEClass* classOf(Search::TARGET target) {
  if (target < Search::CHAT || target > Search::ALERT) return nullptr;
  return kTargetClasses[target - Search::CHAT];
}

ZEString term(const PMAP* properties, int property, Search::CONDITION condition, const ZEString& value) {
  ZEString text("");
  text += ZEProtocol::TokenOf(properties, property);
  text += ",";
  text += ZEProtocol::TokenOf(SEARCH_CONDITION_MAP, condition);
  text += ",";
  text += value;
  return text;
}

}  // namespace

SearchTerm::SearchTerm(Search::TARGET target) : m_target(target) {}

void SearchTerm::add(int property, Search::CONDITION condition, const ZEString& value) {
  const ZEClass* searched = classOf(m_target);
  m_terms.append(
      term(searched == nullptr ? nullptr : searched->properties, property, condition, value.escape()));
}

void SearchTerm::add(int property, Search::CONDITION condition, int value) {
  const ZEClass* searched = classOf(m_target);
  const PMAP* values = searched == nullptr ? nullptr : ZEProtocol::EnumOf(searched->enums, property);
  add(property, condition,
      values == nullptr ? ZEString::from(value) : ZEString(ZEProtocol::TokenOf(values, value)));
}

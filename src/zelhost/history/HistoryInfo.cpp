#include "zelhost/history/HistoryInfo.h"

#include <cstdlib>

#include "apiwrapper/Call.h"
#include "apiwrapper/Voicemail.h"
#include "zelhost/LocalTimeLine.h"

CHistoryInfo::CHistoryInfo(Type type, ZEObject* object)
    : m_type(type), m_pObject(object), m_nObjectId(object->getOID()) {
  Set(KEY_TYPE, ZEString::from(type == kVoicemail));
}
CHistoryInfo::CHistoryInfo(Call* call) : CHistoryInfo(kCall, call) {}
CHistoryInfo::CHistoryInfo(Voicemail* voicemail) : CHistoryInfo(kVoicemail, voicemail) {}

bool CHistoryInfo::Compare(const CHistoryInfo* a, const CHistoryInfo* b) {
  if (a->m_nCategory != b->m_nCategory) return a->m_nCategory < b->m_nCategory;
  return a->m_nTimestamp > b->m_nTimestamp;
}

std::int64_t CHistoryInfo::Seconds(const char* time) { return std::strtoll(time, nullptr, 10); }

const ZEString& CHistoryInfo::Get(int key) {
  static const ZEString absent;
  if (key < 0 || key >= KEYS) return absent;
  if (key == KEY_LOCAL_TIME && Value(KEY_LOCAL_TIME).isNull() && !Value(KEY_TIME).isNull()) {
    Set(KEY_LOCAL_TIME, LocalTime());
  }
  return Value(static_cast<KEY>(key));
}

void CHistoryInfo::Set(KEY key, const ZEString& value) {
  m_values[static_cast<std::size_t>(key)] = value;
  if (key == KEY_TIME) m_nTimestamp = Seconds(value);
}

ZEString CHistoryInfo::LocalTime() const {
  if (m_nTimestamp == 0) return "0";
  return ZEString(zelhost::LocalTimeLine(static_cast<unsigned long>(m_nTimestamp)).view());
}

bool CHistoryInfo::IsMissedCall() const {
  return IsCall() && m_nCategory == CATEGORY_UNSEEN && Value(KEY_INCOMING) == "1" && Value(KEY_UNSEEN) == "1";
}

bool CHistoryInfo::IsDialledNumber() const { return Value(KEY_INCOMING) == "0" && Value(KEY_PHONE) == "1"; }

Call* CHistoryInfo::GetCall() const { return IsCall() ? static_cast<Call*>(m_pObject) : nullptr; }

Voicemail* CHistoryInfo::GetVoicemail() const {
  return IsVoicemail() ? static_cast<Voicemail*>(m_pObject) : nullptr;
}

// The history manager's answers about single entries and its pages of records.
#include <algorithm>
#include <iterator>

#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/Call.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/history/ZelhostHistoryManager.h"

using zelhost::ServiceHostLock;

namespace {

using Info = CHistoryInfo;

// The fields of a record; a page without times or members writes fewer of them.
constexpr Info::KEY kRecord[] = {Info::KEY_TYPE,       Info::KEY_IDENTITY, Info::KEY_DISPLAY_NAME,
                                 Info::KEY_LOCAL_TIME, Info::KEY_UNSEEN,   Info::KEY_CONFERENCE,
                                 Info::KEY_INCOMING,   Info::KEY_PHONE,    Info::KEY_DURATION,
                                 Info::KEY_TIME,       Info::KEY_MEMBERS};
constexpr std::ptrdiff_t kPlainFields = 9;
static_assert(std::size(kRecord) == 11);

}  // namespace

// One of the three page questions.
struct CZelhostHistoryManager::PageKind {
  const char* query;
  std::ptrdiff_t fields;  // of a record
  const char* gone;       // how the log puts it
};

int CZelhostHistoryManager::GetNumOfHistories() {
  ServiceHostLock lock("GetNumOfHistories");
  UpdateToNewList();
  return m_HistoryList.Count();
}

const char* CZelhostHistoryManager::GetHistoryInfo(int index, int key) {
  ServiceHostLock lock("GetHistoryInfo");
  UpdateToNewList();
  CHistoryInfo* entry = m_HistoryList.At(index);
  if (entry == nullptr || entry->Get(key).isNull()) {
    ZELTO_DEBUG("HistoryInfo %d does not have a type %d\n", index, key);
    return nullptr;
  }
  m_strValue = entry->Get(key).view();
  return m_strValue.c_str();
}

int CZelhostHistoryManager::GetHistoryIndexWithTimestamp(const char* time) {
  ServiceHostLock lock("GetHistoryIndexWithTimestamp");
  UpdateToNewList();
  return time == nullptr ? -1 : m_HistoryList.PositionOf(time);
}

const char* CZelhostHistoryManager::GetHistoryInfoWithTimestamp(const char* time, int key) {
  ServiceHostLock lock("GetHistoryInfoWithTimestamp");
  const int index = GetHistoryIndexWithTimestamp(time);
  return index < 0 ? nullptr : GetHistoryInfo(index, key);
}

const char* CZelhostHistoryManager::GetHistoryInfo(int index, int num, int before) {
  return Page({"GetHistoryInfo", kPlainFields, "was maybe gone"}, index, num, before);
}

const char* CZelhostHistoryManager::GetHistoryInfoIncludingTimestamp(int index, int num, int before) {
  return Page({"GetHistoryInfoIncludingTimestamp", kPlainFields + 1, "was maybe gone"}, index, num, before);
}

const char* CZelhostHistoryManager::GetHistoryInfoIncludingCallMembers(int index, int num, int before) {
  return Page({"GetHistoryInfoIncludingCallMembers", kPlainFields + 2, "may be gone"}, index, num, before);
}

const char* CZelhostHistoryManager::Page(const PageKind& kind, int index, int num, int before) {
  ServiceHostLock lock(kind.query);
  UpdateToNewList();
  const int total = m_HistoryList.Count();
  ZELTO_DEBUG("%s : index = %d, num = %d nBefore = %d\n", kind.query, index, num, before);
  if (index < 0 || index >= total || num <= std::max(before, 0)) return nullptr;
  ZELTO_DEBUG("%s: index=%d, num=%d, before=%d, total=%d\n", kind.query, index, num, before, total);
  const int first = index - std::clamp(before, 0, index);
  const int last = first + std::min(num, total - index);

  m_strPage.clear();
  zelto::RecordWriter writer(m_strPage);
  bool seen = false;
  for (int position = first; position < last; ++position) {
    CHistoryInfo& entry = *m_HistoryList.At(position);
    std::for_each(kRecord, kRecord + kind.fields,
                  [&](Info::KEY key) { writer.Field(entry.Get(key).view()); });
    if (entry.IsCall()) seen |= MarkSeen(entry, position, kind);
  }
  if (seen) CZeltoManager::SendEvent(CZeltoManager::MISSED_CALLS_READ, 0);
  return m_strPage.c_str();
}

bool CZelhostHistoryManager::MarkSeen(CHistoryInfo& entry, int position, const PageKind& kind) {
  entry.SetCategory(Info::CATEGORY_SEEN);
  Call* call = entry.GetCall();
  const unsigned int id = call == nullptr ? 0 : call->getOID();
  if (call == nullptr || id != entry.ObjectId()) {
    ZELTO_DEBUG("History [%d]object %s !!!!  original oid[%u] != getOID()[%u] addr=%p\n", position, kind.gone,
                entry.ObjectId(), id, static_cast<void*>(call));
    return false;
  }
  call->MarkSeen();
  return true;
}

// The chat manager's messages: read, marked and sent.
#include "Common/Log.h"
#include "zelhost/PropertyList.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CChat.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/ChatRecords.h"
#include "zelhost/chats/RecentMessages.h"
#include "zelhost/chats/ZelhostChatManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr int kRecentProperties[] = {ChatMessage::P_TYPE, ChatMessage::P_AUTHOR_DISPLAY_NAME,
                                     ChatMessage::P_TIMESTAMP, ChatMessage::P_BODY, ChatMessage::P_STATUS};
constexpr int kStatus[] = {ChatMessage::P_STATUS};

constexpr int kStatusRead = 4;
// What a message of one's own shows, whatever became of it at the other end.
constexpr char kSent[] = "2";

int StatusOf(const ZEIntDict& message) { return message.find(ChatMessage::P_STATUS).toInt(); }

bool IsUnread(const ZEIntDict& message) { return StatusOf(message) == ChatMessage::STATUS_NOT_READ; }

bool IsText(const ZEIntDict& message) {
  return CChatMessage::IsText(message.find(ChatMessage::P_TYPE).toInt());
}

bool IsBy(const ZEString& author, const char* account) {
  return account != nullptr && !author.isEmpty() && author == account;
}

void TraceFields(int number, const ZEIntDict& message) {
  if (!zelto::LogEnabled(zelto::LogLevel::Debug)) return;
  for (const int property : zelhost::kMessageRecordProperties) {
    ZELTO_DEBUG("chat msg %d , prop %d : %s\n", number, property,
                static_cast<const char*>(message.find(property)));
  }
}

void TraceReadElsewhere(const CChatMessage* message, const ZEIntDict& values) {
  const int status = StatusOf(values);
  if (status != ChatMessage::STATUS_NOT_READ && status != kStatusRead) return;
  ZELTO_DEBUG("ChatMessage %p: is sent message, but status is read\n%s", static_cast<const void*>(message),
              static_cast<const char*>(values.format()));
}

}  // namespace

// A message that no count knows of yet must not lower one, nor raise it when it is reported afterwards.
void CZelhostChatManager::MarkRead(CChatInfo* info, CChatMessage* message) {
  message->MarkRead();
  if (!message->CountAsUnread()) info->SetUnread(info->Unread() - 1);
}

const char* CZelhostChatManager::GetMessages(const char* name) {
  ServiceHostLock lock("GetMessages");
  CChatInfo* info = IsReady() ? GetChatInfo(name) : nullptr;
  if (info == nullptr) return nullptr;
  ChatDialog& dialog = info->m_Dialog;
  const int from = dialog.ReadIndex();
  ZELTO_DEBUG("%s, m_Dialog.size = %d, m_nReadIndex=%d, m_nMessages=%d\n", "GetMessages", dialog.Count(),
              from, info->m_nMessages);
  const ZEPtrVector messages = dialog.Slots(from, dialog.Count() - from);
  g_lpZelto->GetMultipleObjectsProps(messages, zelhost::ListOf(zelhost::kMessageRecordProperties));
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  for (unsigned i = 0; i < messages.size(); ++i) {
    CChatMessage* message = zelhost::MessageAt(messages, i);
    const ZEIntDict values = zelhost::TakeValues(*message);
    if (IsText(values)) zelhost::WriteMessageWithAuthor(writer, values, values.find(ChatMessage::P_STATUS));
    if (IsUnread(values)) MarkRead(info, message);
  }
  dialog.SetReadIndex(dialog.Count());
  return m_strResult.c_str();
}

const char* CZelhostChatManager::GetMessages(int start, int end, const char* name) {
  ServiceHostLock lock("GetMessages");
  CChatInfo* info = IsReady() ? GetChatInfo(name) : nullptr;
  if (info == nullptr) return nullptr;
  const int total = info->m_Dialog.Count();
  if (start < 0 || start >= total) {
    ZELTO_DEBUG("wrong index %d, total msg num = %d\n", start, total);
    return nullptr;
  }
  if (start > end) {
    ZELTO_DEBUG("wrong end index %d, total msg num = %d\n", end, total);
    return nullptr;
  }
  if (end >= total) {
    ZELTO_DEBUG("end index %d, is larger than available number. it is set to %d\n", end, total - 1);
    end = total - 1;
  }
  ZELTO_DEBUG("%s, m_Dialog.size = %d, start_index=%d, end_index=%d\n", "GetMessages", total, start, end);
  const ZEPtrVector messages = info->m_Dialog.Slots(start, end - start + 1);
  g_lpZelto->GetMultipleObjectsProps(messages, zelhost::ListOf(zelhost::kMessageRecordProperties));
  const char* account = CZelhostAccountManager::GetInstance()->GetAccountInfo(Account::P_NAME);
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  for (unsigned i = 0; i < messages.size(); ++i) {
    CChatMessage* message = zelhost::MessageAt(messages, i);
    const ZEIntDict values = zelhost::TakeValues(*message);
    const bool own = IsBy(values.find(ChatMessage::P_AUTHOR), account);
    TraceFields(start + static_cast<int>(i), values);
    if (own) TraceReadElsewhere(message, values);
    zelhost::WriteMessageWithAuthor(writer, values, own ? kSent : values.find(ChatMessage::P_STATUS));
    if (IsUnread(values)) MarkRead(info, message);
  }
  return m_strResult.c_str();
}

int CZelhostChatManager::GetNumOfMessages(const char* name) {
  ServiceHostLock lock("GetNumOfMessages");
  const CChatInfo* info = IsReady() ? GetChatInfo(name) : nullptr;
  return info == nullptr ? 0 : info->m_Dialog.Count();
}

const char* CZelhostChatManager::GetRecentMessages(const char* name) {
  ServiceHostLock lock("GetRecentMessages");
  CChat* chat = IsReady() ? RuntimeChat(name) : nullptr;
  ZEPtrVector messages;
  if (chat == nullptr || !zelhost::GetRecentMessages(chat, zelhost::ListOf(kRecentProperties), messages)) {
    return nullptr;
  }
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  for (unsigned i = 0; i < messages.size(); ++i) {
    CChatMessage* message = zelhost::MessageAt(messages, i);
    const ZEIntDict values = zelhost::TakeValues(*message);
    if (IsText(values)) {
      ZELTO_DEBUG("Message %d\n", static_cast<int>(i));
      zelhost::WriteMessage(writer, values, values.find(ChatMessage::P_STATUS));
    }
    if (IsUnread(values)) message->MarkRead();
  }
  return m_strResult.c_str();
}

bool CZelhostChatManager::SetAllMessagesRead(const char* name) {
  ServiceHostLock lock("SetAllMessagesRead");
  CChat* chat = IsReady() ? RuntimeChat(name) : nullptr;
  ZEPtrVector messages;
  if (chat == nullptr || !zelhost::GetRecentMessages(chat, zelhost::ListOf(kStatus), messages)) return false;
  for (unsigned i = 0; i < messages.size(); ++i) {
    CChatMessage* message = zelhost::MessageAt(messages, i);
    if (IsUnread(zelhost::TakeValues(*message))) message->MarkRead();
  }
  return true;
}

bool CZelhostChatManager::SendMessage(const char* text) { return SendMessage(nullptr, text); }

// What was sent stands in the open chat at once; the runtime's own report of it adds nothing.
bool CZelhostChatManager::SendMessage(const char* name, const char* text) {
  ServiceHostLock lock("SendMessage");
  CChat* chat = text != nullptr && IsReady() ? RuntimeChat(name) : nullptr;
  if (chat == nullptr) return false;
  auto* sent = dynamic_cast<CChatMessage*>(chat->Say(text, false));
  CChatInfo* info = chat->GetInfo();
  if (sent != nullptr && info != nullptr && info->IsOpened()) info->m_Dialog.Append(sent);
  return true;
}

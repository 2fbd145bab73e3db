// What the root object does with the runtime's notifications.
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ChatMessage.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CChat.h"
#include "zelhost/apiwrapper/client/CTransfer.h"
#include "zelhost/apiwrapper/client/CVoicemail.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/apiwrapper/client/FileBinary.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

namespace {

constexpr int kContactsPosted = 8;  // the type of a message that holds contacts instead of text
constexpr char kBlobFile[] = "uic_request_blob.bin";

constexpr const char* kLibStatusNames[] = {"",         "CONSTRUCTED", "STARTING",   "RUNNING",
                                           "STOPPING", "STOPPED",     "FATAL_ERROR"};
constexpr const char* kConnStatusNames[] = {"", "OFFLINE", "CONNECTING", "PAUSING", "ONLINE"};

template <std::size_t kCount>
const char* NameOf(const char* const (&names)[kCount], int value) {
  return value > 0 && static_cast<std::size_t>(value) < kCount ? names[value] : "unknown";
}

const char* Token(const PMAP* table, int value, ZEString* holder) {
  *holder = ZEPMap(table).map(value);
  return *holder;
}

}  // namespace

void CZelto::OnLibStatusChange(LIBSTATUS status) {
  if (status == FATAL_ERROR) {
    trace(kTraceZelto, ":OnLibStatusChange:%s = %s", NameOf(kLibStatusNames, status),
          static_cast<const char*>(GetFatalErrorMessage()));
  } else {
    trace(kTraceZelto, ":OnLibStatusChange:%s", NameOf(kLibStatusNames, status));
  }
}

void CZelto::OnConnStatusChange(CONNSTATUS status) {
  trace(kTraceZelto, ":OnConnStatusChange:%s", NameOf(kConnStatusNames, status));
}

void CZelto::OnFileError(FILEERROR error) {
  ZEString token;
  trace(kTraceZelto, ":OnFileError:%s", Token(ZELTO_FILEERROR_MAP, error, &token));
}

void CZelto::OnProxyAuthenticationFailure(PROXYTYPE type) {
  ZEString token;
  trace(kTraceZelto, ":OnProxyAuthenticationFailure:%s", Token(ZELTO_PROXYTYPE_MAP, type, &token));
}

void CZelto::OnUpgradeInfo(UPGRADEAVAILABILITY availability, const ZEString& text) {
  ZEString token;
  trace(kTraceZelto, ":OnUpgradeInfo:%s,%s", Token(ZELTO_UPGRADEAVAILABILITY_MAP, availability, &token),
        static_cast<const char*>(text));
}

void CZelto::OnUICRequest(const ZEString& blob) {
  ZEString binary = blob;
  binary.markAsBinary();
  zelto::Print("Blob in hexa: %s\n", static_cast<const char*>(binary.getHexRepresentation()));
  if (blob.isEmpty()) {
    zelto::Print("Received blob is empty.");
    return;
  }
  zelto::Print("Received UIC Request, saving blob..");
  C_BinToFile(blob, kBlobFile, false);
}

// The gate for incoming calls: a second call is refused as busy; so is every new one while the call manager
// blocks them.
void CZelto::OnNewCall(Call* reported) {
  CCall* call = dynamic_cast<CCall*>(reported);
  if (call == nullptr) return;
  trace(kTraceZelto, ":OnNewCall = %u", call->getOID());
  if (!m_calls.Contains(call)) {
    lastCallIndex = m_calls.Count();
    m_calls.Append(call);
  }
  if (IsBusy(call)) return RefuseAsBusy(call);

  CZelhostCallManager* manager = CZelhostCallManager::GetInstance();
  manager->SetCallMembers(call);
  if (call->GetProp(Call::P_INCOMING).toInt() != 0) {
    const bool conference = call->GetProp(Call::P_CONFERENCE).toInt() != 0;
    CZeltoManager::SendEvent(
        conference ? CZeltoManager::INCOMING_CONFERENCE_CALL : CZeltoManager::INCOMING_CALL, 0);
  } else if (manager->GetCallType() == -1) {
    manager->SetCallMembers(nullptr);
    RemoveCall(call);
  }
}

bool CZelto::IsBusy(const CCall* call) const {
  if (lastCallIndex > 0) return true;
  return CZelhostCallManager::GetInstance()->IsBlockingIncomingCall() && CZelhostCallManager::m_pCall != call;
}

void CZelto::RefuseAsBusy(CCall* call) {
  if (CZelhostLocalSetting::GetIntValue(kSettingVoicemailForBusy) == 1) {
    call->End(CallMember::REDIRECT_TO_VOICEMAIL);
  } else {
    call->End(CallMember::HANG_UP);
    RemoveCall(call);
  }
}

void CZelto::OnChatMessage(Chat* reported, ChatMessage* message) {
  CChat* chat = dynamic_cast<CChat*>(reported);
  if (chat == nullptr || message == nullptr) return;
  trace(kTraceZelto, ":OnChatMessage = %u", chat->getOID());
  if (!m_chats.Contains(chat)) m_chats.Append(chat);
  if (message->GetProp(ChatMessage::P_TYPE).toInt() != kContactsPosted) {
    CZelhostChatManager::GetInstance()->OnNewMessage(chat, message);
    return;
  }
  if (!IsTraced(kTraceChatMessage)) return;
  ZEPtrVector contacts;
  message->GetContacts(contacts);
  trace(kTraceChatMessage, ":%u contacts posted", contacts.size());
}

void CZelto::OnIncomingVoicemail(Voicemail* reported) {
  CVoicemail* voicemail = dynamic_cast<CVoicemail*>(reported);
  if (voicemail == nullptr || m_voicemails.Contains(voicemail)) return;
  trace(kTraceZelto, ":OnIncomingVoicemail = %u", voicemail->getOID());
  const int heldBefore = m_voicemails.Count();
  m_voicemails.Append(voicemail);
  CZelhostHistoryManager::GetInstance()->OnNewVoicemail(voicemail);
  CZeltoManager::SendEvent(CZeltoManager::INCOMING_VOICEMAIL, heldBefore);
}

void CZelto::OnIncomingTransfer(Transfer* reported) {
  CTransfer* transfer = dynamic_cast<CTransfer*>(reported);
  if (transfer == nullptr) return;
  trace(kTraceZelto, ":OnIncomingTransfer = %u", transfer->getOID());
  if (!m_transfers.Contains(transfer)) m_transfers.Append(transfer);
}

void CZelto::OnNewCustomContactGroup(ContactGroup* group) {
  trace(kTraceZelto, ":OnNewCustomContactGroup = %u", group == nullptr ? 0 : group->getOID());
}

void CZelto::OnContactOnlineAppearance(Contact* contact) {
  trace(kTraceZelto, ":OnContactOnlineAppearance = %u", contact == nullptr ? 0 : contact->getOID());
}

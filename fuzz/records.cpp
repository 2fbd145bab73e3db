// Foreign texts (names, titles, moods, times, messages) on their way through the lists into the records that
// the widget takes apart. The first byte is the number of entries; the texts follow, each behind its length.
// Invariant: a page comes apart into as many fields as its entries have, each holding its own text, in which
// blanks stand for separators.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "../tests/apiwrapper/MemoryTransport.h"
#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CChat.h"
#include "zelhost/apiwrapper/client/CVoicemail.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/ChatList.h"
#include "zelhost/chats/ChatRecords.h"
#include "zelhost/contacts/ContactList.h"
#include "zelhost/history/ZelhostHistoryManager.h"

namespace {

using Texts = std::vector<std::string>;

void Require(bool holds) {
  if (!holds) std::abort();
}

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

  unsigned Byte() {
    if (m_rest.empty()) return 0;
    const auto byte = static_cast<unsigned char>(m_rest.front());
    m_rest.remove_prefix(1);
    return byte;
  }
  // Lengths from 240 on are those of very long texts, which repeat what is there.
  ZEString Text() {
    constexpr unsigned kLong = 240;
    const unsigned length = Byte();
    const std::string_view text = m_rest.substr(0, std::min(length, kLong));
    m_rest.remove_prefix(text.size());
    std::string whole(text);
    for (unsigned i = kLong; i < length; ++i) whole += text;
    return ZEString(std::string_view(whole));
  }
  template <std::size_t kCount>
  ZEIntDict Values(const int (&properties)[kCount]) {
    ZEIntDict values;
    for (const int property : properties) values.insert(property, Text());
    return values;
  }

 private:
  std::string_view m_rest;
};

// The runtime: answers the requests of a method with the replies that were put down, and others with nothing.
class Runtime : public MemoryTransport {
 public:
  Runtime() {
    onPush = [this](const std::string& request) {
      std::istringstream words(request);
      std::string id, ask, owner, method;
      words >> id >> ask >> owner >> method;
      if (id.front() != '#') return;
      std::deque<std::string>& own = m_replies[method];
      incoming.push_back(id + " b " + (own.empty() ? "" : own.front()));
      if (!own.empty()) own.pop_front();
    };
  }
  void Reply(const ZEMethod& method, const std::string& reply) { m_replies[method.token].push_back(reply); }

 private:
  std::map<std::string, std::deque<std::string>> m_replies;  // by method
};

std::string Clean(std::string_view value) {
  std::string text(value);
  for (std::size_t at; (at = text.find("\x03\x02")) != std::string::npos;) text.replace(at, 2, "  ");
  return text;
}

void RequireRecords(const std::string& page, const Texts& expected) {
  std::size_t from = 0;
  for (const std::string& field : expected) {
    const std::size_t end = page.find("\x03\x02", from);
    Require(end != std::string::npos && page.compare(from, end - from, field) == 0);
    from = end + 2;
  }
  Require(from == page.size());
}

// The fields of a record as the entry's values say.
constexpr int kNothing = -1;  // times are empty without a host
template <class Value, class Properties>
void Expect(Texts& fields, const Value& value, const Properties& properties) {
  for (const int property : properties) fields.push_back(Clean(ZEString(value(property)).view()));
}

void CheckContacts(Input& input, unsigned count) {
  ContactList list;
  for (unsigned i = 0; i < count; ++i) {
    auto entry = std::make_unique<CContactInfo>();
    for (const int property : zelhost::kContactRecord) entry->Set(property, input.Text());
    entry->SetCategory(CContactInfo::SetSortCategory(entry->Get(Contact::P_AVAILABILITY).toInt()));
    const ZEString key = entry->Key();
    const CContactInfo* listed = list.Insert(std::move(entry));
    Require(key.isEmpty() || list.Find(key.view())->GoesBy(key.view()));
    list.Set(listed, Contact::P_DISPLAY_NAME, input.Text());
    list.Place(listed);
    Require(list.At(list.PositionOf(listed)) == listed);
  }
  std::vector<const CContactInfo*> shown;
  Texts fields;
  list.VisitFrom(0, [&](const CContactInfo* entry, int) {
    shown.push_back(entry);
    Expect(
        fields, [&](int property) { return entry->Get(property); }, zelhost::kContactRecord);
    return true;
  });
  Require(shown.size() == count);
  std::string page;
  WriteContactRecords(shown, page);
  RequireRecords(page, fields);
}

void CheckChats(Input& input, unsigned count, CZelto& root) {
  constexpr int kProperties[] = {Chat::P_NAME, Chat::P_TYPE, Chat::P_11, Chat::P_3, Chat::P_LAST_ACTIVITY};
  constexpr int kRecord[] = {Chat::P_NAME, Chat::P_3, kNothing, CChatInfo::kUnread};
  constexpr int kWithType[] = {Chat::P_NAME, Chat::P_TYPE, Chat::P_11,
                               Chat::P_3,    kNothing,     CChatInfo::kUnread};
  ChatList list;
  for (unsigned i = 1; i <= count; ++i) {
    const ZEIntDict values = input.Values(kProperties);
    if (list.Find(values.find(Chat::P_NAME).view()) != nullptr) continue;
    list.Add(std::make_unique<CChatInfo>(static_cast<CChat*>(root.getChat(i)), values));
  }
  std::string pages[2];
  Texts fields[2];
  for (const auto& chat : list.Ordered()) {
    zelto::RecordWriter plain(pages[0]);
    zelto::RecordWriter withType(pages[1]);
    zelhost::WriteChat(plain, *chat);
    zelhost::WriteChatWithType(withType, *chat);
    const auto value = [&](int property) { return chat->Get(property); };
    Expect(fields[0], value, kRecord);
    Expect(fields[1], value, kWithType);
  }
  RequireRecords(pages[0], fields[0]);
  RequireRecords(pages[1], fields[1]);
}

void CheckMessages(Input& input, unsigned count) {
  constexpr int kRecord[] = {ChatMessage::P_AUTHOR, ChatMessage::P_AUTHOR_DISPLAY_NAME, kNothing,
                             ChatMessage::P_BODY, ChatMessage::P_STATUS};
  std::string page;
  zelto::RecordWriter writer(page);
  Texts fields;
  for (unsigned i = 0; i < count; ++i) {
    const ZEIntDict values = input.Values(zelhost::kMessageRecordProperties);
    zelhost::WriteMessageWithAuthor(writer, values, values.find(ChatMessage::P_STATUS));
    Expect(
        fields, [&](int property) { return values.find(property); }, kRecord);
  }
  RequireRecords(page, fields);
}

// The runtime's words for an object's values.
std::string Words(ZEObject& object, const ZEIntDict& values) {
  return std::string(object.wireProps(values).format(true).view());
}

constexpr char kNextLine[] = "\nb ";
constexpr unsigned kCalls = 1000;
constexpr unsigned kMembers = 2000;  // two for each call
constexpr unsigned kVoicemails = 3000;

void TakeCalls(Input& input, unsigned count, Runtime& runtime, CZelto& root) {
  constexpr int kProperties[] = {Call::P_START_TIME, Call::P_UNSEEN, Call::P_INCOMING, Call::P_CONFERENCE};
  constexpr int kOfMembers[] = {CallMember::P_IDENTITY, CallMember::P_DISPLAY_NAME};
  ZEPtrVector found(count);
  std::string calls;
  std::string members;
  for (unsigned i = 0; i < count; ++i) {
    ZEObject* call = root.getCall(kCalls + i);
    found[i] = call;
    calls += Words(*call, input.Values(kProperties)) + kNextLine;
    const unsigned first = kMembers + 2 * i;
    for (const unsigned id : {first, first + 1}) {
      members += Words(*root.getCallMember(id), input.Values(kOfMembers)) + kNextLine;
    }
    runtime.Reply(CallMethod::GetMembers,
                  "0=\"" + std::to_string(first) + "," + std::to_string(first + 1) + "\"");
  }
  runtime.Reply(ObjectMethod::GetMultipleObjectsProps, calls);
  runtime.Reply(ObjectMethod::GetMultipleObjectsProps, members);
  CZelhostHistoryManager::GetInstance()->UpdateHistoryList(Search::CALLS, found);
}

void TakeVoicemails(Input& input, unsigned count, Runtime& runtime, CZelto& root) {
  constexpr int kProperties[] = {Voicemail::P_STATUS, Voicemail::P_PARTNER_IDENTITY,
                                 Voicemail::P_PARTNER_DISPLAY_NAME, Voicemail::P_TIMESTAMP,
                                 Voicemail::P_DURATION};
  for (unsigned i = 0; i < count; ++i) {
    Voicemail* voicemail = root.getVoicemail(kVoicemails + i);
    ZEIntDict values = input.Values(kProperties);
    values.insert(Voicemail::P_TYPE, "1");
    runtime.Reply(ObjectMethod::GetProps, Words(*voicemail, values));
    Require(CZelhostHistoryManager::GetInstance()->OnNewVoicemail(voicemail));
  }
}

void CheckHistory(int count) {
  CZelhostHistoryManager& history = *CZelhostHistoryManager::GetInstance();
  Require(history.GetNumOfHistories() == count);
  constexpr int kKeys[] = {0, 1, 2, 4, 5, 6, 7, 8, 9, 3, 10};
  Texts fields[std::size(kKeys) + 1];  // of all entries, by the length of the record
  for (int i = 0; i < count; ++i) {
    const auto value = [&](int key) { return history.GetHistoryInfo(i, key); };
    for (std::size_t length = 9; length <= std::size(kKeys); ++length) {
      Expect(fields[length], value, std::vector<int>(kKeys, kKeys + length));
    }
    const std::string time = value(3);
    Require(time == history.GetHistoryInfoWithTimestamp(time.c_str(), 3));
  }
  RequireRecords(history.GetHistoryInfo(0, count, 0), fields[9]);
  RequireRecords(history.GetHistoryInfoIncludingTimestamp(0, count, 0), fields[10]);
  RequireRecords(history.GetHistoryInfoIncludingCallMembers(0, count, 0), fields[11]);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  stderr = std::fopen("/dev/null", "w");  // the protocol's error lines; the fuzzer keeps its own handle
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4096) return 0;
  Input input(data, size);
  const unsigned count = 1 + input.Byte() % 6;
  zelhost::ServiceHostLock lock("the runtime's texts");
  Runtime runtime;
  runtime.Reply(RootMethod::Start, "0=\"1211\"");
  CZelto root(&runtime, false, ZEString());
  root.SetLogLevel(0);
  root.m_reportLeaks = false;
  root.Start(true, "");
  g_lpZelto = &root;
  CheckContacts(input, count);
  CheckChats(input, count, root);
  CheckMessages(input, count);
  TakeCalls(input, count, runtime, root);
  TakeVoicemails(input, count, runtime, root);
  CheckHistory(static_cast<int>(2 * count));
  CZelhostHistoryManager::GetInstance()->ClearHistoryList();
  g_lpZelto = nullptr;
  return 0;
}

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

unsigned IdOf(const Exchange& exchange) { return exchange.Target().id; }

// All chats.

void CreateChat(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.chats.Create());
}

void GetChat(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.chats.Find(exchange.Text(ZEKey::ChatName)));
}

void OpenChatTo(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.chats.OpenTo(exchange.Text(ZEKey::Partner)));
}

template <std::vector<unsigned> (Chats::*kList)()>
void List(Session& session, Exchange& exchange) {
  exchange.AnswerObjects(ZEKey::Result, (session.chats.*kList)());
}

void DeleteAllMessages(Session& session, Exchange&) { session.chats.ClearAllMessages(); }

void GetChatMemberCountLimit(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, static_cast<long long>(kMostChatMembers));
}

// One chat.

// Whoever asks wants to show the chat: all that is kept of it is recent, and nothing leads up to that.
void GetRecentMessages(Session& session, Exchange& exchange) {
  std::vector<unsigned> messages;
  exchange.Answer(ZEKey::Result, session.chats.Recent(IdOf(exchange), messages));
  exchange.Answer(ZEKey::EarlierMessages, "");
  exchange.AnswerObjects(ZEKey::Objects, messages);
}

// What is said is sent at once.
void GetUnsentMessages(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, 1);
  exchange.Answer(ZEKey::Objects, "");
}

void Say(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result,
                  static_cast<long long>(session.chats.Say(IdOf(exchange), exchange.Text(ZEKey::Text))));
}

void PostContacts(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result,
                  session.chats.PostContacts(IdOf(exchange), exchange.Ids(ZEKey::Objects)) != 0);
}

void AddMembers(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.chats.AddMembers(IdOf(exchange), exchange.Texts(ZEKey::Members)));
}

void KickMember(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.chats.RemoveMember(IdOf(exchange), exchange.Text(ZEKey::Partner)));
}

void SetTopic(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.chats.SetTopic(IdOf(exchange), exchange.Text(ZEKey::Topic)));
}

void SetBookmark(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.chats.SetBookmark(IdOf(exchange), exchange.Flag(ZEKey::Bookmark)));
}

template <bool (Chats::*kAct)(unsigned)>
void Act(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, (session.chats.*kAct)(IdOf(exchange)));
}

void GetMembers(Session& session, Exchange& exchange) {
  exchange.AnswerObjects(ZEKey::Result, session.chats.Members(IdOf(exchange)));
}

// One message.

void Edit(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.chats.Edit(IdOf(exchange), exchange.Text(ZEKey::NewText)));
}

void GetContacts(Session& session, Exchange& exchange) {
  const std::vector<unsigned> contacts = session.chats.ContactsOf(IdOf(exchange));
  exchange.Answer(ZEKey::Result, !contacts.empty());
  exchange.AnswerObjects(ZEKey::Objects, contacts);
}

// Simulated chats have no passwords, pictures, guidelines, files and other roles, and nobody in them looks at
// what the user is typing.
// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::CreateChat,              CreateChat},
    {&RootMethod::GetChat,                 GetChat},
    {&RootMethod::OpenChatTo,              OpenChatTo},
    {&RootMethod::GetPublicChat,           Decline},
    {&RootMethod::DeleteAllMessages,       DeleteAllMessages},
    {&RootMethod::GetRecentChats,          List<&Chats::All>},
    {&RootMethod::GetUnreadChats,          List<&Chats::Unread>},
    {&RootMethod::GetBookmarkedChats,      List<&Chats::Bookmarked>},
    {&RootMethod::GetChatMemberCountLimit, GetChatMemberCountLimit},
    {&ChatMethod::GetRecentMessages,       GetRecentMessages},
    {&ChatMethod::ClearRecentMessages,     Act<&Chats::ClearMessages>},
    {&ChatMethod::GetUnsentMessages,       GetUnsentMessages},
    {&ChatMethod::Say,                     Say},
    {&ChatMethod::PostContacts,            PostContacts},
    {&ChatMethod::AddMembers,              AddMembers},
    {&ChatMethod::KickMember,              KickMember},
    {&ChatMethod::SetTopic,                SetTopic},
    {&ChatMethod::SetBookmark,             SetBookmark},
    {&ChatMethod::Leave,                   Act<&Chats::Leave>},
    {&ChatMethod::Delete,                  Act<&Chats::Delete>},
    {&ChatMethod::GetMembers,              GetMembers},
    {&ChatMethod::ReportMyActivities,      TakeNote},
    {&ChatMethod::Join,                    Decline},
    {&ChatMethod::AcceptAdd,               Decline},
    {&ChatMethod::Disband,                 Decline},
    {&ChatMethod::SetPassword,             Decline},
    {&ChatMethod::EnterPassword,           Decline},
    {&ChatMethod::SetPicture,              Decline},
    {&ChatMethod::SetOptions,              Decline},
    {&ChatMethod::SetGuidelines,           Decline},
    {&ChatMethod::SetAlertString,          Decline},
    {&ChatMethod::PostFiles,               Decline},
    {&ChatMemberMethod::CanSetRoleTo,      Decline},
    {&ChatMemberMethod::SetRoleTo,         Decline},
    {&ChatMessageMethod::IsEditable,       Act<&Chats::IsEditable>},
    {&ChatMessageMethod::Edit,             Edit},
    {&ChatMessageMethod::MarkRead,         Act<&Chats::MarkRead>},
    {&ChatMessageMethod::GetContacts,      GetContacts},
};
// clang-format on

}  // namespace

HandlerRows ChatHandlers() { return RowsOf(kRows); }

}  // namespace simulator

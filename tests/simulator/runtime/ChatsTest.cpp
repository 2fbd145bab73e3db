#include "simulator/runtime/world/Chats.h"

#include <algorithm>

#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/world/ChatProperties.h"
#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::RuntimeFixture;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class TheChats : public RuntimeFixture {
 protected:
  TheChats() { SignIn("demo", "demo1234"); }

  json Order(const std::string& words) {
    const json answer = orders.Execute(Orders::FromWords(words));
    EXPECT_TRUE(answer["ok"].get<bool>()) << words << ": " << answer;
    return answer;
  }
  Object* At(const std::string& id) { return session.world.Find(ToUnsigned(id)); }
  Object& DialogWith(const std::string& identity) {
    return *At(Result(RootMethod::OpenChatTo, Pair(ZEKey::Partner, identity)));
  }
  std::string Say(const Object& chat, const std::string& text) {
    return Result(ChatMethod::Say, On(chat) + Pair(ZEKey::Text, text) + Pair(ZEKey::TextFlag, "0"));
  }
  std::vector<Object*> Recent(const Object& chat) {
    std::vector<Object*> messages;
    const std::string list = Result(ChatMethod::GetRecentMessages, On(chat), ZEKey::Objects);
    for (const auto id : SplitList(list)) messages.push_back(session.world.Find(ToUnsigned(id)));
    return messages;
  }
  // "author: body (status)" of each.
  std::vector<std::string> Dialog(const Object& chat) {
    std::vector<std::string> lines;
    for (const Object* message : Recent(chat)) {
      lines.push_back(message->GetText(message::kAuthor) + ": " + message->GetText(message::kBody) + " (" +
                      message->GetText(message::kStatus) + ")");
    }
    return lines;
  }
  // What a runtime finds that is started on the same files after a sudden death of this one.
  template <typename Look>
  void StartAgain(Look look) {
    SimulatedService again(DeviceStore::DataFolder(device.Folder()));
    look(again.Chats("demo"), again);
  }

  Wire wire{false};
  Controls controls{wire, faults, &session};
  Orders orders{controls};
};

TEST_F(TheChats, AnswerWhatIsSaidInThem) {
  Object& dialog = DialogWith("anna");
  EXPECT_EQ(&dialog, &DialogWith("Anna "));
  EXPECT_EQ(&dialog, At(Result(RootMethod::GetChat, Pair(ZEKey::ChatName, dialog.GetText(chat::kName)))));
  EXPECT_EQ("Anna", dialog.GetText(chat::kTitle));
  EXPECT_EQ(chat::kDialog, dialog.GetInt(chat::kType));
  outbox.texts.clear();

  const std::string said = Say(dialog, "Hello, \"you\"");
  EXPECT_THAT(Words(), Not(Contains(HasSubstr("ChatMessage.ChatMessage"))));
  EXPECT_EQ(message::kSending, At(said)->GetInt(message::kStatus));
  Pass(100);
  EXPECT_THAT(ValuesOf(*At(said), message::kStatus), ElementsAre("2"));
  Pass(1000);
  EXPECT_THAT(Dialog(dialog), ElementsAre("demo: Hello, \"you\" (2)", "anna: You wrote: Hello, \"you\" (3)"));
  EXPECT_THAT(Words(),
              Contains("event ChatMessage.ChatMessage object=" + std::to_string(Recent(dialog)[1]->id) +
                       " chat=" + std::to_string(dialog.id)));
  EXPECT_EQ("demo anna", dialog.GetText(chat::kPosters));

  for (const char* silent : {"dmitri", "noanswer", "nobody.at.all"}) {
    Say(DialogWith(silent), "Hello?");
    Pass(1500);
    EXPECT_EQ(1u, Recent(DialogWith(silent)).size()) << silent;
  }
  EXPECT_EQ("0", Say(dialog, ""));
  EXPECT_EQ("0", Say(dialog, std::string(kLongestMessage + 1, 'x')));
  for (const char* nobody : {"+15550100", "demo", "", "no name"}) {
    EXPECT_EQ("0", Result(RootMethod::OpenChatTo, Pair(ZEKey::Partner, nobody))) << nobody;
  }
}

TEST_F(TheChats, CountWhatHasNotBeenReadAlsoAfterASuddenDeath) {
  const json first = Order("message from=bruno text=\"Are you there?\"");
  EXPECT_EQ(2, Order("message from=bruno text=Hello")["unread"]);
  Object& dialog = *session.chats.Find(first["chat"].get<std::string>());
  const std::string id = std::to_string(dialog.id);
  EXPECT_EQ(id, Result(RootMethod::GetUnreadChats));
  outbox.texts.clear();
  EXPECT_EQ("1", Result(ChatMessageMethod::MarkRead, On(*Recent(dialog)[0])));
  EXPECT_EQ("1", Result(ChatMessageMethod::MarkRead, On(*Recent(dialog)[0])));
  EXPECT_EQ(1, dialog.GetInt(chat::kUnread));
  EXPECT_THAT(ValuesOf(*Recent(dialog)[0], message::kStatus), ElementsAre("4"));

  StartAgain([&](const std::vector<ChatRecord>& chats, SimulatedService& again) {
    ASSERT_EQ(1u, chats.size());
    EXPECT_EQ(1, chats[0].unread);
    EXPECT_EQ("bruno", chats[0].partner);
    const std::vector<MessageRecord> messages = again.Messages(chats[0].number, 10);
    ASSERT_EQ(2u, messages.size());
    EXPECT_EQ("Are you there?", messages[0].body);
    EXPECT_EQ(message::kUnread, messages[1].status);
  });

  // Signed out there are no chats; the same account finds the same objects, another one does not.
  session.signIn.Drop(LogoutReason::Requested);
  EXPECT_EQ("0", Say(dialog, "Anybody?"));
  EXPECT_EQ("", Result(RootMethod::GetRecentChats));
  SignIn("demo", "demo1234");
  EXPECT_EQ(id, Result(RootMethod::GetRecentChats));
  SignIn("maria", "maria1234");
  EXPECT_EQ("", Result(RootMethod::GetRecentChats));
  EXPECT_EQ(nullptr, At(id));
}

TEST_F(TheChats, BringPeopleTogetherUntilTheyLeave) {
  const json opened = Order("chat with=anna,bruno,+15550100 topic=Dinner text=\"At eight?\"");
  Object& chat = *At(opened["object"].dump());
  EXPECT_EQ(chat::kMultiPerson, chat.GetInt(chat::kType));
  EXPECT_EQ("Dinner", chat.GetText(chat::kTitle));
  EXPECT_EQ("Anna, Bruno", chat.GetText(chat::kMembers));
  EXPECT_EQ("anna", chat.GetText(chat::kPosters));
  EXPECT_EQ(3u, session.chats.Members(chat.id).size());

  EXPECT_EQ("1", Result(ChatMethod::AddMembers, On(chat) + Pair(ZEKey::Members, "chloe,anna")));
  EXPECT_EQ("0", Result(ChatMethod::AddMembers, On(chat) + Pair(ZEKey::Members, "anna")));
  EXPECT_EQ("1", Result(ChatMethod::KickMember, On(chat) + Pair(ZEKey::Partner, "bruno")));
  EXPECT_EQ("1", Result(ChatMethod::SetTopic, On(chat) + Pair(ZEKey::Topic, "Supper")));
  EXPECT_EQ("Anna, Chlo\xc3\xa9", chat.GetText(chat::kMembers));
  EXPECT_THAT(Dialog(chat), ElementsAre("demo: anna bruno (2)", "demo: Dinner (2)", "anna: At eight? (3)",
                                        "demo: chloe (2)", "bruno:  (2)", "demo: Supper (2)"));

  outbox.texts.clear();
  EXPECT_EQ("1", Result(ChatMethod::Leave, On(chat) + Pair(ZEKey::LeaveReason, "1403")));
  EXPECT_EQ("0", Result(ChatMethod::Leave, On(chat) + Pair(ZEKey::LeaveReason, "1403")));
  EXPECT_THAT(ValuesOf(chat, chat::kMyStatus), ElementsAre("8"));
  EXPECT_EQ("0", Say(chat, "Wait"));
  EXPECT_FALSE(
      orders.Execute(Orders::FromWords("message from=anna text=Gone chat=chat.1"))["ok"].get<bool>());
  StartAgain([&](const std::vector<ChatRecord>& chats, SimulatedService&) { EXPECT_TRUE(chats.at(0).left); });

  // The messages go with their chat without a word.
  outbox.texts.clear();
  EXPECT_EQ("1", Result(ChatMethod::Delete, On(chat)));
  EXPECT_EQ(2u, Words().size());
  StartAgain([&](const std::vector<ChatRecord>& chats, SimulatedService& again) {
    EXPECT_THAT(chats, IsEmpty());
    EXPECT_THAT(again.Messages(1, 10), IsEmpty());
  });
  Object& dialog = DialogWith("anna");
  EXPECT_EQ("0", Result(ChatMethod::Leave, On(dialog) + Pair(ZEKey::LeaveReason, "1403")));
  const std::string deleted = "event Chat.ObjectDelete object=" + std::to_string(dialog.id);
  Order("delete " + dialog.GetText(chat::kName));
  EXPECT_THAT(Words(), Contains(deleted));
}

// The engine deletes a dialog with somebody blocked when its status becomes 7, which it must hear of after it
// has heard of the chat.
TEST_F(TheChats, TellOfAChatThatComesAboutAfterItsFirstMessage) {
  outbox.texts.clear();
  Order("message from=jonas text=Watches!");
  const std::vector<std::string> words = Words();
  const auto positionOf = [&](const std::string& part) {
    const auto found = std::find_if(words.begin(), words.end(), [&](const std::string& line) {
      return line.find(part) != std::string::npos;
    });
    return found - words.begin();
  };
  EXPECT_LT(positionOf("ChatMessage.ChatMessage"), positionOf("property=8 value=7"));
  EXPECT_LT(positionOf("property=8 value=7"), static_cast<std::ptrdiff_t>(words.size()));
}

TEST_F(TheChats, CanBeManyAndLong) {
  Order("chats 1000");
  EXPECT_EQ(1000u, session.chats.All().size());
  Object& dialog = DialogWith("emi.k");
  Say(dialog, "First");
  outbox.texts.clear();
  Order("messages 10000 with=emi.k");
  EXPECT_THAT(Words(), IsEmpty());
  const std::vector<Object*> messages = Recent(dialog);
  ASSERT_EQ(10001u, messages.size());
  EXPECT_EQ("First", messages.front()->GetText(message::kBody));
  EXPECT_EQ("Message 10000", messages.back()->GetText(message::kBody));
  EXPECT_EQ(500, dialog.GetInt(chat::kUnread));
  Order("message from=emi.k text=New");
  EXPECT_EQ("New", Recent(dialog).back()->GetText(message::kBody));
  const std::size_t before = session.world.Objects().size();
  outbox.texts.clear();
  EXPECT_EQ("1", Result(ChatMethod::Delete, On(dialog)));
  EXPECT_EQ(2u, Words().size());
  EXPECT_EQ(before - 10003, session.world.Objects().size());
}

}  // namespace
}  // namespace simulator

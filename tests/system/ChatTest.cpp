#include "tests/system/RememberedService.h"

namespace test {

namespace {

constexpr int kNewMessage = 401;
constexpr int kChatRemoved = 413;

// Properties of the runtime's objects.
constexpr int kName = 1;
constexpr int kTitle = 3;
constexpr int kType = 7;
constexpr int kOthers = 11;
constexpr int kActive = 21;

class AViewersChats : public AViewerWithAPast {
 protected:
  std::string ChatRecord(int chat, const char* unread) {
    const std::string id = std::to_string(chat);
    return Record({Value(id, kName), Value(id, kType), Value(id, kOthers), Value(id, kTitle),
                   LocalTime(Value(id, kActive)), unread});
  }
  // Record of a message: the newest, "ChatMessage~1" the one before.
  std::string MessageRecord(const char* message, const char* author, const char* name, const char* body,
                            const char* status) {
    return Record({author, name, LocalTime(Value(message, 2)), body, status});
  }
  std::string Unread() {
    return Execute("GetTotalNumOfUnReadChats") + " " + Execute("GetTotalNumOfUnReadMessages");
  }
};

}  // namespace

TEST_F(AViewersChats, AreOpenedReadAnsweredAndLeft) {
  ASSERT_NO_FATAL_FAILURE(SignInAndRemember());
  EXPECT_EQ(Execute("GetNumOfChatList") + Execute("GetCurrentChatProperty", "1"), "0");
  EXPECT_EQ(Execute("SendMessage", "Hello") + Execute("OpenChatWithChatName", "nothing"), "00");
  ASSERT_EQ(Execute("OpenChatWithContact", "anna"), "1");
  const int anna = IdOf("Chat");
  const std::string key = Execute("GetCurrentChatProperty", "1");
  EXPECT_EQ(key, Value(std::to_string(anna), kName));
  EXPECT_EQ(Execute("SendMessage", "Hello"), "1");
  ASSERT_TRUE(Becomes([&] { return Execute("GetNumOfMessages") == "2"; }));
  EXPECT_EQ(Execute("GetTotalNumOfUnReadMessages"), "1");
  const std::string own = MessageRecord("ChatMessage~1", kDemoName, "Demo Person", "Hello", "2");
  EXPECT_EQ(Execute("GetMessages"),
            own + MessageRecord("ChatMessage", "anna", "Anna", "You wrote: Hello", "3"));
  EXPECT_EQ(Execute("GetMessages") + Execute("GetMessages", key.c_str()), "");
  EXPECT_EQ(Unread(), "0 0");
  const std::string answer = MessageRecord("ChatMessage", "anna", "Anna", "You wrote: Hello", "4");
  EXPECT_EQ(Execute("GetMessages", "0", "9"), own + answer);
  EXPECT_EQ(Execute("GetMessages", "1", "1", key.c_str()), answer);
  EXPECT_EQ(Execute("GetMessages", "2", "3") + Execute("GetMessages", "1", "0") +
                Execute("GetMessages", "-1", "1") + Execute("GetMessages", "", "1"),
            "");
  ASSERT_TRUE(Arrives(kUnreadCountChanged));
  EXPECT_EQ(Heard(kNewMessage), 0);  // while a chat is open
  EXPECT_EQ(Execute("CloseChat", ""), "1");
  EXPECT_EQ(Execute("GetCurrentChatProperty", "1"), "");
  EXPECT_EQ(Execute("CloseChat", key.c_str()), "0");

  // Somebody else's chat: what it is about, and who was added, are no messages to be read.
  const int trip = Order(
      {{"order", "chat"}, {"with", "bruno,chloe"}, {"topic", "Trip"}, {"text", "Who comes?"}})["object"];
  Order({{"order", "chat"}, {"with", "emi.k,hugo"}, {"topic", ""}});  // nobody has said anything
  ASSERT_TRUE(Arrives(kNewMessage));
  EXPECT_EQ(Unread(), "1 1");
  const std::string both = ChatRecord(trip, "1") + ChatRecord(anna, "0");
  EXPECT_EQ(Execute("GetChatListWithIndex", "0", "10", "3"), both);
  EXPECT_EQ(Execute("GetChatListWithChatName", key.c_str(), "2", "1"), ChatRecord(trip, "1"));
  EXPECT_EQ(Execute("GetChatListWithIndex", "-1", "1", "0") +
                Execute("GetChatListWithChatName", "nothing", "1", "0") +
                Execute("GetChatProperty", "2", "1"),
            "");
  EXPECT_EQ(Execute("GetChatProperty", "0", "3"), Value(std::to_string(trip), kTitle));
  EXPECT_EQ(Execute("GetChatProperty", "0", "4"), "1");
  ASSERT_NO_FATAL_FAILURE(SignInAgain());
  EXPECT_EQ(Execute("GetChatListWithIndex", "0", "10", "0"), both);
  const std::string tripKey = Execute("GetChatProperty", "0", "1");
  ASSERT_EQ(Execute("OpenChatWithChatName", tripKey.c_str()), "1");
  EXPECT_EQ(Fields(Execute("GetMessages")).at(3), "Who comes?");
  EXPECT_EQ(Execute("GetNumOfMessages") + Unread(), "10 0");
  EXPECT_EQ(Execute("SendMessage", key.c_str(), "Bye"), "1");  // into the other one
  EXPECT_EQ(Execute("SendMessage", "nothing", "Bye") + Execute("SendMessage", ""), "0");
  EXPECT_EQ(Execute("GetNumOfMessages"), "1");
  EXPECT_EQ(Execute("LeaveChat", tripKey.c_str()), "1");
  EXPECT_TRUE(Arrives(kChatRemoved));
  EXPECT_TRUE(Becomes([&] { return !IsThere(trip); }));
  EXPECT_EQ(Execute("GetNumOfChatList") + Execute("GetCurrentChatProperty", "1"), "1");

  // The dialog's id becomes a voicemail's, and then another chat's.
  EXPECT_TRUE(Becomes([&] { return Unread() == "1 1"; }));
  ForgetsId(anna);
  EXPECT_TRUE(Arrives(kChatRemoved));
  EXPECT_EQ(Execute("GetNumOfChatList") + Unread(), "00 0");
  IsToldToBeAVoicemail(anna);
  Order({{"order", "message"}, {"from", "anna"}, {"text", "Are you there?"}});
  EXPECT_EQ(Execute("OpenChatWithContact", "anna") + Execute("OpenChatWithChatName", key.c_str()), "00");
  ForgetsId(anna);
  EXPECT_EQ(Execute("GetNumOfChatList") + Unread(), "00 0");
  Set(std::to_string(anna), kTitle, "Another");
  Order({{"order", "message"}, {"from", "anna"}, {"text", "Still there?"}});
  ASSERT_TRUE(Arrives(kNewMessage));
  EXPECT_EQ(Unread(), "1 3");
  EXPECT_EQ(Execute("GetChatListWithIndex", "0", "10", "0"), ChatRecord(anna, "3"));
}

TEST_F(AViewersChats, CostWithThousandsOfThemAndTenThousandMessagesWhatIsShown) {
  ASSERT_NO_FATAL_FAILURE(SignInAndRemember());
  Order({{"order", "chats"}, {"count", 100}});
  const int some = FramesOf([&] { SignInAgain(); });
  Order({{"order", "chats"}, {"count", 900}, {"seed", 2}});
  const int many = FramesOf([&] { SignInAgain(); });
  ASSERT_EQ(Execute("GetNumOfChatList"), "1000");
  EXPECT_EQ(Unread(), "500 500");
  EXPECT_LE(many, 13 * some);
  std::string page;
  EXPECT_LE(FramesOf([&] { page = Execute("GetChatListWithIndex", "500", "20", "5"); }), 10);
  EXPECT_EQ(Fields(page).size(), 20u * 6);

  const json chat = Order({{"order", "messages"}, {"count", 10000}, {"with", "emi.k"}});
  EXPECT_LE(FramesOf([&] { Execute("OpenChatWithContact", "emi.k"); }), 30);
  ASSERT_EQ(Execute("GetNumOfMessages"), "10000");
  EXPECT_LE(FramesOf([&] { page = Execute("GetMessages", "5000", "5049"); }), 10);
  EXPECT_EQ(Fields(page).size(), 50u * 5);
  EXPECT_EQ(Unread(), "501 1000");
  EXPECT_LE(FramesOf([&] { page = Execute("GetMessages", "9000", "9099"); }), 50 * 6 + 10);
  EXPECT_EQ(Unread(), "501 950");

  // A message goes while its page is read; opened again, the chat has another one of that id.
  const std::string message = std::to_string(IdOf("ChatMessage~850"));
  OrderAfterFrames(1, "event ObjectDelete object=\"" + message + '"');
  EXPECT_EQ(Fields(Execute("GetMessages", "9100", "9199")).size(), 100u * 5);
  EXPECT_TRUE(Becomes([&] { return Execute("GetNumOfMessages") == "9999"; }));
  page = Execute("GetMessages", "9140", "9160");
  EXPECT_EQ(Execute("OpenChatWithContact", "emi.k"), "1");
  EXPECT_EQ(Execute("GetNumOfMessages"), "10000");
  EXPECT_NE(Execute("GetMessages", "9140", "9160"), page);
  EXPECT_EQ(Unread(), "501 900");

  // The chat goes at another place while a page of it is read.
  OrderAfterFrames(20, "delete object=" + chat["chat"].get<std::string>());
  page = Execute("GetMessages", "9200", "9299");
  EXPECT_EQ(Fields(page).size() % 5, 0u);
  EXPECT_TRUE(Arrives(kChatRemoved));
  EXPECT_EQ(Execute("GetNumOfChatList") + Execute("GetMessages", "0", "9") + Unread(), "1000500 500");
}

}  // namespace test

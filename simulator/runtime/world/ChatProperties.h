// The properties of chats, their members and their messages that the runtime gives a meaning to, by their
// number, and the values of those that have a course.
#pragma once

namespace simulator {
namespace chat {

enum Property : int {
  kName = 1,  // the key of a chat, no text for people
  kTitle = 3,
  kCreated = 5,
  kType = 7,
  kMyStatus = 8,
  kMyRole = 9,
  kPosters = 10,  // identities of those who have said something, blanks between them
  kMembers = 11,  // names of those who take part besides the account
  kMemberCount = 12,
  kTopic = 16,
  kUnread = 17,  // messages
  kBookmarked = 18,
  kActive = 21,
  kPartner = 22,
};

enum Type : int { kDialog = 2, kMultiPerson = 3 };
enum MyStatus : int { kConnecting = 1, kTakingPart = 7, kLeft = 8 };

}  // namespace chat

namespace chatmember {

enum Property : int { kChat = 1, kIdentity = 2, kRole = 3, kActive = 4, kActivity = 5 };
enum Role : int { kCreator = 1, kUser = 4 };
enum Activity : int { kUnknownActivity = 1, kQuiet = 2 };

}  // namespace chatmember

namespace message {

enum Property : int {
  kChat = 1,  // its name
  kAt = 2,
  kAuthor = 4,
  kAuthorName = 5,
  kType = 6,
  kBody = 12,
  kStatus = 14,
};

enum Type : int {
  kTopicSet = 1,      // body: the topic
  kMembersAdded = 2,  // body: identities
  kText = 3,
  kMemberLeft = 5,
  kEmote = 7,  // said of oneself: "/me waves"
  kContacts = 8,
};

enum Status : int { kSending = 1, kSent = 2, kUnread = 3, kRead = 4 };

}  // namespace message
}  // namespace simulator

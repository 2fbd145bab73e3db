#include "zelhost/chats/ChatRecords.h"

#include <cstdlib>
#include <initializer_list>

#include "apiwrapper/Chat.h"
#include "zelhost/LocalTimeLine.h"

namespace zelhost {
namespace {

void WriteProperties(zelto::RecordWriter& writer, const CChatInfo& chat,
                     std::initializer_list<int> properties) {
  for (const int property : properties) writer.Field(chat.Get(property).view());
}

// A chat in which nothing has happened has no time.
void WriteActivity(zelto::RecordWriter& writer, const CChatInfo& chat) {
  const unsigned long time = std::strtoul(chat.Get(Chat::P_LAST_ACTIVITY), nullptr, 10);
  writer.Field(time == 0 ? std::string_view() : LocalTimeLine(time).view());
}

}  // namespace

void WriteMessage(zelto::RecordWriter& writer, const ZEIntDict& message, const ZEString& status) {
  const LocalTimeLine time(std::strtoul(message.find(ChatMessage::P_TIMESTAMP), nullptr, 10));
  writer.Field(message.find(ChatMessage::P_AUTHOR_DISPLAY_NAME).view())
      .Field(time.view())
      .Field(message.find(ChatMessage::P_BODY).view())
      .Field(status.view());
}

void WriteMessageWithAuthor(zelto::RecordWriter& writer, const ZEIntDict& message, const ZEString& status) {
  writer.Field(message.find(ChatMessage::P_AUTHOR).view());
  WriteMessage(writer, message, status);
}

void WriteChat(zelto::RecordWriter& writer, const CChatInfo& chat) {
  WriteProperties(writer, chat, {Chat::P_NAME, Chat::P_3});
  WriteActivity(writer, chat);
  writer.Field(chat.Unread());
}

void WriteChatWithType(zelto::RecordWriter& writer, const CChatInfo& chat) {
  WriteProperties(writer, chat, {Chat::P_NAME, Chat::P_TYPE, Chat::P_11, Chat::P_3});
  WriteActivity(writer, chat);
  writer.Field(chat.Unread());
}

}  // namespace zelhost

// The records in which the chat manager answers: what stands in them, and in which order.
#pragma once

#include "Common/RecordWriter.h"
#include "apiwrapper/ChatMessage.h"
#include "apiwrapper/ZEIntDict.h"
#include "zelhost/chats/ChatInfo.h"

namespace zelhost {

// What is fetched for the records of messages.
inline constexpr int kMessageRecordProperties[] = {
    ChatMessage::P_TYPE,      ChatMessage::P_AUTHOR, ChatMessage::P_AUTHOR_DISPLAY_NAME,
    ChatMessage::P_TIMESTAMP, ChatMessage::P_BODY,   ChatMessage::P_STATUS};

// Display name of the author, time, text, status.
void WriteMessage(zelto::RecordWriter& writer, const ZEIntDict& message, const ZEString& status);
// The same behind the author's identity.
void WriteMessageWithAuthor(zelto::RecordWriter& writer, const ZEIntDict& message, const ZEString& status);

// Name, title, time of the last activity, number of unread messages.
void WriteChat(zelto::RecordWriter& writer, const CChatInfo& chat);
// Name, type, members' text, title, time of the last activity, number of unread messages.
void WriteChatWithType(zelto::RecordWriter& writer, const CChatInfo& chat);

}  // namespace zelhost

#include "simulator/runtime/door/OrderTable.h"

namespace simulator {
namespace {

// clang-format off
constexpr OrderRow kOrders[] = {
    {"status",       "",             orders::Status},
    {"object",       "object",       orders::Describe},
    {"set",          "",             orders::SetProperty},
    {"sign-out",     "reason",       orders::SignOut},
    {"fail-commit",  "count",        orders::FailCommit},
    {"contact",      "identity",     orders::ChangeContact},
    {"presence",     "milliseconds", orders::ChangePresence},
    {"contacts",     "count",        orders::InventContacts},
    {"authrequest",  "from",         orders::RequestAuthorization},
    {"authanswer",   "from",         orders::AnswerAuthorization},
    {"chat",         "with",         orders::OpenChat},
    {"message",      "from",         orders::Say},
    {"chats",        "count",        orders::InventChats},
    {"messages",     "count",        orders::InventMessages},
    {"voicemail",    "from",         orders::LeaveVoicemail},
    {"history",      "count",        orders::InventHistory},
    {"delete",       "object",       orders::DeleteElsewhere},
    {"hold-search",  "on",           orders::HoldSearches},
    {"call",         "from",         orders::Call},
    {"answer",       "",             orders::ActInCall},
    {"refuse",       "",             orders::ActInCall},
    {"busy",         "",             orders::ActInCall},
    {"hangup",       "",             orders::ActInCall},
    {"hold",         "",             orders::ActInCall},
    {"resume",       "",             orders::ActInCall},
    {"video",        "on",           orders::ActInCall},
    {"refuse-video", "on",           orders::ActInCall},
    {"drop",         "number",       orders::ActInCall},
    {"member",       "",             orders::ChangeMembers},
    {"speaking",     "who",          orders::Speak},
    {"tone",         "tone",         orders::SendTone},
    {"reply",        "fault",        orders::SpoilReply},
    {"clear",        "",             orders::Clear},
    {"event",        "event",        orders::SendEvent},
    {"frame",        "text",         orders::SendFrame},
    {"raw",          "hex",          orders::SendRaw},
    {"silent",       "on",           orders::Silence},
    {"split",        "byte",         orders::Split},
    {"freeze",       "how",          orders::Freeze},
    {"exit",         "frame",        orders::End},
    {"at",           "frame",        orders::At},
    {"media",        "",             orders::MediaStatus},
    {"mic-volume",   "value",        orders::SetMicVolume},
    {"packet",       "channel",      orders::SendPacket},
    {"stall",        "media",        orders::Stall},
    {"header",       "channel",      orders::SetHeaderWord},
    {"wait",         "milliseconds", nullptr},
    {"expect",       "method",       nullptr},
    {"connected",    "",             nullptr},
};
// clang-format on

}  // namespace

const OrderRow* FindOrder(std::string_view name) {
  for (const OrderRow& row : kOrders) {
    if (name == row.name) return &row;
  }
  return nullptr;
}

}  // namespace simulator

#include "simulator/runtime/door/OrderTable.h"

namespace simulator {
namespace {

// clang-format off
constexpr OrderRow kOrders[] = {
    {"status",      "",             orders::Status},
    {"object",      "object",       orders::Describe},
    {"set",         "",             orders::SetProperty},
    {"sign-out",    "reason",       orders::SignOut},
    {"fail-commit", "count",        orders::FailCommit},
    {"reply",       "fault",        orders::SpoilReply},
    {"clear",       "",             orders::Clear},
    {"event",       "event",        orders::SendEvent},
    {"frame",       "text",         orders::SendFrame},
    {"raw",         "hex",          orders::SendRaw},
    {"silent",      "on",           orders::Silence},
    {"split",       "byte",         orders::Split},
    {"freeze",      "how",          orders::Freeze},
    {"exit",        "frame",        orders::End},
    {"at",          "frame",        orders::At},
    {"wait",        "milliseconds", nullptr},
    {"expect",      "method",       nullptr},
    {"connected",   "",             nullptr},
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

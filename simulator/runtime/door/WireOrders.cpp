// Orders about the way to the engine, and about the process.
#include <csignal>

#include "simulator/runtime/Wire.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

struct ReplyFaultRow {
  const char* name;
  ReplyFault fault;
};

// clang-format off
constexpr ReplyFaultRow kReplyFaults[] = {
    {"drop",     ReplyFault::Drop},
    {"delay",    ReplyFault::Delay},
    {"repeat",   ReplyFault::Repeat},
    {"garble",   ReplyFault::Garble},
    {"error",    ReplyFault::Error},
    {"empty",    ReplyFault::Empty},
    {"other-id", ReplyFault::OtherId},
};
// clang-format on

struct FreezeRow {
  const char* name;
  bool stop;
};

struct DeathRow {
  const char* name;
  Death death;
};

std::string FromHex(const std::string& hex) {
  std::string bytes;
  if (hex.size() % 2 != 0 || hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
    Refuse("hex takes pairs of digits");
  }
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

}  // namespace

void SpoilReply(Controls& controls, const json& order, json&) {
  FaultOrder fault;
  fault.fault = Choose(kReplyFaults, TextOf(order, "fault")).fault;
  fault.method = TextOf(order, "method", "");
  fault.after = order.value("after", 0);
  fault.count = TextOf(order, "count", "1") == "every" ? -1 : order.value("count", 1);
  fault.milliseconds = order.value("milliseconds", 1000);
  controls.faults.Add(std::move(fault));
}

void Clear(Controls& controls, const json&, json&) {
  controls.faults.Clear();
  controls.wire.Reset();
  if (controls.session != nullptr) controls.session->commit.FailNext(0);
}

void SendFrame(Controls& controls, const json& order, json&) {
  SessionOf(controls);
  controls.wire.Send(TextOf(order, "text"));
}

void SendRaw(Controls& controls, const json& order, json&) {
  SessionOf(controls);
  // Only digits look like a number when written without quotes.
  controls.wire.SendRaw(FromHex(TextOf(order, "hex")));
}

void Silence(Controls& controls, const json& order, json&) {
  controls.wire.SetSilent(order.value("on", true));
}

void Split(Controls& controls, const json& order, json&) {
  Pieces pieces;
  pieces.first = order.at("byte").get<std::uint16_t>();
  pieces.every = order.value("every", std::uint16_t{0});
  controls.wire.SplitFrames(pieces);
}

void Freeze(Controls&, const json& order, json&) {
  constexpr FreezeRow kWays[] = {{"stop", true}, {"spin", false}};
  if (Choose(kWays, TextOf(order, "how", "stop")).stop) {
    raise(SIGSTOP);
    return;
  }
  for (volatile bool spinning = true; spinning;) {
  }
}

void End(Controls& controls, const json& order, json&) {
  constexpr DeathRow kDeaths[] = {{"exit", Death::Exit}, {"kill", Death::Kill}};
  const Death death = Choose(kDeaths, TextOf(order, "how", "exit")).death;
  const int status = order.value("status", 0);
  if (!order.contains("frame")) controls.wire.Die(death, status);
  controls.wire.DieAt(order["frame"].get<std::uint64_t>(), death, status);
}

}  // namespace orders
}  // namespace simulator

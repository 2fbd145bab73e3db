// Orders about the way to the engine, and about the process.
#include <csignal>

#include "simulator/runtime/Log.h"
#include "simulator/runtime/Wire.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/media/Media.h"

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

struct MomentRow {
  const char* name;
  Moment moment;
};

struct DeathRow {
  const char* name;
  Death death;
};

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
  if (controls.media != nullptr) controls.media->Stall(false);
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
  Wire& wire = controls.wire;
  if (!order.contains("frame")) wire.Die(death, status);
  wire.At(order["frame"].get<std::uint64_t>(), Moment::After,
          [&wire, death, status] { wire.Die(death, status); });
}

void At(Controls& controls, const json& order, json&) {
  constexpr MomentRow kMoments[] = {{"before", Moment::Before}, {"after", Moment::After}};
  const json inner = Orders::FromWords(TextOf(order, "do"));
  controls.wire.At(order.at("frame").get<std::uint64_t>(),
                   Choose(kMoments, TextOf(order, "when", "after")).moment, [&controls, inner] {
                     const json answer = Orders(controls).Execute(inner);
                     if (!answer["ok"].get<bool>()) Log("at a frame: " + answer["error"].get<std::string>());
                   });
}

}  // namespace orders
}  // namespace simulator

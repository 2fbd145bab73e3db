// Orders about sound and pictures.
#include <cstdint>

#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/media/Media.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

struct SwitchRow {
  const char* name;
  bool on;
};
constexpr SwitchRow kSwitch[] = {{"on", true}, {"off", false}};

Media& MediaOf(Controls& controls) {
  if (controls.media == nullptr) Refuse("there are no media");
  return *controls.media;
}

MediaChannel ChannelOf(const json& order) {
  return Choose(kMediaChannelNames, TextOf(order, "channel")).channel;
}

std::uint32_t WordOf(const json& value, const char* key) {
  const auto number = value.get<std::int64_t>();
  if (number < 0 || number > UINT32_MAX) Refuse(std::string(key) + " is no 32-bit number");
  return static_cast<std::uint32_t>(number);
}

std::uint32_t WordOf(const json& order, const char* key, std::uint32_t otherwise) {
  return order.contains(key) ? WordOf(order[key], key) : otherwise;
}

}  // namespace

void MediaStatus(Controls& controls, const json&, json& answer) {
  const Media& media = MediaOf(controls);
  json& attached = answer["attached"] = json::array();
  for (const MediaChannelName& row : kMediaChannelNames) {
    if (media.IsAttached(row.channel)) attached.push_back(row.name);
  }
  const MediaCounts counts = media.Counts();
  answer["soundIn"] = counts.soundIn;
  answer["soundOut"] = counts.soundOut;
  answer["soundDropped"] = media.SoundDropped();
  answer["picturesIn"] = counts.picturesIn;
  answer["picturesOut"] = counts.picturesOut;
  answer["picturesDropped"] = counts.picturesDropped;
  answer["keyFrameRequests"] = counts.keyFrameRequests;
  answer["voiceLevel"] = media.VoiceLevel();
  if (const auto microphones = media.TheMicrophones()) {
    answer["microphones"] = {microphones->beamformer, microphones->distances[0], microphones->distances[1]};
  }
}

void SetMicVolume(Controls& controls, const json& order, json&) {
  MediaOf(controls).SetMicVolume(WordOf(order, "selector", 0), WordOf(order.at("value"), "value"));
}

void SendPacket(Controls& controls, const json& order, json&) {
  const MediaChannel channel = ChannelOf(order);
  const std::string payload = FromHex(TextOf(order, "hex", ""));
  if (!MediaOf(controls).SendPacket(channel, WordOf(order.at("type"), "type"), payload)) {
    Refuse("nothing can be sent there");
  }
}

void Stall(Controls& controls, const json& order, json&) {
  MediaOf(controls).Stall(Choose(kSwitch, TextOf(order, "media", "on")).on);
}

void SetHeaderWord(Controls& controls, const json& order, json&) {
  const auto word = WordOf(order.at("word"), "word");
  const auto value = WordOf(order.at("value"), "value");
  if (!MediaOf(controls).SetHeaderWord(ChannelOf(order), word, value)) Refuse("no such channel or word");
}

}  // namespace orders
}  // namespace simulator

// The wire values beside their peers: one message of 40 pairs parsed and formatted, one handle copied.
// Both sides read and write the same names and texts, each in its own syntax.
#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <simdjson.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "apiwrapper/ZEStringDict.h"

namespace {

struct Pair {
  std::string key;
  std::string value;
};

// 40 keys of four digits with values of 20 bytes; one value in eight needs an escape.
std::vector<Pair> Pairs() {
  std::vector<Pair> pairs;
  for (int i = 0; i < 40; ++i) {
    std::string value = "value number " + std::to_string(1000000 + i * 7919);
    if (i % 8 == 3) value.replace(5, 1, "\"");
    pairs.push_back({std::to_string(1100 + i * 23), value.substr(0, 20)});
  }
  return pairs;
}

ZEStringDict Dict() {
  ZEStringDict dict;
  for (const Pair& pair : Pairs()) dict.insert(pair.key.c_str(), pair.value.c_str());
  return dict;
}

template <class Writer>
void WriteJson(Writer& writer, const std::vector<Pair>& pairs) {
  writer.StartObject();
  for (const Pair& pair : pairs) {
    writer.Key(pair.key.data(), static_cast<rapidjson::SizeType>(pair.key.size()));
    writer.String(pair.value.data(), static_cast<rapidjson::SizeType>(pair.value.size()));
  }
  writer.EndObject();
}

std::string Json() {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  WriteJson(writer, Pairs());
  return buffer.GetString();
}

void Require(bool holds) {
  if (!holds) std::abort();  // a figure of a wrong result would mislead
}

void ParseZelto(benchmark::State& state) {
  const ZEString message = Dict().format(true);
  Require(ZEStringDict::parse(message).size() == 40 && ZEStringDict::parse(message).format(true) == message);
  for (auto _ : state) {
    ZEStringDict dict = ZEStringDict::parse(message);
    benchmark::DoNotOptimize(dict);
  }
}

void ParseRapidJson(benchmark::State& state) {
  const std::string message = Json();
  for (auto _ : state) {
    rapidjson::Document document;
    document.Parse(message.data(), message.size());
    benchmark::DoNotOptimize(document);
  }
}

// The parser and its buffers are kept, as its authors advise.
void ParseSimdJson(benchmark::State& state) {
  const simdjson::padded_string message(Json());
  simdjson::dom::parser parser;
  for (auto _ : state) {
    simdjson::dom::element document = parser.parse(message);
    benchmark::DoNotOptimize(document);
  }
}

void FormatZelto(benchmark::State& state) {
  const ZEStringDict dict = Dict();
  for (auto _ : state) {
    ZEString message = dict.format(true);
    benchmark::DoNotOptimize(message);
  }
}

void FormatRapidJson(benchmark::State& state) {
  const std::vector<Pair> pairs = Pairs();
  for (auto _ : state) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    WriteJson(writer, pairs);
    benchmark::DoNotOptimize(buffer.GetString());
  }
}

// Short texts of different blocks in turn: one alone would show how long its counter's last change takes to
// come back, which no message waits for.
template <class Value>
void CopyHandle(benchmark::State& state) {
  std::array<Value, 64> texts;
  for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = Value(std::to_string(1100 + i).c_str());
  for (auto _ : state) {
    for (const Value& text : texts) {
      Value copy(text);
      benchmark::DoNotOptimize(copy);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.size()));
}

}  // namespace

BENCHMARK(ParseZelto)->Name("Parse/zelto");
BENCHMARK(ParseRapidJson)->Name("Parse/rapidjson");
BENCHMARK(ParseSimdJson)->Name("Parse/simdjson");
BENCHMARK(FormatZelto)->Name("Format/zelto");
BENCHMARK(FormatRapidJson)->Name("Format/rapidjson");
BENCHMARK_TEMPLATE(CopyHandle, ZEString)->Name("CopyHandle/zelto");
BENCHMARK_TEMPLATE(CopyHandle, std::string)->Name("CopyHandle/std_string");

BENCHMARK_MAIN();

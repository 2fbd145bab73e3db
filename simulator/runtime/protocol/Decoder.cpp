#include "simulator/runtime/protocol/Decoder.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "apiwrapper/tables/Keys.h"
#include "simulator/runtime/protocol/Values.h"

namespace simulator {
namespace {

constexpr std::size_t kMaxShown = 60;
// Requests that never get a reply must not fill the memory.
constexpr std::size_t kMaxAsked = 10000;

// What is known about the pairs of a message.
struct Context {
  const ZEClass* type = nullptr;
  const ZEField* fields = nullptr;
  std::size_t count = 0;
};

std::string Quoted(std::string_view text) {
  std::string shown;
  bool plain = !text.empty();
  for (const char c : text.substr(0, kMaxShown)) {
    const bool printable = static_cast<unsigned char>(c) > ' ' && c != '\x7f' && c != '"';
    plain = plain && printable;
    shown += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? '.' : c;
  }
  if (text.size() > kMaxShown) shown += "...";
  return plain ? shown : "\"" + shown + "\"";
}

// "SavePassword" as "savePassword"; object ids simply as "object".
std::string KeyWord(const std::string& key) {
  if (key == ZEKey::ObjectId) return "object";
  const char* name = ZEProtocol::KeyName(key.c_str());
  if (name == nullptr) return key;
  std::string word = name;
  word[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(word[0])));
  return word;
}

std::string PropertyList(const ZEClass& type, const std::string& tokens) {
  std::string numbers;
  for (const auto token : SplitList(tokens)) {
    const int property = PropertyByToken(type, token);
    numbers += (numbers.empty() ? "" : ",") + (property == 0 ? std::string(token) : std::to_string(property));
  }
  return numbers;
}

std::string PropertyValue(const ZEClass& type, int property, const Pair& pair) {
  if (pair.binary || IsBinaryProperty(type, property)) {
    return "<" + std::to_string(UnescapeBinary(pair.raw).size()) + " bytes>";
  }
  const PMAP* table = type.enums == nullptr ? nullptr : ZEProtocol::EnumOf(type.enums, property);
  const std::string text = Unescape(pair.raw);
  return table == nullptr ? Quoted(text) : std::to_string(ZEProtocol::ValueOf(table, text.c_str()));
}

std::string FieldValue(const Context& context, const std::string& key, const Pair& pair) {
  const std::string text = Unescape(pair.raw);
  for (std::size_t i = 0; i < context.count && context.fields[i].key != nullptr; ++i) {
    const ZEField& field = context.fields[i];
    if (key != field.key) continue;
    if (field.kind == ZEKind::Binary)
      return "<" + std::to_string(UnescapeBinary(pair.raw).size()) + " bytes>";
    if (field.table != nullptr) return std::to_string(ZEProtocol::ValueOf(field.table, text.c_str()));
  }
  const bool listed = key == ZEKey::Properties && context.type != nullptr;
  return listed ? PropertyList(*context.type, text) : Quoted(text);
}

std::string PairWords(const Context& context, std::string_view text) {
  std::vector<Pair> pairs;
  const bool whole = ParsePairs(text, pairs);
  std::string words;
  int changed = 0;  // the property that a property event is about
  for (const Pair& pair : pairs) {
    const std::string key(pair.key);
    const int property = context.type == nullptr ? 0 : PropertyByToken(*context.type, pair.key);
    words += ' ';
    if (property != 0) {
      words += std::to_string(property) + "=" + PropertyValue(*context.type, property, pair);
    } else if (key == ZEKey::Property && context.type != nullptr) {
      changed = PropertyByToken(*context.type, pair.raw);
      words += "property=" + (changed == 0 ? Quoted(pair.raw) : std::to_string(changed));
    } else if (key == ZEKey::Value && changed != 0) {
      words += "value=" + PropertyValue(*context.type, changed, pair);
    } else {
      words += KeyWord(key) + "=" + FieldValue(context, key, pair);
    }
  }
  return whole ? words : words + " (malformed)";
}

std::string_view TakeWord(std::string_view& text) {
  const auto end = std::min(text.find(' '), text.size());
  const auto word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

// Line feeds inside quotes (pictures hold any byte) end no line.
std::string_view TakeLine(std::string_view& text) {
  bool inside = false;
  std::size_t end = 0;
  for (; end < text.size() && (inside || text[end] != '\n'); ++end) {
    if (text[end] == '\\') {
      ++end;
    } else if (text[end] == '"') {
      inside = !inside;
    }
  }
  end = std::min(end, text.size());
  const auto line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

const ZEClass* ClassOf(std::string_view token) {
  return ZEProtocol::ClassByToken(std::string(token).c_str());
}

std::string NameOf(const ZEClass* type, std::string_view token) {
  return type == nullptr ? std::string(token) : std::string(type->name);
}

}  // namespace

std::string Decoder::Words(std::string_view text) {
  Request request;
  if (request.Parse(text)) return RequestWords(request);
  const std::string_view id = request.Id();
  if (!id.empty()) return ReplyWords(id, text.substr(id.size()));
  return EventWords(text);
}

std::string Decoder::RequestWords(const Request& request) {
  const ZEClass* type = ClassOf(request.ClassToken());
  const std::string token(request.MethodToken());
  const ZEMethod* method = type == nullptr ? nullptr : ZEProtocol::MethodByToken(type, token.c_str());
  std::string words = std::string(request.Id()) + NameOf(type, request.ClassToken()) + "." +
                      (method == nullptr ? token : std::string(method->name));
  if (request.NeedsReply() && m_asked.size() < kMaxAsked) m_asked[std::string(request.Id())] = {type, method};

  Context context{type, nullptr, 0};
  if (method != nullptr) context = {type, method->arguments, kMaxMethodArguments};
  std::string pairs;
  for (const Pair& pair : request.Pairs()) {
    const auto* begin = pair.key.data();
    const auto* end = pair.raw.data() + pair.raw.size() + 1;
    pairs.append(begin, end) += ' ';
  }
  return words + PairWords(context, pairs);
}

std::string Decoder::ReplyWords(std::string_view id, std::string_view text) {
  Asked asked{nullptr, nullptr};
  const auto found = m_asked.find(std::string(id));
  if (found != m_asked.end()) {
    asked = found->second;
    m_asked.erase(found);
  }
  std::string words(id);
  if (!text.empty() && text[0] == 'd') return words + "error" + std::string(text.substr(1));
  Context context{asked.type, nullptr, 0};
  if (asked.method != nullptr) context = {asked.type, asked.method->results, kMaxMethodResults};
  words += "reply";
  // One line for each object that was asked about.
  for (bool first = true; !text.empty(); first = false) {
    std::string_view line = TakeLine(text);
    if (!first) words += " |";
    if (line.substr(0, 1) == "b") line.remove_prefix(1);
    words += PairWords(context, line);
  }
  return words;
}

std::string Decoder::EventWords(std::string_view text) {
  const std::string_view whole = text;
  const std::string_view first = TakeWord(text);
  const std::string_view typeToken = TakeWord(text);
  const std::string token(TakeWord(text));
  if (first.empty() || token.empty()) return "(malformed) " + Quoted(whole);
  const ZEClass* type = ClassOf(typeToken);
  const ZEEvent* event = ZEProtocol::EventByToken(token.c_str());
  Context context{type, nullptr, 0};
  if (event != nullptr) context = {type, event->fields, kMaxEventFields};
  return "event " + NameOf(type, typeToken) + "." + (event == nullptr ? token : std::string(event->name)) +
         PairWords(context, text);
}

}  // namespace simulator

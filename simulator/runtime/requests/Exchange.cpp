#include "simulator/runtime/requests/Exchange.h"

#include <cstring>

namespace simulator {
namespace {

template <std::size_t N>
const PMAP* TableOf(const ZEField (&fields)[N], const char* key) {
  for (const ZEField& field : fields) {
    if (field.key == nullptr) break;
    if (std::strcmp(field.key, key) == 0) return field.table;
  }
  return nullptr;
}

}  // namespace

Exchange::Exchange(const Request& request, const ZEMethod& method, const ZEClass& type, Object* object,
                   std::string& reply)
    : m_request(request),
      m_method(method),
      m_class(type),
      m_object(object),
      m_reply(reply),
      m_writer(reply) {}

std::string Exchange::Text(const char* key) const {
  const Pair* pair = m_request.Find(key);
  return pair == nullptr ? std::string() : Unescape(pair->raw);
}

int Exchange::Number(const char* key) const {
  const Pair* pair = m_request.Find(key);
  return pair == nullptr ? 0 : ToInt(pair->raw);
}

unsigned Exchange::Id(const char* key) const {
  const Pair* pair = m_request.Find(key);
  return pair == nullptr ? 0 : ToUnsigned(pair->raw);
}

int Exchange::Enumerator(const char* key) const {
  const PMAP* table = TableOf(m_method.arguments, key);
  return table == nullptr ? -1 : ZEProtocol::ValueOf(table, Text(key).c_str());
}

std::vector<unsigned> Exchange::Ids(const char* key) const {
  std::vector<unsigned> ids;
  const std::string text = Text(key);
  for (const auto piece : SplitList(text)) ids.push_back(ToUnsigned(piece));
  return ids;
}

std::vector<std::string> Exchange::Texts(const char* key) const {
  std::vector<std::string> texts;
  const std::string list = Text(key);
  for (const auto piece : SplitList(list)) texts.push_back(Unescape(piece));
  return texts;
}

void Exchange::Answer(const char* key, std::string_view text) { m_writer.Text(key, text); }

void Exchange::Answer(const char* key, long long number) {
  const PMAP* table = TableOf(m_method.results, key);
  if (table == nullptr) {
    m_writer.Number(key, number);
    return;
  }
  const char* token = ZEProtocol::TokenOf(table, static_cast<int>(number));
  m_writer.Text(key, token == nullptr ? "" : token);
}

void Exchange::AnswerObjects(const char* key, const std::vector<unsigned>& ids) {
  std::string list;
  for (const unsigned id : ids) list += (list.empty() ? "" : ",") + std::to_string(id);
  m_writer.Text(key, list);
}

void Exchange::AnswerTexts(const char* key, const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) {
    if (!list.empty()) list += ',';
    for (const char c : text) {
      if (c == ',' || c == '"' || c == '\\') list += '\\';
      list += c;
    }
  }
  m_writer.Text(key, list);
}

}  // namespace simulator

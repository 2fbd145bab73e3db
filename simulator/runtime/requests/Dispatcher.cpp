#include "simulator/runtime/requests/Dispatcher.h"

#include <cstdint>
#include <exception>
#include <unordered_map>

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "apiwrapper/tables/Words.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

struct Entry {
  const ZEClass* type;
  const ZEMethod* method;
  void (*serve)(Session&, Exchange&);  // null: known, but not served
};

using Table = std::unordered_map<std::uint64_t, Entry>;

// Both tokens in one number; tokens are short decimal numbers.
std::uint64_t KeyOf(std::string_view classToken, std::string_view methodToken) {
  constexpr std::size_t kLongestToken = 4;
  if (classToken.size() > kLongestToken || methodToken.size() > kLongestToken) return 0;
  std::uint64_t key = 0;
  for (const auto token : {classToken, methodToken}) {
    for (std::size_t i = 0; i < kLongestToken; ++i) {
      key = key << 8 | (i < token.size() ? static_cast<unsigned char>(token[i]) : 0u);
    }
  }
  return key;
}

void AddMethods(Table& table, const ZEMethod* const* begin, const ZEMethod* const* end,
                const std::unordered_map<const ZEMethod*, const HandlerRow*>& handlers) {
  for (; begin != end; ++begin) {
    const ZEMethod& method = **begin;
    const auto handler = handlers.find(&method);
    const auto serve = handler == handlers.end() ? nullptr : handler->second->serve;
    for (const ZEClass* type : ALL_CLASSES) {
      // A method without an owner belongs to every class.
      if (method.owner != nullptr && method.owner != type) continue;
      table.emplace(KeyOf(type->token, method.token), Entry{type, &method, serve});
    }
  }
}

Table BuildTable() {
  std::unordered_map<const ZEMethod*, const HandlerRow*> handlers;
  for (const HandlerRows& rows : {ObjectHandlers(), RootHandlers(), SettingHandlers(), AccountHandlers(),
                                  ContactHandlers(), CallHandlers(), NameHandlers(), PhoneHandlers(),
                                  ChatHandlers(), HistoryHandlers(), SearchHandlers()}) {
    for (const HandlerRow& row : rows) handlers.emplace(row.method, &row);
  }
  Table table;
  AddMethods(table, std::begin(CLASS_METHODS), std::end(CLASS_METHODS), handlers);
  AddMethods(table, std::begin(ROOT_METHODS), std::end(ROOT_METHODS), handlers);
  return table;
}

const Entry* FindEntry(const Request& request) {
  static const Table kTable = BuildTable();
  const auto found = kTable.find(KeyOf(request.ClassToken(), request.MethodToken()));
  return found == kTable.end() ? nullptr : &found->second;
}

std::string NameOf(const Entry& entry) { return std::string(entry.type->name) + "." + entry.method->name; }

bool MakesObject(const ZEMethod& method) {
  return method.target == ZETarget::Service && method.results[0].kind == ZEKind::Object &&
         method.results[0].key != nullptr;
}

}  // namespace

void Decline(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, 0LL); }
void TakeNote(Session&, Exchange&) {}

void Dispatcher::Serve(std::string_view text) {
  const ZEMethod* method = nullptr;
  std::string error;
  const bool parsed = m_request.Parse(text);
  m_reply.assign(m_request.Id()).append(ZEWord::Reply).append(" ");
  try {
    error = parsed ? Run(method) : "malformed request";
  } catch (const std::exception& failure) {
    // A database that has gone, memory that is short: this request fails, the next may not.
    error = failure.what();
  }
  if (!error.empty()) {
    Log((m_request.NeedsReply() ? "refused: " : "dropped: ") + error);
    m_reply.assign(m_request.Id()).append(ZEWord::Error).append(" ").append(error);
  }
  if (m_request.NeedsReply()) Answer(method);
}

std::string Dispatcher::Run(const ZEMethod*& method) {
  const Entry* entry = FindEntry(m_request);
  if (entry == nullptr) {
    return "unknown method " + std::string(m_request.MethodToken()) + " of class " +
           std::string(m_request.ClassToken());
  }
  method = entry->method;
  if (m_observer) m_observer(*method);
  if (entry->serve == nullptr) return NameOf(*entry) + " is not served";
  if (m_session.world.IsFull() && MakesObject(*method)) return NameOf(*entry) + ": too many objects";

  Object* object = nullptr;
  if (method->target == ZETarget::Object) {
    const Pair* id = m_request.Find(ZEKey::ObjectId);
    object = id == nullptr ? nullptr : m_session.world.Find(ToUnsigned(id->raw));
    if (object == nullptr) return NameOf(*entry) + ": no such object";
    if (object->type != entry->type) return NameOf(*entry) + ": the object is of another class";
  }
  Exchange exchange(m_request, *method, *entry->type, object, m_reply);
  entry->serve(m_session, exchange);
  return exchange.Error();
}

void Dispatcher::Answer(const ZEMethod* method) {
  if (m_faults != nullptr && m_faults->Any()) {
    m_faults->Answer(method, m_request.Id(), m_reply, m_session.surroundings.outbox, m_session.scheduler);
  } else {
    m_session.surroundings.outbox.Send(m_reply);
  }
}

}  // namespace simulator

// Which function serves which request: one table per group of requests.
#pragma once

#include <cstddef>

#include "apiwrapper/ZEProtocol.h"

namespace simulator {

class Exchange;
struct Session;

struct HandlerRow {
  const ZEMethod* method;
  void (*serve)(Session&, Exchange&);
};

// A table somewhere else.
struct HandlerRows {
  const HandlerRow* rows;
  std::size_t count;
  const HandlerRow* begin() const { return rows; }
  const HandlerRow* end() const { return rows + count; }
};

template <std::size_t N>
constexpr HandlerRows RowsOf(const HandlerRow (&rows)[N]) {
  return {rows, N};
}

// What many requests come to that mean nothing to a simulated service: the answer is no, or there is none.
void Decline(Session&, Exchange& exchange);
void TakeNote(Session&, Exchange&);

HandlerRows ObjectHandlers();   // properties of all objects
HandlerRows RootHandlers();     // start, stop, versions, clocks
HandlerRows SettingHandlers();  // the settings store
HandlerRows AccountHandlers();  // accounts, signing in and out
HandlerRows ContactHandlers();  // contacts and their groups
HandlerRows CallHandlers();     // calls, their members and pictures
HandlerRows NameHandlers();     // names and codes of countries and languages
HandlerRows PhoneHandlers();    // calling codes of countries
HandlerRows ChatHandlers();     // chats, their members and messages
HandlerRows HistoryHandlers();  // calls that are over, voicemails
HandlerRows SearchHandlers();   // the directory, and objects of all kinds

}  // namespace simulator

// A transport without a stream: what the runtime says is put into it beforehand, what the engine says is
// kept.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "apiwrapper/ZETransport.h"

class MemoryTransport : public ZETransport {
 public:
  bool connect() override { return connected = connects; }
  void disconnect() override { connected = false; }
  void push(const ZEString& message) override {
    written.emplace_back(message);
    if (onPush) onPush(written.back());
  }
  // An exhausted script is the end of the stream for who waits for more.
  ZEString pull(bool block) override {
    if (incoming.empty()) {
      if (block) connected = false;
      return ZEString();
    }
    const ZEString message(incoming.front().c_str());
    incoming.pop_front();
    return message;
  }
  bool hasMore(int) override { return connected && !incoming.empty(); }
  bool isConnected() override { return connected; }
  int getSocket() override { return -1; }

  bool connects = true;
  bool connected = true;
  std::deque<std::string> incoming;
  std::vector<std::string> written;
  std::function<void(const std::string&)> onPush;  // may script the answer
};

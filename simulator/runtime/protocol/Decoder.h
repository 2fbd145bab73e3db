// Frames in words, for people: "Account.Logout object=5 flag=1".
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "apiwrapper/ZEProtocol.h"
#include "simulator/runtime/protocol/Message.h"

namespace simulator {

// Reads the messages of both directions with the protocol's own tables; what they do not know stands in
// the words as it is. Remembers blocking requests until their reply, to know what the reply is about.
// Threads: none of its own.
class Decoder {
 public:
  // One line without its end; never fails.
  std::string Words(std::string_view text);

 private:
  struct Asked {
    const ZEClass* type;
    const ZEMethod* method;
  };

  std::string RequestWords(const Request& request);
  std::string ReplyWords(std::string_view id, std::string_view text);
  std::string EventWords(std::string_view text);

  std::unordered_map<std::string, Asked> m_asked;  // by request id
};

}  // namespace simulator

#include "Common/LocalTime.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "Common/Log.h"
#include "Common/ZeltoManager.h"

namespace zelto {
namespace {

char* AskHost(const char* command, unsigned long time, char* buffer) {
  if (buffer == nullptr) return nullptr;
  const long seconds = static_cast<long>(time);
  const std::string answer =
      CZeltoManager::CallCommonControl(command, std::to_string(seconds).c_str(), "", "", "");
  std::memset(buffer, 0, kLocalTimeSize);
  std::memcpy(buffer, answer.data(), std::min<std::size_t>(answer.size(), kLocalTimeSize));
  ZELTO_INFO("Timestamp[%ld] is converted to [%.*s]\n", seconds, kLocalTimeSize, buffer);
  return buffer;
}

}  // namespace

char* ConvertToLocalTime(unsigned long time, char* buffer) { return AskHost("GetLocalTime", time, buffer); }

char* ConvertToLocalTime12(unsigned long time, char* buffer, int) {
  return AskHost("GetLocalTime12", time, buffer);
}

}  // namespace zelto

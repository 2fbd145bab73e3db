#include "Common/NoticeSteps.h"

#include <algorithm>
#include <cstdio>

#include "Common/CallManager.h"
#include "Common/ContactManager.h"
#include "Common/DecimalText.h"
#include "Common/HistoryManager.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "Common/ZeltoTexts.h"

namespace zelto::notices {
namespace {

constexpr int kLongestText = 499;   // units
constexpr int kLongestName = 30;    // bytes of a name that a title shows whole
constexpr int kShortenedName = 28;  // units that are left of a longer one, before the ellipsis
constexpr char16_t kEllipsis = u'\u2026';

// Units of a text that ends with 0, with room for the longest one. The type is the texts'.
using Units = unsigned short[kLongestText + 1];

std::u16string TextOf(const unsigned short* units, int limit) {
  return std::u16string(units, std::find(units, units + limit, 0));
}

void Convert(const Source& source, const std::string& utf8, Units& out) {
  source.texts.UTF8ToUnicode(out, reinterpret_cast<const unsigned char*>(utf8.c_str()), kLongestText);
}

bool Combine(const Source& source, const std::string& first, const std::string* second, std::u16string& out) {
  Units a = {};
  Units b = {};
  Units text = {};
  Convert(source, first, a);
  if (second != nullptr) Convert(source, *second, b);
  source.texts.CombinateStrings(text, kLongestText, source.texts.GetWString(source.text), a,
                                second != nullptr ? b : nullptr, nullptr, nullptr);
  out = TextOf(text, kLongestText);
  return true;
}

std::string FirstMember() {
  zelhost::ServiceHostLock lock("FirstMember");
  const char* name = CCallManager::HasManager() ? CCallManager::GetInstance()->GetCallMemberName(0) : nullptr;
  return name != nullptr ? name : "";
}

}  // namespace

bool Always() { return true; }
bool IsCameraReady() { return DecimalValue(CZeltoManager::CallCommonControl("IsCameraReady").c_str()) != 0; }

bool HasOneMissed() {
  zelhost::ServiceHostLock lock("HasOneMissed");
  return !CHistoryManager::HasManager() || CHistoryManager::GetInstance()->isMissedCallOneMember();
}

bool Product(const Source& source, std::u16string& out) {
  return Plain({source.texts, kTextProduct, source.param}, out);
}

bool Plain(const Source& source, std::u16string& out) {
  out = TextOf(source.texts.GetWString(source.text), kLongestText);
  return true;
}

bool NamingCaller(const Source& source, std::u16string& out) {
  return Combine(source, FirstMember(), nullptr, out);
}

bool NamingOnlined(const Source& source, std::u16string& out) {
  std::string name;
  {
    zelhost::ServiceHostLock lock("NamingOnlined");
    const char* onlined =
        CContactManager::HasManager() ? CContactManager::GetInstance()->GetOnlinedContactName() : nullptr;
    if (onlined == nullptr) {
      ZELTO_FATAL("no contact name for online notification");
      return false;
    }
    name = onlined;
  }
  return Combine(source, name, nullptr, out);
}

bool NamingMissed(const Source& source, std::u16string& out) {
  std::string name;
  std::string time;
  {
    zelhost::ServiceHostLock lock("NamingMissed");
    if (CHistoryManager::HasManager()) {
      name = CHistoryManager::GetInstance()->GetMissedCallMemberName();
      time = CHistoryManager::GetInstance()->GetMissedCallTimeStamp();
    }
  }
  return Combine(source, name, &time, out);
}

bool CountingMissed(const Source& source, std::u16string& out) {
  int count = 0;
  {
    zelhost::ServiceHostLock lock("CountingMissed");
    if (CHistoryManager::HasManager()) count = CHistoryManager::GetInstance()->GetNumOfMissedCall();
  }
  return Combine(source, std::to_string(count), nullptr, out);
}

bool CallerName(const Source& source, std::u16string& out) {
  const std::string name = FirstMember();
  Units units = {};
  Convert(source, name, units);
  out = TextOf(units, kLongestText);
  if (name.size() > kLongestName) out = out.substr(0, kShortenedName) + kEllipsis;
  return true;
}

bool Duration(const Source& source, std::u16string& out) {
  const int seconds = std::max(source.param, 0);
  char text[32];
  const int length = std::snprintf(text, sizeof text, "%10s%02d:%02d:%02d", "", seconds / 3600,
                                   seconds / 60 % 60, seconds % 60);
  out.assign(text, text + length);
  return true;
}

}  // namespace zelto::notices

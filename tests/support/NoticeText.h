// A notice as text, for comparing all of it at once.
#pragma once

#include <codecvt>
#include <locale>
#include <string>

#include "Common/IMoIPEngine.h"

namespace test {

inline std::string InUtf8(const unsigned short* text) {
  if (text == nullptr) return "-";
  std::u16string units;
  for (; *text != 0; ++text) units += static_cast<char16_t>(*text);
  return std::wstring_convert<std::codecvt_utf8_utf16<char16_t>, char16_t>("(ill-formed)").to_bytes(units);
}

// All fields in their order, each followed by a bar; "-" for a text that is not there.
inline std::string Written(const CEngineGlobalNoticeInfo& notice) {
  std::string written;
  const auto add = [&written](const std::string& field) { written += field + '|'; };
  add(std::to_string(notice.id));
  add(notice.append ? "append" : "replace");
  for (int number : {notice.duration, notice.buttonCount, notice.defaultFocus}) add(std::to_string(number));
  add(InUtf8(notice.title));
  add(InUtf8(notice.description));
  add(notice.iconPath != nullptr ? notice.iconPath : "-");
  for (const unsigned short* text : notice.buttonTexts) add(InUtf8(text));
  for (const char* command : notice.buttonCallbacks) add(command != nullptr ? command : "-");
  return written;
}

// The notice that public event 17 carries.
inline std::string WrittenNotice(const CEngineEvent& event) {
  return Written(*reinterpret_cast<const CEngineGlobalNoticeInfo*>(event.param1));
}

}  // namespace test

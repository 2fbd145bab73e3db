#include "Common/Notices.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "Common/NoticeTable.h"
#include "Common/ZeltoManager.h"

namespace zelto {
namespace {

using notices::kDurationNotice;
using notices::kNoticeCount;
using notices::kNotices;
using notices::Notice;

const Notice* Choose(int id) {
  const auto fits = [id](const Notice& notice) { return notice.id == id && notice.when(); };
  const auto chosen = std::find_if(std::begin(kNotices), std::end(kNotices), fits);
  return chosen == std::end(kNotices) ? nullptr : chosen;
}

// The record's texts are the C allocator's. Null when memory has run out, which the host takes for no text.
unsigned short* Copy(const std::u16string& text) {
  auto* copy = static_cast<unsigned short*>(std::calloc(text.size() + 1, sizeof(unsigned short)));
  if (copy != nullptr) std::copy(text.begin(), text.end(), copy);
  return copy;
}

char* Copy(const char* text) { return text != nullptr ? ::strdup(text) : nullptr; }

// For the log.
std::string Utf8(const unsigned short* text) {
  std::string utf8;
  for (; text != nullptr && *text != 0; ++text) {
    const unsigned unit = *text;
    if (unit < 0x80) {
      utf8 += static_cast<char>(unit);
    } else if (unit < 0x800) {
      utf8 += static_cast<char>(0xC0 | unit >> 6);
      utf8 += static_cast<char>(0x80 | (unit & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | unit >> 12);
      utf8 += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (unit & 0x3F));
    }
  }
  return utf8;
}

void Dump(const CEngineGlobalNoticeInfo& notice) {
  if (!LogEnabled(LogLevel::Debug)) return;
  constexpr const char* kButtons[] = {"first", "second", "third"};
  ZELTO_DEBUG("Global Function Notification");
  ZELTO_DEBUG("id: %d\n", notice.id);
  ZELTO_DEBUG("append: %d\n", notice.append);
  ZELTO_DEBUG("duration: %d\n", notice.duration);
  ZELTO_DEBUG("num. of buttons: %d\n", notice.buttonCount);
  ZELTO_DEBUG("default focus: %d\n", notice.defaultFocus);
  ZELTO_DEBUG("title: %s\n", Utf8(notice.title).c_str());
  ZELTO_DEBUG("description: %s\n", Utf8(notice.description).c_str());
  ZELTO_DEBUG("icon path: %s\n", notice.iconPath != nullptr ? notice.iconPath : "");
  for (int i = 0; i < 3; ++i) {
    ZELTO_DEBUG("%s button text: %s\n", kButtons[i], Utf8(notice.buttonTexts[i]).c_str());
  }
  for (int i = 0; i < 3; ++i) {
    const char* command = notice.buttonCallbacks[i];
    ZELTO_DEBUG("%s button callback: %s\n", kButtons[i], command != nullptr ? command : "");
  }
}

}  // namespace

void Notices::Show(int id, int param) {
  Discard();
  if (id < 0 || id >= kNoticeCount) return;
  m_texts.SetLanguage(DecimalValue(CZeltoManager::CallCommonControl("GetCurrentLangID").c_str()));
  m_notice = std::make_unique<CEngineGlobalNoticeInfo>();
  if (Fill(id, param)) {
    Dump(*m_notice);
    CZeltoManager::NotifyNewHardwiredEvent(EngineEventTypes::PUBLIC_SHOW_NOTICE, *m_notice);
  }
  Discard();
}

bool Notices::Fill(int id, int param) {
  const Notice* row = Choose(id);
  const notices::Source source{m_texts, row->text, param};
  std::u16string title;
  std::u16string description;
  if (!row->title(source, title) || !row->description(source, description)) return false;

  CEngineGlobalNoticeInfo& notice = *m_notice;
  notice.id = row->shownAs;
  notice.duration = row->duration;
  notice.buttonCount = 0;
  notice.defaultFocus = 0;
  notice.title = Copy(title);
  notice.description = Copy(description);
  for (const notices::Button& button : row->buttons) {
    if (button.label < 0) break;
    const int place = notice.buttonCount++;
    std::u16string label;
    notices::Plain({m_texts, button.label, param}, label);
    notice.buttonTexts[place] = Copy(label);
    notice.buttonCallbacks[place] = Copy(button.command);
  }
  if (id == kDurationNotice) {
    // The next ones of the same call take the place of the one on the screen.
    notice.append = !m_durationShown;
    m_durationShown = true;
  }
  return true;
}

void Notices::Hide(int id) {
  CZeltoManager::NotifyHardwiredEvent(EngineEventTypes::PUBLIC_HIDE_NOTICE, std::to_string(id).c_str(),
                                      nullptr);
  ZELTO_DEBUG("delete noticeID done");
  if (id == kDurationNotice) m_durationShown = false;
}

void Notices::HideAll() {
  for (int id = 0; id < kNoticeCount; ++id) Hide(id);
}

void Notices::Discard() {
  if (m_notice == nullptr) return;
  m_notice.reset();
  ZELTO_DEBUG("delete global notification info done");
}

void Notices::Reset() {
  Discard();
  m_durationShown = false;
}

}  // namespace zelto
